#include "classroom/language.h"

#include "classroom/words.h"

namespace zerimo::classroom {

QString Language::Of(const Finding& finding) const {
  QByteArray words(Mistakes[static_cast<std::size_t>(finding.What)]);
  const bool hasNoSuggestion = finding.What == Mistake::UnknownWord && finding.Details.value(1).isEmpty();
  // The text between bars appears only if there is something to suggest.
  const qsizetype bar = words.indexOf('|');
  if (hasNoSuggestion && bar >= 0) words.remove(bar, words.lastIndexOf('|') - bar);
  words.replace('|', "");
  return Filled(words.constData(), finding.Details);
}

const Language* FindLanguage(const QString& code) {
  for (const Language* language : {&English, &German}) {
    if (code == QLatin1String(language->Code)) return language;
  }
  return nullptr;
}

}  // namespace zerimo::classroom
