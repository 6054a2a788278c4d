#include "files/program_text.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/numbers.h"

namespace zerimo {

namespace {

constexpr char CarriageReturn = '\r';

bool IsKept(char character) noexcept { return character >= 32 && character <= 126; }

/// Adds the kept characters of a piece to the end of a line; stale text in it stays before them. Returns whether
/// there were any.
bool AppendToLine(Store& store, int number, std::string_view piece) {
  std::string kept;
  std::copy_if(piece.begin(), piece.end(), std::back_inserter(kept), IsKept);
  if (kept.empty()) return false;
  store.SetLine(number, store.Line(number) + kept);
  return true;
}

}  // namespace

void FillStore(Store& store, std::string_view text, std::int16_t& number) {
  bool lineJustEnded = text.substr(0, 1) == "\r";
  while (!text.empty()) {
    const auto end = text.find(CarriageReturn);
    if (AppendToLine(store, number, text.substr(0, end))) lineJustEnded = false;
    if (end == std::string_view::npos) return;
    if (!lineJustEnded) number = AddInt16(number, 1);
    lineJustEnded = true;
    text.remove_prefix(end + 1);
  }
}

}  // namespace zerimo
