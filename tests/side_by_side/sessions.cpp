#include "side_by_side/sessions.h"

#include <algorithm>

#include "side_by_side/random_session.h"
#include "side_by_side/side.h"

namespace zerimo {

namespace {

class Session {
 public:
  explicit Session(unsigned seed) : random_(seed) {
    // Now and then each step is watched. Otherwise texts that nobody reads are not made for a while.
    if (!random_.Chance(3)) return;
    present_.WatchEachStep();
    literal_.WatchEachStep();
  }

  std::optional<std::string> Run(std::uint64_t& lines) {
    Load();
    for (int line = 1 + random_.Below(6); line > 0; --line) {
      if (random_.Chance(6)) Load();
      if (random_.Chance(6)) ChangeSlots();
      if (random_.Chance(12)) ChangePath();
      const std::string typed = random_.TypedLine();
      const int steps = random_.Chance(5) ? 1500 : 40 + random_.Below(200);
      Both([&](auto& side) { side.Type(typed, steps); });
      lines += static_cast<std::uint64_t>(present_.watch.Steps);
      if (present_.trace.Steps() != literal_.trace.Steps()) return Difference(typed);
      Both([](auto& side) { side.trace.Clear(); });
    }
    return std::nullopt;
  }

 private:
  template <typename Act>
  void Both(Act&& act) {
    act(present_);
    act(literal_);
  }

  void Load() {
    std::vector<std::string> program = random_.Program();
    const std::vector<std::string> later = random_.Program();
    // Now and then the store is nearly full, or not trimmed.
    if (random_.Chance(40)) program.insert(program.begin(), 1900 + static_cast<std::size_t>(random_.Below(100)), "PU");
    if (random_.Chance(10)) program.front() += " ";
    Both([&](auto& side) {
      for (int number = 1; number <= 2000; ++number) side.interpreter.store.SetLine(number, "");
      for (int number = 1; const std::string& line : program)
        side.interpreter.store.SetLine(std::min(number++, 2000), line);
      side.ProgramToLoad = later;
    });
  }

  void ChangeSlots() {
    const bool full = random_.Chance(6);
    const int first = full ? 1 : 1 + random_.Below(12);
    const int last = full ? 500 - random_.Below(3) : first + random_.Below(8);
    for (int number = first; number <= last; ++number) {
      const std::string text = full && !random_.Chance(9) ? "V" + std::to_string(number) + "=1" : random_.Slot();
      Both([&](auto& side) { side.interpreter.variables.SetSlot(number, text); });
    }
    if (random_.Chance(8)) {
      Both([](auto& side) { side.interpreter.variables.SetSlot(120, " "); });
    }
  }

  void ChangePath() {
    const std::string path = random_.Path();
    Both([&](auto& side) { side.interpreter.controlPath.SetCtrlStr(path); });
  }

  std::string Difference(const std::string& typed) const {
    const auto& present = present_.trace.Steps();
    const auto& literal = literal_.trace.Steps();
    const auto shorter = std::min(present.size(), literal.size());
    const auto at =
        std::mismatch(present.begin(), present.begin() + static_cast<std::ptrdiff_t>(shorter), literal.begin());
    std::string words = "after \"" + typed + "\", at step " + std::to_string(at.first - present.begin()) + " of " +
                        std::to_string(present.size()) + " and " + std::to_string(literal.size()) + "\nsteps run " +
                        std::to_string(present_.watch.Steps) + " and " + std::to_string(literal_.watch.Steps);
    for (int number = 1; number <= 60 && !present_.interpreter.store.Line(number).empty(); ++number) {
      words += "\n" + std::to_string(number) + " " + present_.interpreter.store.Line(number);
    }
    for (int number = 1; number <= 500; ++number) {
      const std::string& mine = present_.interpreter.variables.Slot(number);
      const std::string& other = literal_.interpreter.variables.Slot(number);
      if (number < 8 || mine != other) words += "\nslot " + std::to_string(number) + " [" + mine + "] [" + other + "]";
    }
    return words + "\n[" + present_.interpreter.controlPath.CtrlStr() + "] [" +
           literal_.interpreter.controlPath.CtrlStr() + "]";
  }

  RandomSession random_;
  Side<Present> present_;
  Side<Literal> literal_;
};

}  // namespace

std::optional<std::string> FirstDifference(unsigned seed, std::uint64_t& lines) { return Session(seed).Run(lines); }

}  // namespace zerimo
