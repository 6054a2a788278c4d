#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "session_names.h"
#include "support/batch_program.h"

namespace zerimo {
namespace {

namespace fs = std::filesystem;

const fs::path SessionFolder = fs::path(ZERIMO_SOURCE_DIR) / "tests" / "sessions";

std::vector<std::string> LinesOf(const std::string& bytes) {
  std::vector<std::string> lines;
  std::istringstream stream(bytes);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

/// The options that a session asks for in its comments.
std::string OptionsOf(const std::string& session) {
  constexpr std::string_view mark = "@ options: ";
  for (const std::string& line : LinesOf(session)) {
    if (line.starts_with(mark)) return line.substr(mark.size()) + " ";
  }
  return {};
}

/// The exit status that belongs to the last event.
int StatusOf(const std::string& lastEvent) {
  if (lastEvent.find(R"("by":"failure")") != std::string::npos) return 2;
  return lastEvent.starts_with(R"({"event":"stopped")") ? 3 : 0;
}

void ExpectSameLines(const std::vector<std::string>& expected, const std::vector<std::string>& actual) {
  for (std::size_t line = 0; line < std::max(expected.size(), actual.size()); ++line) {
    const std::string wanted = line < expected.size() ? expected[line] : "(nothing)";
    const std::string found = line < actual.size() ? actual[line] : "(nothing)";
    ASSERT_EQ(wanted, found) << "line " << line + 1 << " of the transcript";
  }
}

class RecordedSession : public testing::TestWithParam<const char*> {
 protected:
  fs::path Beside(const char* ending) const { return SessionFolder / (std::string(GetParam()) + ending); }

  /// The files that must be in the folder afterwards.
  void ExpectFiles() const {
    if (!fs::exists(Beside(".after"))) return;
    for (const fs::directory_entry& file : fs::directory_iterator(Beside(".after"))) {
      EXPECT_EQ(BytesOf(file.path()), program.Read(file.path().filename().string())) << file.path().filename();
    }
  }

  BatchProgram program{ZERIMO_BATCH};
};

TEST_P(RecordedSession, HasItsTranscript) {
  const std::string session = BytesOf(Beside(".session"));
  const std::vector<std::string> expected = LinesOf(BytesOf(Beside(".expected")));
  ASSERT_FALSE(expected.empty());
  if (fs::exists(Beside(".files"))) fs::copy(Beside(".files"), program.Folder(), fs::copy_options::recursive);
  const ProgramRun run = program.Run(OptionsOf(session) + "--app-folder . --transcript -", session);
  ExpectSameLines(expected, LinesOf(run.Output));
  EXPECT_EQ(run.Status, StatusOf(expected.back())) << run.Errors;
  ExpectFiles();
}

INSTANTIATE_TEST_SUITE_P(All, RecordedSession, testing::ValuesIn(SessionNames),
                         [](const testing::TestParamInfo<const char*>& session) { return std::string(session.param); });

}  // namespace
}  // namespace zerimo
