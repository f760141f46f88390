#pragma once

/// A unit of measure. The units of length measure areas and volumes too, squared and cubed.
enum class Unit : int {
    None = -1,
    Millimeter = 0,
    Centimeter = 1,
    Meter = 2,
    Kilometer = 3,
    Inch = 4,
    Foot = 5,
    Radian = 6,
    Degree = 7,
    Celsius = 8,
    Fahrenheit = 9,
    Second = 10,
    Minute = 11,
    Hour = 12,
    Gram = 13,
    Kilogram = 14
};
