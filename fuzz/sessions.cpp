/// Whole sessions of the batch runner: directives, typed lines, events, everything that the system does with them.

#include <nlohmann/json.hpp>

#include "fuzz.h"
#include "memory_session.h"

namespace zerimo::fuzz {

namespace {

/// No file can be written or made there; programs are read from the samples.
Disk SamplesAlone() { return Disk::Confined("/there is no such folder", ZERIMO_SAMPLES); }

/// Each line of a transcript is JSON, and the last one is the end.
void CheckTranscript(const std::string& transcript) {
  std::istringstream lines(transcript);
  nlohmann::json event;
  for (std::string line; std::getline(lines, line);) event = nlohmann::json::parse(line);
  const std::string last = event.at("event");
  Require(last == "finished" || last == "ended" || last == "stopped");
}

}  // namespace

void Try(std::string_view input) {
  MemorySession session(SamplesAlone());
  const batch::Outcome outcome = session.Session().Run(input);
  if (outcome.How != batch::Ending::Refused) CheckTranscript(session.Transcript());
}

}  // namespace zerimo::fuzz
