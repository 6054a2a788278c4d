#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zerimo::reference {

/// The control string: the dotted path of the active procedures with the line reached in each, such as
/// ".#TEMP$7- 5.BOX- 3". "." means that nothing runs. It is the only call stack.
class ControlPath {
 public:
  const std::string& CtrlStr() const { return path_; }

  /// The only way to change the path.
  void SetCtrlStr(std::string text) { path_ = std::move(text); }

  /// Name of the procedure whose locals are being made or removed.
  std::string CurProcName;

  /// The name of the procedure that is running: the text between the last "." and the last "-", trimmed; empty for
  /// ".". Fails (invalid argument) if there is no such stretch.
  std::string CurrentProcedureName() const;

 private:
  std::string path_ = ".";
};

/// The text up to and including its last "-"; no "-" gives the empty text.
std::string FirstPartExtractor(std::string_view text);

/// The number after the last "-", rounded; fails (overflow) beyond 16 bits.
std::int16_t EndValExtractor(std::string_view text);

/// The trimmed characters before the first blank, or all of them.
std::string GetProcNameFromProcedureCall(std::string_view procedureCall);

/// The path without its last component; "." if the text holds one "." or none.
std::string CurrentProcedureRemover(std::string_view path);

/// Drops the last component if it is the same text as the one before it, so that a recursion does not lengthen the
/// path. The test is on the text: " 5" and "5" differ. Shortens its argument in place and returns it.
std::string RecursionChecker(std::string& path);

/// The position of the last ".". Nothing calls it.
int RightMostDotPos(std::string_view text);

/// The text before the last "-", trimmed, then "-", then the number after it plus 1. Nothing calls it.
std::string ForwardCtrlString(std::string_view text);

}  // namespace zerimo::reference
