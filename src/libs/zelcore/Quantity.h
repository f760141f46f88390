#pragma once

/// A physical quantity. The numbers may come from files, so a value outside the list is possible
/// and has no unit.
enum class Quantity : int {
    None = 0,
    Length = 1,
    Area = 2,
    Volume = 3,
    Angle = 4,
    Temperature = 5,
    Time = 6,
    Mass = 7
};
