#include "interpreter/store.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

namespace {

constexpr int SweepLines = 100;
constexpr int HowManyLines = 1000;
/// A line with that many blanks has too many words.
constexpr int MostBlanks = 50;

/// The working copy of a sweep: line 101 is a subscript failure.
class WorkingCopy {
 public:
  void Add(const std::string& line) {
    if (lines_.size() == SweepLines) throw Failure(FailureKind::SubscriptOutOfRange);
    lines_.push_back(line);
  }
  const std::vector<std::string>& Lines() const noexcept { return lines_; }

 private:
  std::vector<std::string> lines_;
};

}  // namespace

void Store::FailOutside() { throw Failure(FailureKind::SubscriptOutOfRange); }

void Store::SetLine(int number, std::string text) { Put(Index(number), std::move(text)); }

void Store::Put(std::size_t index, std::string text) noexcept {
  if (FileDataArray[index] == text) return;
  FileDataArray[index] = std::move(text);
  forms_[index].reset();
  ++changes_;
}

const LineForm& Store::MakeForm(std::size_t index) const {
  forms_[index] = std::make_unique<LineForm>(FileDataArray[index]);
  return *forms_[index];
}

std::string Store::TakeFirstWord(int number) {
  const std::string& line = Line(number);
  // An earlier call has already left the line as it would become.
  const bool isTaken = line.size() > 1 && line.front() != ' ' && line.back() == ' ' && line[line.size() - 2] != ' ';
  if (isTaken && std::ranges::count(line, ' ') < MostBlanks) return line.substr(0, line.find(' '));
  LentLine lent(*this, number);
  return GiveWord(lent.Text, 1);
}

int Store::FirstEmptyLine() const {
  return firstEmptyLine_.Get(changes_, [this] {
    int number = 1;
    while (!Line(number).empty()) ++number;
    return number;
  });
}

void Store::MakeEmptyFileDataArray() {
  for (int number = 1; !Line(number).empty(); ++number) SetLine(number, "");
}

std::int16_t Store::WhereProcedure(std::string_view procedure) const {
  TextMap<std::int16_t>& known = procedures_.Get(changes_, [] { return TextMap<std::int16_t>(); });
  return FindOrMake(known, procedure, [&] { return FindProcedure(procedure); });
}

int Store::HeaderOf(int number) const {
  while (ClassOf(number) != StmtTo) {
    if (--number == 0) return 0;
  }
  return number;
}

std::int16_t Store::FindProcedure(std::string_view procedure) const {
  const std::string marked = "#TO " + std::string(procedure);
  const std::string_view pattern = std::string_view(marked).substr(1);
  for (int number = 1; !Line(number).empty(); ++number) {
    const std::string& line = Line(number);
    // The # on both sides ties the match to the start of the line; a # inside the line can still make one.
    const bool hit = line.starts_with(pattern) || Contains(line, marked);
    if (!hit) continue;
    const std::string_view next = CharacterAt(line, Length(pattern) + 1);
    if (next.empty() || next == " ") return static_cast<std::int16_t>(number);
  }
  return 0;
}

std::int16_t Store::HowMany(std::string_view procedure, std::string_view command) const {
  if (FileDataCount > HowManyLines) throw Failure(FailureKind::SubscriptOutOfRange);
  std::int16_t count = 0;
  for (int number = WhereProcedure(procedure); number <= FileDataCount && Line(number) != "END"; ++number) {
    if (Line(number) == command) ++count;
  }
  return count;
}

bool Store::IsTempProcedurePresent() const {
  for (int number = 1; !Line(number).empty(); ++number) {
    if (Contains(Line(number), "TO #")) return true;
  }
  return false;
}

void Store::TempFileDataArray() {
  int number = 1;
  for (; !Contains(Line(number), "TO #"); ++number) {
    if (Line(number).empty()) return;
  }
  WorkingCopy copy;
  for (int kept = 1; kept < number; ++kept) copy.Add(Line(kept));
  // Any "END" in a line ends the skip, even that of an ENDIF: the rest of such a procedure stays as ordinary lines.
  while (!Line(number).empty() && !Contains(Line(number), "END")) ++number;
  if (!Line(number).empty()) ++number;
  for (; !Line(number).empty(); ++number) copy.Add(Line(number));

  int target = 1;
  for (const std::string& line : copy.Lines()) SetLine(target++, line);
  // With all 100 lines in use there is no empty entry to end the copying back.
  if (copy.Lines().size() == SweepLines) throw Failure(FailureKind::SubscriptOutOfRange);
  // Only this one line is emptied: the old lines after it stay as stale text.
  SetLine(target, "");
}

void Store::RefreshFileDataArray() {
  while (IsTempProcedurePresent()) TempFileDataArray();
}

void Store::ProcedureList() {
  List3.Clear();
  for (int number = 1; !Line(number).empty(); ++number) {
    if (ClassOf(number) == StmtTo) List3.Add(Line(number));
  }
}

std::string Store::ProcedureListInStringForm() const {
  std::string list;
  for (int number = 1; !Line(number).empty(); ++number) {
    const std::string& line = Line(number);
    if (ClassOf(number) == StmtTo && !Contains(line, "#")) list += "[" + std::string(From(line, 4)) + "]   ";
  }
  return list;
}

void ListStore(Store& store, ListBox& list1) {
  list1.Clear();
  for (int number = 1; !store.Line(number).empty(); ++number) {
    store.TrimLine(number);
    list1.Add(Str(number) + "  " + store.Line(number));
  }
}

}  // namespace zerimo
