#pragma once

#include <string_view>

namespace zerimo {

/// What a screen reader and the tool tip say about a control.
struct ControlWords {
  /// The name of the control, or of its array without the index.
  std::string_view Control;
  /// For an array, "%1" stands for the element's number, counted from 1.
  const char* Name;
  const char* Description;
  /// Empty for controls that explain themselves.
  const char* ToolTip;
};

/// The words for a control ("Text1(0)"), or null.
const ControlWords* FindControlWords(std::string_view control);

/// The index in the name of an array's element ("Text1(3)"), or 0.
int IndexInName(std::string_view control);

}  // namespace zerimo
