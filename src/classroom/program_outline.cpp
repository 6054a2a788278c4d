#include "classroom/program_outline.h"

#include <algorithm>
#include <memory>

#include "base/failure.h"
#include "base/text.h"
#include "controls/control_kinds.h"
#include "files/program_text.h"
#include "interpreter/store.h"

namespace zerimo::classroom {

namespace {

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
