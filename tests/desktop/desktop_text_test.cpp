#include "desktop/desktop_text.h"

#include <gtest/gtest.h>

#include <QKeyEvent>
#include <ostream>

#include "console/keys.h"

namespace zerimo {
namespace {

TEST(DesktopText, EveryByteSurvivesTheToolkit) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(code);
  EXPECT_EQ(ToSystemText(ToQString(bytes)), bytes);
}

TEST(DesktopText, WhatTheSystemDoesNotHaveBecomesAQuestionMark) {
  EXPECT_EQ(ToSystemText(QString::fromUtf8("\xE2\x82\xAC")), "?");
}

TEST(DesktopText, ACharacterOfTwoHalvesBecomesOneQuestionMark) {
  EXPECT_EQ(ToSystemText(QString::fromUtf8("a\xF0\x9F\x90\xA2z")), "a?z");
}

TEST(DesktopText, TypographicCharactersBecomeTheirPlainTwins) {
  EXPECT_EQ(ToSystemText(QString::fromUtf16(u"\u201Ea\u201C \u2018b\u2019 1\u20132 \u2212 3\u202F4")),
            "\"a\" 'b' 1-2 - 3 4");
}

TEST(DesktopText, LineEndsOfEveryKindBecomeTheToolkits) {
  EXPECT_EQ(WithLineEnds("a\r\nb\rc\nd\r\re"), "a\nb\nc\nd\n\ne");
}

TEST(DesktopText, TheToolkitsLineEndsBecomePairs) { EXPECT_EQ(WithCarriageReturns("a\nb\n"), "a\r\nb\r\n"); }

TEST(DesktopText, ColoursAreRedThenGreenThenBlue) { EXPECT_EQ(ToQColor(0x0A141E), QColor(30, 20, 10)); }

TEST(DesktopText, AFrameIsWhiteOnDarkColoursAndBlackOnLightOnes) {
  for (const QRgb dark : {qRgb(0, 0, 0), qRgb(0, 0, 255), qRgb(255, 0, 0), qRgb(128, 0, 128)}) {
    EXPECT_EQ(ReadableOn(dark), QColor(Qt::white));
  }
  for (const QRgb light : {qRgb(255, 255, 255), qRgb(255, 255, 0), qRgb(0, 255, 255), qRgb(0, 255, 0)}) {
    EXPECT_EQ(ReadableOn(light), QColor(Qt::black));
  }
}

TEST(DesktopText, FontsAreSizedForNinetySixDotsAnInch) {
  EXPECT_EQ(ControlFont(15.75).pixelSize(), 21);
  EXPECT_EQ(ControlFont(14.25).pixelSize(), 19);
  EXPECT_EQ(ControlFont(12).pixelSize(), 16);
  EXPECT_EQ(ControlFont(14).pixelSize(), 19);
}

TEST(DesktopText, NoFontIsTooSmallToRead) { EXPECT_EQ(ControlFont(8.25).pixelSize(), 13); }

struct KeyCase {
  int Toolkit;
  int System;
};

void PrintTo(const KeyCase& one, std::ostream* out) { *out << one.Toolkit << " gives " << one.System; }

class KnownKeys : public testing::TestWithParam<KeyCase> {};

TEST_P(KnownKeys, HaveTheCodesOfTheSystem) {
  const QKeyEvent event(QEvent::KeyPress, GetParam().Toolkit, Qt::ShiftModifier);
  EXPECT_EQ(KeyCode(event), GetParam().System);
}

INSTANTIATE_TEST_SUITE_P(Table, KnownKeys,
                         testing::Values(KeyCase{Qt::Key_Return, 13}, KeyCase{Qt::Key_Enter, 13},
                                         KeyCase{Qt::Key_Escape, 27}, KeyCase{Qt::Key_Up, 38},
                                         KeyCase{Qt::Key_Down, 40}, KeyCase{Qt::Key_F1, 112}, KeyCase{Qt::Key_F2, 113},
                                         KeyCase{Qt::Key_F3, 114}, KeyCase{Qt::Key_F4, 115}, KeyCase{Qt::Key_F9, 120},
                                         KeyCase{Qt::Key_F10, 121}, KeyCase{Qt::Key_F11, 122},
                                         KeyCase{Qt::Key_F12, 123}, KeyCase{Qt::Key_A, 0}, KeyCase{Qt::Key_F13, 0}));

}  // namespace
}  // namespace zerimo
