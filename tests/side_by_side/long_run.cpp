#include <cstdlib>
#include <iostream>

#include "side_by_side/sessions.h"

/// Usage: side_by_side_run LINES [SEED]: random sessions until that many program lines have run.
int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "usage: side_by_side_run LINES [SEED]\n";
    return 2;
  }
  const auto wanted = std::strtoull(argv[1], nullptr, 10);
  auto seed = static_cast<unsigned>(argc > 2 ? std::strtoul(argv[2], nullptr, 10) : 1);
  std::uint64_t lines = 0;
  unsigned sessions = 0;
  for (; lines < wanted; ++seed, ++sessions) {
    if (const auto difference = zerimo::FirstDifference(seed, lines)) {
      std::cerr << "seed " << seed << ": " << *difference << '\n';
      return 1;
    }
  }
  std::cout << lines << " lines in " << sessions << " sessions without a difference; next seed " << seed << '\n';
}
