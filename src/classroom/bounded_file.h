#pragma once

#include <filesystem>
#include <fstream>
#include <streambuf>

namespace zerimo::classroom {

/// Writes to a file up to a number of bytes and swallows the rest. Each line is on the disk when it ends, so that
/// a process that dies leaves what it has said.
class BoundedFile final : public std::streambuf {
 public:
  BoundedFile(const std::filesystem::path& file, std::streamsize mostBytes) : left(mostBytes) {
    failed = output.open(file, std::ios::out | std::ios::binary | std::ios::trunc) == nullptr;
  }

  /// Whether bytes that should have been kept could not be written.
  bool HasFailed() const { return failed; }

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize count) override {
    const std::streamsize kept = count < left ? count : left;
    failed = output.sputn(bytes, kept) != kept || failed;
    left -= kept;
    if (count > 0 && bytes[count - 1] == '\n') failed = output.pubsync() != 0 || failed;
    return count;
  }

  int_type overflow(int_type byte) override {
    const char character = traits_type::to_char_type(byte);
    if (byte != traits_type::eof()) xsputn(&character, 1);
    return traits_type::not_eof(byte);
  }

 private:
  std::filebuf output;
  std::streamsize left;
  bool failed = false;
};

}  // namespace zerimo::classroom
