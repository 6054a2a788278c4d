#include "pixels/picture_check.h"

#include <cstdint>
#include <cstdlib>

namespace zerimo {

namespace {

/// Walks through bytes. Past the end everything reads as zero, and `IsInside` is false from then on.
class ByteWalk {
 public:
  explicit ByteWalk(std::string_view content) : bytes_(content) {}

  bool IsInside() const noexcept { return position_ <= Size(); }
  bool IsAtEnd() const noexcept { return position_ >= Size(); }
  void Skip(std::int64_t count) noexcept { position_ += count; }
  void GoTo(std::int64_t place) noexcept { position_ = place; }
  std::int64_t Size() const noexcept { return static_cast<std::int64_t>(bytes_.size()); }

  unsigned Byte() noexcept {
    const unsigned value =
        position_ < Size() ? static_cast<unsigned char>(bytes_[static_cast<std::size_t>(position_)]) : 0U;
    ++position_;
    return value;
  }
  unsigned BigEndian16() noexcept {
    const unsigned high = Byte();
    return high << 8U | Byte();
  }
  std::int64_t BigEndian32() noexcept {
    const unsigned high = BigEndian16();
    return std::int64_t{high} << 16 | BigEndian16();
  }
  unsigned LittleEndian16() noexcept {
    const unsigned low = Byte();
    return low | Byte() << 8U;
  }
  std::int64_t LittleEndian32() noexcept {
    const unsigned low = LittleEndian16();
    return static_cast<std::int32_t>(low | LittleEndian16() << 16U);
  }

 private:
  std::string_view bytes_;
  std::int64_t position_ = 0;
};

/// More than any picture that is read has; sizes computed from these stay within 64 bits.
constexpr std::int64_t WidestBitmap = std::int64_t{1} << 26;
constexpr std::int64_t MostBitsPerPixel = 64;

struct BitmapHeader {
  std::int64_t PixelsAt;
  std::int64_t Width;
  std::int64_t Height;
  std::int64_t BitsPerPixel;
  /// 1 and 2 are the run-length codes.
  std::int64_t Compression;
  std::int64_t CodedSize;
};

BitmapHeader ReadBitmapHeader(ByteWalk walk) noexcept {
  BitmapHeader header{};
  walk.GoTo(10);
  header.PixelsAt = walk.LittleEndian32();
  const bool isOldest = walk.LittleEndian32() == 12;
  header.Width = isOldest ? walk.LittleEndian16() : walk.LittleEndian32();
  header.Height = isOldest ? walk.LittleEndian16() : walk.LittleEndian32();
  walk.Skip(2);
  header.BitsPerPixel = walk.LittleEndian16();
  if (isOldest) return header;
  header.Compression = walk.LittleEndian32();
  header.CodedSize = walk.LittleEndian32();
  return header;
}

/// Run-length data of unstated size ends with the mark of the bitmap's end.
bool IsWholeCoding(const BitmapHeader& header, ByteWalk walk) noexcept {
  if (header.CodedSize < 0) return false;
  if (header.CodedSize > 0) return header.PixelsAt + header.CodedSize <= walk.Size();
  walk.GoTo(walk.Size() - 2);
  return walk.BigEndian16() == 1;
}

bool IsWholeBitmap(const ByteWalk& walk) {
  const BitmapHeader header = ReadBitmapHeader(walk);
  if (header.PixelsAt < 0) return false;
  if (header.Compression == 1 || header.Compression == 2) return IsWholeCoding(header, walk);
  const bool isPossible = header.Width >= 0 && header.Width <= WidestBitmap && header.BitsPerPixel <= MostBitsPerPixel;
  if (!isPossible) return false;
  const std::int64_t rowBits = header.Width * header.BitsPerPixel;
  const std::int64_t rowBytes = (rowBits + 31) / 32 * 4;
  // The padding bytes of the last row may be missing.
  return header.PixelsAt + rowBytes * (std::abs(header.Height) - 1) + (rowBits + 7) / 8 <= walk.Size();
}

/// Skips the entropy-coded data after a scan's header, up to the marker that ends it.
void SkipScan(ByteWalk& walk) noexcept {
  while (!walk.IsAtEnd()) {
    if (walk.Byte() != 0xFF) continue;
    const unsigned code = walk.Byte();
    const bool isData = code == 0 || (code >= 0xD0 && code <= 0xD7);
    if (isData) continue;
    walk.Skip(code == 0xFF ? -1 : -2);
    if (code != 0xFF) return;
  }
}

bool IsWholeJpeg(ByteWalk walk) noexcept {
  constexpr unsigned endOfImage = 0xD9;
  constexpr unsigned startOfScan = 0xDA;
  walk.Skip(2);
  while (!walk.IsAtEnd()) {
    if (walk.Byte() != 0xFF) continue;
    const unsigned code = walk.Byte();
    if (code == endOfImage) return walk.IsInside();
    if (code == 0xFF) walk.Skip(-1);
    if (code == 0 || code == 0xFF) continue;
    const unsigned length = walk.BigEndian16();
    walk.Skip(static_cast<std::int64_t>(length) - 2);
    if (code == startOfScan) SkipScan(walk);
  }
  return false;
}

void SkipGifBlocks(ByteWalk& walk) noexcept {
  for (unsigned length = walk.Byte(); length != 0; length = walk.Byte()) walk.Skip(length);
}

void SkipGifColours(ByteWalk& walk, unsigned flags) noexcept {
  if ((flags & 0x80U) != 0) walk.Skip(3 * (std::int64_t{2} << (flags & 7U)));
}

/// Complete to the end of its first picture, the only one that is shown.
bool IsWholeGif(ByteWalk walk) noexcept {
  constexpr unsigned extension = 0x21;
  constexpr unsigned picture = 0x2C;
  walk.Skip(10);
  const unsigned flags = walk.Byte();
  walk.Skip(2);
  SkipGifColours(walk, flags);
  unsigned kind = walk.Byte();
  for (; kind == extension && walk.IsInside(); kind = walk.Byte()) {
    walk.Skip(1);
    SkipGifBlocks(walk);
  }
  if (kind != picture) return false;
  walk.Skip(8);
  SkipGifColours(walk, walk.Byte());
  walk.Skip(1);
  SkipGifBlocks(walk);
  return walk.IsInside();
}

bool IsWholePng(ByteWalk walk) noexcept {
  constexpr std::int64_t endOfImage = 0x49454E44;
  walk.Skip(8);
  while (!walk.IsAtEnd()) {
    const std::int64_t length = walk.BigEndian32();
    const bool isLast = walk.BigEndian32() == endOfImage;
    walk.Skip(length + 4);
    if (isLast) return walk.IsInside();
  }
  return false;
}

}  // namespace

bool IsWholePicture(std::string_view content, std::string_view format) {
  const ByteWalk walk(content);
  if (format == "bmp") return IsWholeBitmap(walk);
  if (format == "jpeg") return IsWholeJpeg(walk);
  if (format == "gif") return IsWholeGif(walk);
  if (format == "png") return IsWholePng(walk);
  return true;
}

}  // namespace zerimo
