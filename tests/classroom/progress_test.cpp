#include "classroom/progress.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>

namespace zerimo::classroom {
namespace {

TEST(Progress, IsALineForEachProgramWhereThereIsNoTerminal) {
  std::ostringstream output;
  Progress progress(output, false);
  progress.Tell(1, 2, "ANNA.ZRM ended");
  progress.Tell(2, 2, "BEN.ZRM ended");
  progress.Close("done");
  EXPECT_EQ(output.str(), "1/2 ANNA.ZRM ended\n2/2 BEN.ZRM ended\nzerimo-batch: done\n");
}

TEST(Progress, IsOneLineOnATerminal) {
  std::ostringstream output;
  Progress progress(output, true);
  progress.Tell(1, 2, QString(200, u'A'));
  progress.Tell(2, 2, "B");
  EXPECT_EQ(output.str(), "\r1/2 " + std::string(75, 'A') + "\r2/2 B" + std::string(74, ' '));
  progress.Close("done");
  EXPECT_TRUE(output.str().ends_with("\rzerimo-batch: done\n"));
}

TEST(Progress, ALineOfATerminalIsAsWideAsItLooks) {
  std::ostringstream output;
  Progress(output, true).Tell(1, 1, QString(100, QChar(0x6F22)));
  EXPECT_EQ(QString::fromStdString(output.str()), "\r1/1 " + QString(37, QChar(0x6F22)) + u' ');
  output.str({});
  Progress(output, true).Tell(1, 1, QStringLiteral("e\u0301"));
  EXPECT_EQ(QString::fromStdString(output.str()), QStringLiteral("\r1/1 e\u0301") + QString(74, u' '));
}

TEST(Progress, NothingInANameReachesTheTerminalAsACommand) {
  for (const bool terminal : {false, true}) {
    std::ostringstream output;
    Progress(output, terminal).Tell(1, 1, QStringLiteral("a\x1b[31m\r\n\u009b\u202eb"));
    const std::string text = output.str();
    EXPECT_NE(text.find("a[U+001B][31m[U+000D][U+000A][U+009B][U+202E]b"), std::string::npos) << text;
    EXPECT_EQ(std::ranges::count(text, '\x1b'), 0);
    EXPECT_EQ(std::ranges::count(text, '\n'), terminal ? 0 : 1);
  }
}

}  // namespace
}  // namespace zerimo::classroom
