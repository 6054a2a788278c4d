#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "batch/batch_session.h"
#include "graphics/canvas.h"

namespace zerimo::batch {

/// One session with no pixels, run in memory.
struct InMemorySession {
  explicit InMemorySession(const Settings& settings = {}, PictureWriter writer = {})
      : Notes(&Transcript, &People), Session(settings, Pixels, Notes, std::move(writer)) {}

  /// Runs a session and returns the transcript's lines.
  std::vector<std::string> Run(const std::string& script) {
    Result = Session.Run(script);
    std::vector<std::string> lines;
    std::istringstream stream(Transcript.str());
    for (std::string line; std::getline(stream, line);) lines.push_back(line);
    return lines;
  }

  /// The last line of the transcript of a session.
  std::string LastOf(const std::string& script) {
    const std::vector<std::string> lines = Run(script);
    return lines.empty() ? std::string() : lines.back();
  }

  /// The lines of the transcript that begin with an event's name.
  std::vector<std::string> EventsOf(const std::string& event, const std::string& script) {
    std::vector<std::string> lines = Run(script);
    std::erase_if(lines, [&](const std::string& line) { return !line.starts_with("{\"event\":\"" + event + "\""); });
    return lines;
  }

  std::ostringstream Transcript;
  std::ostringstream People;
  EmptyCanvas Pixels;
  Journal Notes;
  BatchSession Session;
  Outcome Result;
};

}  // namespace zerimo::batch
