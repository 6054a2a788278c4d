#include "classroom/readable.h"

#include <gtest/gtest.h>

namespace zerimo::classroom {
namespace {

TEST(Readable, VisibleTextStaysAsItIs) {
  EXPECT_EQ(Readable("ANNA <b> & \"c\" \\ '"), "ANNA <b> & \"c\" \\ '");
  EXPECT_EQ(Readable(QStringLiteral("\u00c4\u20ac\u4e2d\U0001F600")), QStringLiteral("\u00c4\u20ac\u4e2d\U0001F600"));
}

TEST(Readable, WhatCanNotBeSeenIsNamed) {
  EXPECT_EQ(Readable("a\nb\tc"), "a[U+000A]b[U+0009]c");
  EXPECT_EQ(Readable(QString(QChar(0))), "[U+0000]");
  EXPECT_EQ(Readable(QStringLiteral("\u202e\u2066\u200b\u2028\ufeff\u00ad")),
            "[U+202E][U+2066][U+200B][U+2028][U+FEFF][U+00AD]");
  EXPECT_EQ(Readable(QString(QChar(0xD800))), QString(QChar(0xFFFD)));
}

TEST(Readable, BytesOfANameThatAreNoTextStandAsReplacements) {
  EXPECT_EQ(ReadableName("/folder/a\xFFz.ZRM"), QStringLiteral("a\ufffdFFz.ZRM"));
  EXPECT_NE(ReadableName("/folder/a\xFFz.ZRM"), ReadableName("/folder/a\xFEz.ZRM"));
}

TEST(Readable, AByteOrderMarkIsPartOfAName) {
  EXPECT_EQ(ReadableName("/folder/\xEF\xBB\xBFz.ZRM"), QStringLiteral("[U+FEFF]z.ZRM"));
  EXPECT_EQ(WholeText("\xEF\xBB\xBFz"), QStringLiteral("\ufeffz"));
  EXPECT_EQ(WholeText(""), QString());
}

TEST(Readable, LinesHaveOneKindOfEnd) {
  EXPECT_EQ(ReadableLines("a\r\nb\rc\nd\te"), "a\nb\nc\nd\te");
  EXPECT_EQ(ReadableLines(QStringLiteral("a\x1b\u0085\u009bz")), QStringLiteral("a\ufffd\ufffd\ufffdz"));
}

}  // namespace
}  // namespace zerimo::classroom
