#include "classroom/readable.h"

#include <QList>
#include <string>
#include <string_view>

#include "files/unicode_text.h"

namespace zerimo::classroom {

namespace {

bool IsSeen(char32_t character) {
  switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
      return false;
    default:
      return true;
  }
}

QString CodeOf(char32_t character) {
  return QStringLiteral("[U+%1]").arg(uint{character}, 4, 16, QLatin1Char('0')).toUpper();
}

std::string HexOf(char byte) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  const auto code = static_cast<unsigned char>(byte);
  return {digits[code >> 4U], digits[code & 15U]};
}

}  // namespace

QString WholeText(const std::string& utf8) { return QString::fromStdString('.' + utf8).mid(1); }

QString NameOf(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  const std::string_view bytes(reinterpret_cast<const char*>(name.data()), name.size());
  std::string text;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t begin = at;
    const char32_t character = NextCharacter(bytes, at);
    AppendUtf8(text, character);
    if (character == ReplacementCharacter && at == begin + 1) text += HexOf(bytes[begin]);
  }
  return WholeText(text);
}

QString Readable(const QString& text) {
  QString readable;
  for (const uint code : text.toUcs4()) {
    const char32_t character = code;
    readable += IsSeen(character) ? QString::fromUcs4(&character, 1) : CodeOf(character);
  }
  return readable;
}

QString ReadableLines(QString text) {
  text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  text.replace(u'\r', u'\n');
  for (QChar& character : text) {
    const bool isLayout = character == u'\n' || character == u'\t';
    if (!isLayout && !IsSeen(character.unicode())) character = QChar::ReplacementCharacter;
  }
  return text;
}

}  // namespace zerimo::classroom
