#pragma once

#include <map>
#include <string>

/// The words in the claims of the pages and what they mean.
namespace zerimo::help {

/// Without the blanks at its end, which a page does not show.
std::string TrimmedRight(std::string text);

/// "4 line, 1 circle" for people.
std::string ToText(const std::map<std::string, int>& drawn);

/// Whether a number of the system is the one that a page claims; there a negative number is in brackets.
bool IsNear(double value, const std::string& told);

/// The colour value by a name of the status line; -1 if there is none.
int ColourCalled(const std::string& name);

/// The control behind a thing that one can see; empty if there is none.
std::string ControlCalled(const std::string& thing);

/// The property of the surface behind a number such as "line width".
std::string NumberPropertyOf(const std::string& number);

}  // namespace zerimo::help
