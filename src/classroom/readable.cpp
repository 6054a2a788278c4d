#include "classroom/readable.h"

#include <QList>

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

}  // namespace

QString NameOf(const std::filesystem::path& path) {
  const std::u8string name = path.u8string();
  return QString::fromUtf8(reinterpret_cast<const char*>(name.data()), static_cast<qsizetype>(name.size()));
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
