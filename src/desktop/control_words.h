#pragma once

#include <string_view>

namespace zerimo {

/// What a screen reader and the tool tips say of a control.
struct ControlWords {
  /// The control's name, that of an array without index.
  std::string_view Control;
  /// In an array, "%1" stands for the number from 1.
  const char* Name;
  const char* Description;
  /// Empty for controls that say enough themselves.
  const char* ToolTip;
};

/// The words of a control ("Text1(0)"), or nothing.
const ControlWords* FindControlWords(std::string_view control);

/// The index of an element of an array ("Text1(3)"), or 0.
int IndexInName(std::string_view control);

}  // namespace zerimo
