#pragma once

/// How the whole degrees of a dial stand for an angle, without widgets.
namespace ZelDialAngle {

constexpr int fullTurn = 360;

struct Rule
{
    /// The dial turns against the angle.
    bool isBackward = false;
    /// The angle counts full turns; otherwise a move of the dial gives an angle of at most one.
    bool isContinuing = false;
};

/// Where the dial stands at an angle of zero or more: 0 to 360.
int position(double angle, const Rule &rule);
/// The angle after the user has moved the dial. A dial that counts turns goes the shorter way round
/// from the angle before, and stops at zero.
double angle(int position, double before, const Rule &rule);
/// An angle of zero or more that looks the same.
double positive(double angle);

} // namespace ZelDialAngle
