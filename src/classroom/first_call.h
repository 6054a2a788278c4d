#pragma once

#include <string>
#include <string_view>

namespace zerimo::classroom {

/// The procedure that starts a program for which there is no session.
struct FirstCall {
  /// Empty if there is none to call.
  std::string Procedure;
  /// Why there is none, or empty.
  std::string WhyNone;
};

/// The procedure of the file's name; otherwise the last one that no other of the program's procedures calls. One that
/// needs inputs is none. `name` is the file's name without its ending.
FirstCall FirstCallOf(std::string_view programText, std::string_view name);

}  // namespace zerimo::classroom
