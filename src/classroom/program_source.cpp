#include "classroom/program_source.h"

#include <QStringDecoder>
#include <algorithm>
#include <memory>
#include <string>

#include "base/failure.h"
#include "base/text.h"
#include "classroom/findings/listing.h"
#include "controls/control_kinds.h"
#include "files/program_files.h"
#include "interpreter/lowering.h"
#include "interpreter/store.h"

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

/// The lines of a program that the store keeps.
QString KeptText(std::string_view programText) {
  ListBox list3{"List3"};
  const auto store = std::make_unique<Store>(list3);
  std::int16_t number = 1;
  // The lines stored before the store was full count.
  SkipOnFailure([&] { FillStore(*store, programText, number); });
  QString text;
  SkipOnFailure([&] {
    for (int line = 1; !store->Line(line).empty(); ++line) text += QString::fromStdString(store->Line(line)) + u'\r';
  });
  return text;
}

/// The words of a statement; a bracket may stand right beside one.
QStringList WordsOf(QString statement) { return statement.remove(u'[').remove(u']').split(u' ', Qt::SkipEmptyParts); }

QString ProcedureOf(std::string_view fileName) { return QString::fromStdString(UpperCase(fileName)); }

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

ProgramOutline::ProgramOutline(std::string_view programText) {
  const Listing listing(KeptText(programText));
  for (const ListedProcedure& each : listing.Procedures) procedures_.push_back({each.Name, !each.Inputs.isEmpty(), {}});
  for (const Statement& each : listing.Statements) {
    if (each.Procedure < 0) continue;
    Procedure& procedure = procedures_[static_cast<std::size_t>(each.Procedure)];
    for (const QString& word : WordsOf(each.Text)) {
      if (word != procedure.Name) procedure.Words.insert(word);
    }
  }
}

bool ProgramOutline::IsCalledByAnother(const Procedure& one) const {
  return std::ranges::any_of(procedures_, [&one](const Procedure& other) { return other.Words.contains(one.Name); });
}

FirstCall ProgramOutline::FirstCallOf(std::string_view name) const {
  if (procedures_.empty()) return {{}, "The program has no procedure: no line begins with TO in capital letters."};
  const QString wanted = ProcedureOf(name);
  const Procedure* first = nullptr;
  std::string note;
  for (const Procedure& each : procedures_) {
    if (each.Name == wanted && !each.NeedsInputs) return {each.Name.toStdString(), {}};
    if (each.Name == wanted && !IsCalledByAnother(each))
      note = each.Name.toStdString() + " needs inputs and was not called: give them in a session.";
    if (each.NeedsInputs) continue;
    // If each is called by another, the last one starts.
    if (first == nullptr || !IsCalledByAnother(each) || IsCalledByAnother(*first)) first = &each;
  }
  if (first == nullptr) return {{}, "Every procedure of the program needs inputs: give them in a session."};
  return {first->Name.toStdString(), note};
}

bool ProgramOutline::Has(const QString& procedure) const {
  return std::ranges::find(procedures_, procedure, &Procedure::Name) != procedures_.end();
}

std::string ProgramOutline::MainProcedure(std::string_view name) const {
  const QString wanted = ProcedureOf(name);
  std::string main;
  for (const Procedure& each : procedures_) {
    if (each.Name == wanted) return wanted.toStdString();
    if (main.empty() || !IsCalledByAnother(each)) main = each.Name.toStdString();
  }
  return main;
}

}  // namespace zerimo::classroom
