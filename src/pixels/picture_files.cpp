#include "pixels/picture_files.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace zerimo {

namespace {

struct WritableFormat {
  std::string_view Ending;
  std::string_view Name;
};
constexpr std::array<WritableFormat, 4> WritableFormats{
    {{".bmp", "bmp"}, {".png", "png"}, {".jpg", "jpeg"}, {".jpeg", "jpeg"}}};

}  // namespace

void Require(bool isSo, FailureKind otherwise) {
  if (!isSo) throw Failure(otherwise);
}

std::string EndingOf(const std::filesystem::path& file) {
  std::string ending = file.extension().string();
  std::transform(ending.begin(), ending.end(), ending.begin(),
                 [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
  return ending;
}

std::string_view FormatToWrite(const std::filesystem::path& file) {
  const auto* format = std::ranges::find(WritableFormats, EndingOf(file), &WritableFormat::Ending);
  Require(format != WritableFormats.end(), FailureKind::InvalidArgument);
  return format->Name;
}

}  // namespace zerimo
