#pragma once

#include <map>
#include <string>

/// The words in the claims of the pages and what they mean.
namespace zerimo::help {

/// The text without the blanks at its end, which a page does not show.
std::string TrimmedRight(std::string text);

/// "4 line, 1 circle" for people.
std::string ToText(const std::map<std::string, int>& drawn);

/// Whether a number of the system is the one that a page claims; pages write a negative number in brackets.
bool IsNear(double value, const std::string& told);

/// The colour value by a name of the status line; -1 if there is none.
int ColourCalled(const std::string& name);

/// The name of the control for something visible; empty if there is none.
std::string ControlCalled(const std::string& thing);

/// The property of the surface for a number such as "line width".
std::string NumberPropertyOf(const std::string& number);

}  // namespace zerimo::help
