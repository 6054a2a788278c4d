#include "classroom/first_call.h"

#include <algorithm>
#include <memory>
#include <set>
#include <sstream>
#include <vector>

#include "controls/controls.h"
#include "core/failure.h"
#include "core/program_store.h"
#include "core/text.h"
#include "files/program_text.h"

namespace zerimo::classroom {

namespace {

struct Procedure {
  std::string Name;
  bool NeedsInputs = false;
  /// The words of its body, its own name left out.
  std::set<std::string> Words;
};

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

/// The procedures as the store has them when the program is loaded.
class ProcedureReader {
 public:
  explicit ProcedureReader(std::string_view text) {
    ListBox list3{"List3"};
    const auto store = std::make_unique<ProgramStore>(list3);
    std::int16_t number = 1;
    // What was filled before the store was full counts.
    PassOver([&] { FillStore(*store, text, number); });
    PassOver([&] {
      for (int line = 1; !store->Line(line).empty(); ++line) Take(store->Line(line));
    });
  }

  std::vector<Procedure> All;

 private:
  void Take(const std::string& line) {
    const std::vector<std::string> words = WordsOf(line);
    if (line.starts_with("TO ") && words.size() > 1) {
      All.push_back({words[1], words.size() > 2, {}});
      return;
    }
    if (All.empty()) return;
    for (const std::string& word : words) {
      if (word != All.back().Name) All.back().Words.insert(word);
    }
  }
};

bool IsCalledByAnother(const Procedure& one, const std::vector<Procedure>& all) {
  return std::ranges::any_of(all, [&one](const Procedure& other) { return other.Words.contains(one.Name); });
}

}  // namespace

FirstCall FirstCallOf(std::string_view programText, std::string_view name) {
  const std::vector<Procedure> all = ProcedureReader(programText).All;
  if (all.empty()) return {{}, "The program has no procedure: no line begins with TO."};
  const std::string wanted = UpperCase(name);
  const Procedure* first = nullptr;
  for (const Procedure& each : all) {
    if (each.NeedsInputs) continue;
    if (each.Name == wanted) return {each.Name, {}};
    // If each is called by another, the last one starts.
    if (first == nullptr || !IsCalledByAnother(each, all) || IsCalledByAnother(*first, all)) first = &each;
  }
  if (first == nullptr) return {{}, "Every procedure of the program needs inputs: give them in a session."};
  return {first->Name, {}};
}

}  // namespace zerimo::classroom
