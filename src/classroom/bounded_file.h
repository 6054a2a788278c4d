#pragma once

#include <filesystem>
#include <fstream>
#include <streambuf>

namespace zerimo::classroom {

/// Writes to a file up to a number of bytes and swallows the rest. Each line is on the disk as soon as it ends, so that
/// what a dying process has said remains.
class BoundedFile final : public std::streambuf {
 public:
  BoundedFile(const std::filesystem::path& file, std::streamsize mostBytes) : left_(mostBytes) {
    failed_ = output_.open(file, std::ios::out | std::ios::binary | std::ios::trunc) == nullptr;
  }

  /// Whether bytes that should have been kept could not be written.
  bool HasFailed() const { return failed_; }

 protected:
  std::streamsize xsputn(const char* bytes, std::streamsize count) override {
    const std::streamsize kept = count < left_ ? count : left_;
    failed_ = output_.sputn(bytes, kept) != kept || failed_;
    left_ -= kept;
    if (count > 0 && bytes[count - 1] == '\n') failed_ = output_.pubsync() != 0 || failed_;
    return count;
  }

  int_type overflow(int_type byte) override {
    const char character = traits_type::to_char_type(byte);
    if (byte != traits_type::eof()) xsputn(&character, 1);
    return traits_type::not_eof(byte);
  }

 private:
  std::filebuf output_;
  std::streamsize left_;
  bool failed_ = false;
};

}  // namespace zerimo::classroom
