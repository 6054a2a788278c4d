#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <string_view>

#include "base/services.h"
#include "batch/json_line.h"
#include "graphics/surface.h"

namespace zerimo::batch {

/// Records what happens: for programs as a transcript with one JSON object a line, for people as plain lines.
class Journal {
 public:
  /// Either stream may be missing.
  Journal(std::ostream* forPrograms, std::ostream* forPeople) : transcript_(forPrograms), people_(forPeople) {}

  void Typed(int row, const std::string& text);
  void Box(const std::string& text, int style, const std::string& title, Answer answer);
  void Input(const std::string& prompt, const std::string& title, const std::string& defaultAnswer,
             const std::string& answer);
  void Dialog(const char* kind, const std::string& answer);
  void ListAdd(const std::string& control, const std::string& item);
  void ListClear(const std::string& control);
  void Caption(const std::string& text);
  void Sleep(std::int32_t milliseconds);
  void Beep();
  void Ended(const std::string& by);
  void EndedByFailure(const std::string& words);
  void Stopped(const std::string& by);
  void Finished();

  /// Limits what is written from now on to that many bytes. The event that passes the limit is still written, and
  /// throws `Stopped`; what comes after it is not counted.
  void Limit(std::uintmax_t bytes) { left_ = bytes; }

  bool HasTranscript() const noexcept { return transcript_ != nullptr; }
  void Write(const JsonLine& line);
  /// Flushes both streams, so that a reader never has to wait for what has already happened.
  void Flush();

 private:
  void Tell(const std::string& text);
  void Put(std::ostream& stream, std::string_view line);

  std::ostream* transcript_;
  std::ostream* people_;
  /// Bytes that may still be written, or nothing where there is no limit.
  std::optional<std::uintmax_t> left_;
};

/// Writes each operation of the surface that it listens to into the journal.
class SurfaceTrace final : public SurfaceRecorder {
 public:
  explicit SurfaceTrace(Journal& journal) : journal_(journal) {}

  void Record(const Surface& surface, const SurfaceOperation& operation) override;

 private:
  Journal& journal_;
};

}  // namespace zerimo::batch
