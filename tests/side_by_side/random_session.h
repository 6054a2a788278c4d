#pragma once

#include <random>
#include <string>
#include <vector>

namespace zerimo {

/// Programs, typed lines and states that nobody would write, and some that many do; the same for the same seed.
class RandomSession {
 public:
  explicit RandomSession(unsigned seed) : numbers_(seed), wild_(Chance(2)) {}

  /// A program: procedures, now and then with lines before them.
  std::vector<std::string> Program();
  std::string TypedLine();
  /// The text of a variable slot.
  std::string Slot();
  /// A control string that something has left.
  std::string Path();
  int Below(int bound) { return static_cast<int>(numbers_() % static_cast<unsigned>(bound)); }
  bool Chance(int in) { return Below(in) == 0; }

 private:
  std::string Number();
  std::string Name();
  std::string Expression(int depth);
  std::string Condition();
  std::string Word();
  void Statements(std::vector<std::string>& lines, int count, int depth);
  std::string Statement();

  std::mt19937 numbers_;
  /// Whether the session is full of oddities rather than what pupils usually write.
  bool wild_;
};

}  // namespace zerimo
