#include "desktop/desktop_text.h"

#include <QKeyEvent>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

#include "console/keys.h"

namespace zerimo {

namespace {

constexpr int LastKnownCharacter = 0xFF;
constexpr int SmallestFont = 13;

struct PlainTwin {
  char16_t Typographic;
  char16_t Plain;
};

/// Characters that word processors and web pages use in place of plain ones.
constexpr std::array<PlainTwin, 9> PlainTwins = {{
    {u'\u2018', u'\''},
    {u'\u2019', u'\''},
    {u'\u201C', u'"'},
    {u'\u201D', u'"'},
    {u'\u201E', u'"'},
    {u'\u2010', u'-'},
    {u'\u2013', u'-'},
    {u'\u2212', u'-'},
    {u'\u202F', u' '},
}};

struct KeyPair {
  int Toolkit;
  int System;
};

constexpr std::array<KeyPair, 5> KnownKeys = {{
    {Qt::Key_Return, key::Enter},
    {Qt::Key_Enter, key::Enter},
    {Qt::Key_Escape, key::Esc},
    {Qt::Key_Up, key::Up},
    {Qt::Key_Down, key::Down},
}};

QChar KnownCharacter(QChar character) {
  if (character.unicode() <= LastKnownCharacter) return character;
  const auto twin = std::find_if(PlainTwins.begin(), PlainTwins.end(),
                                 [&](const PlainTwin& pair) { return pair.Typographic == character.unicode(); });
  return twin == PlainTwins.end() ? QChar(u'?') : QChar(twin->Plain);
}

/// The brightness of a colour as an eye sees it, from 0 to 1.
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace

QString ToQString(std::string_view text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

QString OnlyKnownCharacters(const QString& text) {
  QString known;
  known.reserve(text.size());
  for (const QChar character : text) {
    // A surrogate pair counts as one character.
    if (!character.isLowSurrogate()) known += KnownCharacter(character);
  }
  return known;
}

std::string ToSystemText(const QString& text) { return OnlyKnownCharacters(text).toLatin1().toStdString(); }

QString WithLineEnds(std::string_view text) {
  QString lines = ToQString(text);
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return lines;
}

std::string WithCarriageReturns(const QString& text) {
  QString lines = text;
  lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
  return ToSystemText(lines);
}

int KeyCode(const QKeyEvent& event) {
  const int toolkit = event.key();
  if (toolkit >= Qt::Key_F1 && toolkit <= Qt::Key_F12) return key::F1 + (toolkit - Qt::Key_F1);
  const auto* const found = std::ranges::find(KnownKeys, toolkit, &KeyPair::Toolkit);
  return found == KnownKeys.end() ? 0 : found->System;
}

QColor ToQColor(Colour colour) { return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF}; }

QColor ReadableOn(const QColor& background) { return qGray(background.rgb()) < 112 ? Qt::white : Qt::black; }

double Contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QFont ControlFont(double points, bool bold) {
  QFont font(QStringList{QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
  font.setPixelSize(std::max(SmallestFont, static_cast<int>(std::lround(points * 96 / 72))));
  font.setBold(bold);
  return font;
}

}  // namespace zerimo
