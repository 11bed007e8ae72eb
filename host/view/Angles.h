#pragma once

#include <numbers>

namespace vantrix::view {

constexpr double turn = 2.0 * std::numbers::pi;

constexpr double radians(double degrees)
{
    return degrees / 360.0 * turn;
}

} // namespace vantrix::view
