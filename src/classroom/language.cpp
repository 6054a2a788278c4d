#include "classroom/language.h"

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
  for (const Sentence& each : Sentences) {
    const QString english = QString::fromUtf8(each.English);
    const QString begin = english.section("%1", 0, 0);
    const QString end = english.section("%1", 1);
    const bool hasGap = english.contains("%1");
    if (!hasGap && sentence == english) return QString::fromUtf8(each.Own);
    if (hasGap && sentence.startsWith(begin) && sentence.endsWith(end))
      return Filled(each.Own, {Of(sentence.mid(begin.size(), sentence.size() - begin.size() - end.size()))});
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
