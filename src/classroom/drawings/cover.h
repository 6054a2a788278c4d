#pragma once

#include <vector>

#include "classroom/drawings/drawing.h"

namespace zerimo::classroom {

/// The parts of a line that no other line covers. A line covers what is no farther from it than the tolerance, if the
/// two are nearly parallel; in which direction they were drawn, and in how many parts, does not matter. Parts no longer
/// than twice the tolerance count as covered. Surface units.
std::vector<Line> Uncovered(const Line& line, const std::vector<Line>& others, double tolerance);

/// The parts of all lines that others do not cover.
std::vector<Line> Uncovered(const std::vector<Line>& lines, const std::vector<Line>& others, double tolerance);

double LengthOf(const std::vector<Line>& lines);

}  // namespace zerimo::classroom
