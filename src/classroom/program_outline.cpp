#include "classroom/program_outline.h"

#include <algorithm>
#include <memory>
#include <sstream>

#include "base/failure.h"
#include "base/text.h"
#include "controls/control_kinds.h"
#include "files/program_text.h"
#include "interpreter/store.h"

namespace zerimo::classroom {

namespace {

std::vector<std::string> WordsOf(const std::string& line) {
  std::istringstream stream(line);
  std::vector<std::string> words;
  // A bracket may stand right beside a name.
  for (std::string word; stream >> word;) {
    std::erase_if(word, [](char character) { return character == '[' || character == ']'; });
    if (!word.empty()) words.push_back(word);
  }
  return words;
}

}  // namespace

ProgramOutline::ProgramOutline(std::string_view programText) {
  ListBox list3{"List3"};
  const auto store = std::make_unique<Store>(list3);
  std::int16_t number = 1;
  // What was filled before the store was full counts.
  SkipOnFailure([&] { FillStore(*store, programText, number); });
  SkipOnFailure([&] {
    for (int line = 1; !store->Line(line).empty(); ++line) Take(store->Line(line));
  });
}

void ProgramOutline::Take(const std::string& line) {
  const std::vector<std::string> words = WordsOf(line);
  if (line.starts_with("TO ") && words.size() > 1) {
    procedures_.push_back({words[1], words.size() > 2, false, {}});
    return;
  }
  if (procedures_.empty()) return;
  Procedure& last = procedures_.back();
  if (Trimmed(line) == "END") last.HasEnd = true;
  for (const std::string& word : words) {
    if (word != last.Name) last.Words.insert(word);
  }
}

bool ProgramOutline::IsCalledByAnother(const Procedure& one) const {
  return std::ranges::any_of(procedures_, [&one](const Procedure& other) { return other.Words.contains(one.Name); });
}

FirstCall ProgramOutline::FirstCallOf(std::string_view name) const {
  if (procedures_.empty()) return {{}, "The program has no procedure: no line begins with TO in capital letters."};
  const std::string wanted = UpperCase(name);
  const Procedure* first = nullptr;
  std::string note;
  for (const Procedure& each : procedures_) {
    if (each.Name == wanted && !each.NeedsInputs) return {each.Name, {}};
    if (each.Name == wanted) note = each.Name + " needs inputs and was not called: give them in a session.";
    if (each.NeedsInputs) continue;
    // If each is called by another, the last one starts.
    if (first == nullptr || !IsCalledByAnother(each) || IsCalledByAnother(*first)) first = &each;
  }
  if (first == nullptr) return {{}, "Every procedure of the program needs inputs: give them in a session."};
  return {first->Name, note};
}

bool ProgramOutline::Has(std::string_view procedure) const {
  return std::ranges::find(procedures_, procedure, &Procedure::Name) != procedures_.end();
}

std::string ProgramOutline::MainProcedure(std::string_view name) const {
  const std::string wanted = UpperCase(name);
  std::string main;
  for (const Procedure& each : procedures_) {
    if (each.Name == wanted) return wanted;
    if (main.empty() || !IsCalledByAnother(each)) main = each.Name;
  }
  return main;
}

std::vector<std::string> ProgramOutline::WithoutEnd() const {
  std::vector<std::string> names;
  for (const Procedure& each : procedures_) {
    if (!each.HasEnd) names.push_back(each.Name);
  }
  return names;
}

}  // namespace zerimo::classroom
