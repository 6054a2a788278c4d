#include "web/stb_picture_files.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "base/failure.h"
#include "files/disk_files.h"
#include "pixels/picture_check.h"
#include "web/stb.h"

namespace zerimo::web {

namespace {

std::string ContentOf(const std::filesystem::path& file) {
  std::error_code error;
  Require(std::filesystem::is_regular_file(file, error), FailureKind::FileNotFound);
  Require(std::filesystem::file_size(file, error) <= std::uintmax_t{MostPictureBytes}, FailureKind::InvalidPicture);
  const std::optional<std::string> content = BytesOf(file);
  Require(content.has_value(), FailureKind::FileAccess);
  return *content;
}

std::string_view FormatOf(std::string_view content) {
  if (content.starts_with("BM")) return "bmp";
  if (content.starts_with("GIF8")) return "gif";
  if (content.starts_with("\xFF\xD8")) return "jpeg";
  if (content.starts_with("\x89PNG")) return "png";
  return {};
}

struct FreeDecoded {
  void operator()(unsigned char* pixels) const { stbi_image_free(pixels); }
};

/// Red, green, blue and opacity, each a byte.
struct Decoded {
  int Columns = 0;
  int Rows = 0;
  std::unique_ptr<unsigned char, FreeDecoded> Bytes;
};

Decoded Decode(const std::string& content) {
  const auto* const bytes = reinterpret_cast<const unsigned char*>(content.data());
  const auto size = static_cast<int>(content.size());
  Decoded picture;
  int channels = 0;
  const bool isPicture = stbi_info_from_memory(bytes, size, &picture.Columns, &picture.Rows, &channels) != 0;
  Require(isPicture && std::int64_t{picture.Columns} * picture.Rows <= MostPicturePixels, FailureKind::InvalidPicture);
  picture.Bytes.reset(stbi_load_from_memory(bytes, size, &picture.Columns, &picture.Rows, &channels, 4));
  Require(picture.Bytes != nullptr, FailureKind::InvalidPicture);
  return picture;
}

Pixel Blended(const unsigned char* rgba, Pixel background) {
  Pixel result = 0xFF000000;
  for (int channel = 0; channel < 3; ++channel) {
    const unsigned shift = 16U - 8U * static_cast<unsigned>(channel);
    const unsigned below = background >> shift & 0xFFU;
    const unsigned mixed = (rgba[channel] * rgba[3] + below * (255U - rgba[3]) + 127U) / 255U;
    result |= mixed << shift;
  }
  return result;
}

void Append(void* content, void* bytes, int count) {
  static_cast<std::string*>(content)->append(static_cast<const char*>(bytes), static_cast<std::size_t>(count));
}

/// The content of a picture file.
std::string Encode(const std::vector<unsigned char>& rgb, int columns, int rows, std::string_view format) {
  std::string content;
  if (format == "bmp") stbi_write_bmp_to_func(Append, &content, columns, rows, 3, rgb.data());
  if (format == "png") stbi_write_png_to_func(Append, &content, columns, rows, 3, rgb.data(), 3 * columns);
  if (format == "jpeg") stbi_write_jpg_to_func(Append, &content, columns, rows, 3, rgb.data(), JpegQuality);
  return content;
}

}  // namespace

PixelBuffer StbPictureFiles::Read(const std::filesystem::path& file, int mostColumns, int mostRows, Pixel background) {
  const std::string content = ContentOf(file);
  const std::string_view format = FormatOf(content);
  Require(!format.empty() && IsWholePicture(content, format), FailureKind::InvalidPicture);
  const Decoded picture = Decode(content);
  PixelBuffer pixels(std::min(picture.Columns, mostColumns), std::min(picture.Rows, mostRows), background);
  for (int row = 0; row < pixels.Rows(); ++row) {
    const unsigned char* const bytes = picture.Bytes.get() + std::ptrdiff_t{4} * row * picture.Columns;
    for (int column = 0; column < pixels.Columns(); ++column) {
      pixels.Row(row)[column] = Blended(bytes + std::ptrdiff_t{4} * column, background);
    }
  }
  return pixels;
}

void StbPictureFiles::Write(const PixelBuffer& pixels, int columns, int rows, const std::filesystem::path& file) {
  columns = std::min(columns, pixels.Columns());
  rows = std::min(rows, pixels.Rows());
  std::vector<unsigned char> rgb;
  rgb.reserve(std::size_t{3} * static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows));
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      const Pixel pixel = pixels.Row(row)[column];
      for (const unsigned shift : {16U, 8U, 0U}) rgb.push_back(static_cast<unsigned char>(pixel >> shift));
    }
  }
  WriteBeside(file, Encode(rgb, columns, rows, FormatToWrite(file)));
}

}  // namespace zerimo::web
