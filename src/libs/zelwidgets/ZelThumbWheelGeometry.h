#pragma once

#include <vector>

/// Where the cogs of a thumb wheel are seen and how far it turns, without widgets.
///
/// The wheel is a drum seen from the side: of its circumference half a turn is in sight.
namespace ZelThumbWheelGeometry {

/// The whole numbers of a wheel and how it goes on at their ends.
struct Range
{
    int minimum = 0;
    int maximum = 99;
    bool wrapsAround = false;
};

/// One cog: its place along the wheel, and how much it faces the viewer, from 0 at the ends to 1 in
/// the middle.
struct Cog
{
    double place;
    double facing;
};

constexpr int maximumCogCount = 360;

/// The angle, in radians, by which the drum has turned at a number; its surface follows the mouse
/// in the middle of the wheel. Nothing turns without a ratio or a length.
double angle(double number, double transmissionRatio, double length);
/// The cogs in sight, from one end to the other: evenly spaced on the drum, so that they stand
/// closer together near its ends.
std::vector<Cog> cogs(double length, int cogCount, double angle);

/// The number after some way: beyond an end it stays there, or comes in at the other.
double turned(double number, double way, const Range &range);
/// The whole number that a wheel in this place stands for.
int nearest(double number, const Range &range);

/// Counts the notches of a wheel that turns by parts of one: takes the whole ones out of the sum.
int takeNotches(int &sum, int angleDelta);

} // namespace ZelThumbWheelGeometry
