#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

#include "batch/latin1.h"
#include "side_by_side/random_session.h"

namespace zerimo {

namespace {

/// As one line of a session. Control characters would end it.
std::string Line(std::string text) {
  std::ranges::replace_if(
      text, [](unsigned char letter) { return letter < ' '; }, ' ');
  return batch::ToUtf8(text);
}

/// What the editor is given: a backslash is written twice.
std::string Escaped(const std::string& text) {
  std::string escaped;
  for (const char letter : text) escaped += letter == '\\' ? "\\\\" : std::string(1, letter);
  return escaped;
}

void WriteSession(unsigned seed) {
  RandomSession random(seed);
  std::string program;
  for (const std::string& line : random.Program()) program += Escaped(Line(line)) + "\\r\\n";
  std::cout << "@trace surface\n@text Text2 " << program << "\n@key Text2 F2\n";
  for (int count = 1 + random.Below(5); count > 0; --count)
    std::cout << "@type 0 " << Line(random.TypedLine()) << "\n@enter 0\n";
  for (const char* dump : {"store", "variables", "state"}) std::cout << "@dump " << dump << '\n';
  std::cout << '\f';
}

}  // namespace

}  // namespace zerimo

/// Usage: write_sessions COUNT SEED: that many random sessions, each with a form feed after it.
int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: write_sessions COUNT SEED\n";
    return 2;
  }
  const auto seed = static_cast<unsigned>(std::strtoul(argv[2], nullptr, 10));
  const auto count = static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10));
  for (unsigned done = 0; done < count; ++done) zerimo::WriteSession(seed + done);
}
