#include "classroom/program_source.h"

#include <QStringDecoder>
#include <algorithm>
#include <string>

#include "base/text.h"
#include "classroom/findings/listing.h"
#include "interpreter/lowering.h"

namespace zerimo::classroom {

namespace {

/// A line as `FillStore` keeps it.
std::string Kept(const QString& line) {
  std::string kept;
  for (const QChar character : line) {
    if (character.unicode() >= 32 && character.unicode() <= 126) kept += static_cast<char>(character.unicode());
  }
  return std::string(Trimmed(kept));
}

/// A line of the store, or the empty one beyond its end.
std::string LineAt(const Store& store, int number) {
  return number > Store::LineCount ? std::string() : std::string(Trimmed(store.Line(number)));
}

}  // namespace

QString TextOfProgram(const std::string& bytes) {
  QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
  const QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
  return decoder.hasError() ? QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size())) : text;
}

ProgramSource::ProgramSource(const QString& program) {
  for (const QString& line : LinesOf(program)) {
    IsCut = IsCut || Lines.size() == MostLines;
    if (!IsCut) Lines.push_back({line.left(LongestLine), {}});
  }
}

void ProgramSource::Match(const Store& store) {
  fileLines_.assign(1, 0);
  for (std::size_t i = 0; i < Lines.size(); ++i) {
    const std::string kept = Kept(Lines[i].Text);
    const int first = static_cast<int>(fileLines_.size());
    const std::string stored = LineAt(store, first);
    if (kept.empty() || stored.empty()) continue;
    const bool isSame = kept == stored;
    const int count = isSame ? 1 : std::max(1, LengthOfRepeat(store, first));
    // If the program is not the first thing in the store, its lines can't be matched.
    if (!isSame && i == 0) return;
    QStringList lines;
    for (int line = first; line < first + count; ++line) lines.append(QString::fromStdString(LineAt(store, line)));
    fileLines_.insert(fileLines_.end(), static_cast<std::size_t>(count), static_cast<int>(i) + 1);
    if (lines != QStringList{Lines[i].Text.trimmed()}) Lines[i].Stored = lines;
  }
}

int ProgramSource::LengthOfRepeat(const Store& store, int first) {
  const std::string label = LineAt(store, first + 1);
  if (!SetsRepeatCounter(LineAt(store, first)) || !IsRepeatLabel(label)) return 0;
  const std::string jump = "GOTO " + label.substr(6);
  for (int line = first + 2; !LineAt(store, line).empty(); ++line) {
    if (LineAt(store, line) == jump) return line + 2 - first;
  }
  return 0;
}

int ProgramSource::LineOf(int storeLine) const {
  const bool isKnown = storeLine > 0 && static_cast<std::size_t>(storeLine) < fileLines_.size();
  return isKnown ? fileLines_[static_cast<std::size_t>(storeLine)] : 0;
}

}  // namespace zerimo::classroom
