#include "batch/settings.h"

#include <algorithm>

#include "base/text.h"

namespace zerimo::batch {

namespace {

std::string EndingOf(std::string_view file) {
  return file.size() > 4 ? UpperCase(file.substr(file.size() - 4)) : std::string();
}

}  // namespace

bool IsPictureName(std::string_view file) {
  static constexpr std::string_view endings[] = {".PNG", ".BMP", ".JPG", ".SVG"};
  return std::ranges::find(endings, EndingOf(file)) != std::end(endings);
}

bool IsVectorPictureName(std::string_view file) { return EndingOf(file) == ".SVG"; }

}  // namespace zerimo::batch
