#pragma once

#include <map>
#include <string>

/// The words of the pages' claims and what they stand for.
namespace zerimo::help {

/// Without the blanks at its end, which a page does not show.
std::string TrimmedRight(std::string text);

/// "4 line, 1 circle" for people.
std::string ToText(const std::map<std::string, int>& drawn);

/// Whether a number of the system is the one a page tells; a minus number stands in brackets there.
bool IsNear(double value, const std::string& told);

/// The colour value by a name of the status line; -1 if there is none.
int ColourCalled(const std::string& name);

/// The control behind a thing that one can see; empty if there is none.
std::string ControlCalled(const std::string& thing);

/// The property of the surface behind a number such as "line width".
std::string NumberPropertyOf(const std::string& number);

}  // namespace zerimo::help
