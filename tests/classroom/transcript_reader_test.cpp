#include "classroom/transcript_reader.h"

#include <gtest/gtest.h>

namespace zerimo::classroom {
namespace {

QByteArray Line(const QString& item) {
  return "{\"event\":\"list\",\"control\":\"List4\",\"op\":\"add\",\"item\":\"" + item.toUtf8() + "\"}\n";
}

QByteArray Box(const QString& text) {
  return "{\"event\":\"box\",\"text\":\"" + text.toUtf8() + "\",\"style\":4,\"title\":\"T\",\"answer\":\"No\"}\n";
}

TEST(TranscriptReader, TakesLinesAndBoxes) {
  const Said said = SaidIn("{\"event\":\"typed\",\"row\":0,\"text\":\"A\"}\n" + Line("?A") + Box("SURE") +
                           "{\"event\":\"input\",\"prompt\":\"P\",\"title\":\"T\",\"default\":\"D\",\"answer\":\"X\"}\n"
                           "{\"event\":\"dialog\",\"kind\":\"open\",\"answer\":\"F\"}\n" +
                           Line("?B") + "{\"event\":\"finished\"}\n");
  EXPECT_EQ(said.Lines, (QStringList{"?A", "?B"}));
  EXPECT_FALSE(said.LinesAreCut);
  ASSERT_EQ(said.Boxes.size(), 3U);
  EXPECT_EQ(said.Boxes[0].Kind, "box");
  EXPECT_EQ(said.Boxes[0].Text, "SURE");
  EXPECT_EQ(said.Boxes[0].Title, "T");
  EXPECT_EQ(said.Boxes[0].Buttons, "Yes, No");
  EXPECT_EQ(said.Boxes[0].Answer, "No");
  EXPECT_EQ(said.Boxes[1].Kind, "input");
  EXPECT_EQ(said.Boxes[1].Text, "P");
  EXPECT_EQ(said.Boxes[1].Answer, "X");
  EXPECT_EQ(said.Boxes[2].Kind, "open");
  EXPECT_EQ(said.Boxes[2].Answer, "F");
  EXPECT_FALSE(said.BoxesAreCut);
}

TEST(TranscriptReader, TheEchoOfATypedLineIsNotPrinted) {
  const QByteArray typed = "{\"event\":\"typed\",\"row\":0,\"text\":\"print  3 + 4\"}\n";
  const QByteArray blank = "{\"event\":\"typed\",\"row\":0,\"text\":\"\"}\n";
  const Said said = SaidIn(typed + Line("?PRINT 3+4") + Line("? 7") + blank + Box("SURE") + Line("?PRINT 3+4"));
  EXPECT_EQ(said.Printed, (QStringList{"? 7", "?PRINT 3+4"}));
}

TEST(TranscriptReader, CountsLines) {
  QByteArray full;
  for (qsizetype i = 0; i < MostLines; ++i) full += Line("?");
  EXPECT_FALSE(SaidIn(full).LinesAreCut);
  const Said more = SaidIn(full + Line("?MORE"));
  EXPECT_TRUE(more.LinesAreCut);
  EXPECT_EQ(more.Lines.size(), MostLines);
}

TEST(TranscriptReader, CountsBoxes) {
  QByteArray full;
  for (qsizetype i = 0; i < MostBoxes; ++i) full += Box("A");
  EXPECT_FALSE(SaidIn(full).BoxesAreCut);
  const Said more = SaidIn(full + Box("MORE"));
  EXPECT_TRUE(more.BoxesAreCut);
  EXPECT_EQ(static_cast<qsizetype>(more.Boxes.size()), MostBoxes);
}

TEST(TranscriptReader, CountsCharacters) {
  const QString half(MostCharacters / 2 + 1, u'A');
  const Said lines = SaidIn(Line(half) + Line(half) + Line(half));
  EXPECT_TRUE(lines.LinesAreCut);
  EXPECT_EQ(lines.Lines.join(QString()).size(), MostCharacters);
  const Said boxes = SaidIn(Box(half) + Box(half) + Box(half));
  EXPECT_TRUE(boxes.BoxesAreCut);
  EXPECT_EQ(boxes.Boxes.size(), 2U);
}

TEST(TranscriptReader, ABrokenTranscriptTellsWhatCanBeRead) {
  EXPECT_EQ(SaidIn("").Lines, QStringList());
  EXPECT_FALSE(SaidIn("").LinesAreCut);
  const Said said = SaidIn("no json\n[]\n{}\n" + Line("?A") + Line("?B").chopped(5));
  EXPECT_EQ(said.Lines, QStringList{"?A"});
  EXPECT_TRUE(said.LinesAreCut);
  EXPECT_TRUE(said.BoxesAreCut);
}

}  // namespace
}  // namespace zerimo::classroom
