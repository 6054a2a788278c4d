#include "classroom/language.h"

#include <QRegularExpression>

#include "classroom/words.h"

namespace zerimo::classroom {

QString Language::Of(const Finding& finding) const {
  QByteArray words(Mistakes[static_cast<std::size_t>(finding.What)]);
  // The text between bars appears only if there is a last detail to fill in.
  const qsizetype bar = words.indexOf('|');
  if (bar >= 0 && finding.Details.value(finding.Details.size() - 1).isEmpty())
    words.remove(bar, words.lastIndexOf('|') - bar);
  words.replace('|', "");
  return Filled(words.constData(), finding.Details);
}

QString Language::Of(const QString& sentence) const {
  static const QRegularExpression gap("%[1-9]");
  for (const Sentence& each : Sentences) {
    // What is escaped keeps its per cent signs.
    const QString pattern = QRegularExpression::escape(QString::fromUtf8(each.English)).replace("\\%", "%");
    const auto match = QRegularExpression("\\A" + QString(pattern).replace(gap, "(.+)") + "\\z",
                                          QRegularExpression::DotMatchesEverythingOption)
                           .match(sentence);
    if (!match.hasMatch()) continue;
    QStringList values = match.capturedTexts().mid(1);
    for (QString& value : values) value = Of(value);
    return Filled(each.Own, values);
  }
  return sentence;
}

QString Language::NameOf(Mistake mistake) const {
  const char* const own = MistakeNames[static_cast<std::size_t>(mistake)];
  return QString::fromUtf8(own == nullptr ? FactsOf(mistake).Code : own);
}

QString Language::NameOf(Result result) const {
  const char* const own = Results[static_cast<std::size_t>(result)];
  return own == nullptr ? WordOf(result) : QString::fromUtf8(own);
}

const Language* FindLanguage(const QString& code) {
  for (const Language* language : {&English, &German}) {
    if (code == QLatin1String(language->Code)) return language;
  }
  return nullptr;
}

}  // namespace zerimo::classroom
