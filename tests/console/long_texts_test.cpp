#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "base/failure.h"
#include "console/form1.h"
#include "files/temp_folder.h"
#include "graphics/canvas.h"
#include "interpreter/word_table.h"
#include "support/fake_services.h"

/// Bytes that this program has asked for: a copy of a text asks for as many as it is long.
static std::size_t bytesAskedFor = 0;

// Where only one of the two is inlined, a compiler sees memory that is freed in another way than it was asked for.
[[gnu::noinline]] void* operator new(std::size_t size) {
  bytesAskedFor += size;
  if (void* const memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept { std::free(memory); }
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

namespace zerimo {
namespace {

/// Characters of a statement. Programs may have lines of 64 megabytes; what is measured grows with the length.
constexpr std::size_t LongLength = 8'000;

/// A text of 64 megabytes is copied so many times in about a second.
constexpr std::size_t MostCopies = 64;

/// Notes the most work, in bytes, that was done between two looks, and stops after some of them.
class WorkWatch : public Watch {
 public:
  void LookAtStep() override { Look(); }
  void Tick() override { Look(); }

  void Begin() {
    last_ = bytesAskedFor;
    looks_ = 0;
    Most = 0;
  }
  void End() { Most = std::max(Most, bytesAskedFor - last_); }

  std::size_t Most = 0;

 private:
  static constexpr int MostLooks = 60;

  void Look() {
    End();
    last_ = bytesAskedFor;
    if (++looks_ > MostLooks) throw Stopped{"looks"};
  }

  std::size_t last_ = 0;
  int looks_ = 0;
};

class LongTexts : public testing::TestWithParam<const char*> {
 protected:
  LongTexts() {
    System.Load();
    System.Tick(System.controls.Timer2);
  }

  static std::string Long(const std::string& word, const std::string& pattern) {
    std::string text = word;
    while (text.size() < LongLength) text += pattern;
    return word.starts_with("REPEAT") ? text + "]" : text;
  }

  /// The most copies of the text's length between two looks while a program with the statement runs.
  std::size_t CopiesOf(const std::string& statement) {
    Store& store = System.interpreter.store;
    for (int number = 1; number <= Store::LineCount && !store.Line(number).empty(); ++number) store.SetLine(number, "");
    int number = 1;
    for (const std::string& line :
         {std::string("TO A :N"), statement, std::string("END"), std::string("TO B :M"), std::string("END")})
      store.SetLine(number++, line);
    std::string call = "A 12345";
    watch.Begin();
    try {
      SkipOnFailure([&] { System.interpreter.typedLines.ComplexExecutor(call); });
    } catch (const Stopped&) {
      // It was looked at often enough.
    } catch (const Ended&) {
      // By the word itself.
    }
    watch.End();
    services = FakeServices();
    return watch.Most / statement.size();
  }

  TempFolder Folder;
  FakeServices services;
  WorkWatch watch;
  EmptyCanvas pixels;
  Form1 System{ScreenSize{}, Folders(".", Disk(Folder.Path)), services, watch, pixels};
};

/// Every word of the language, and the heads of lines that are none.
std::vector<std::string> Heads() {
  std::vector<std::string> heads = {"",   "MAKE ",    "MAKE :N ",   "IF ",   "GOTO ",       "LABEL ",
                                    "A ", "REPEAT ",  "REPEAT 2 [", "TO ",   "X#REPEAT 2 ", "REPEAT 2 [REPEAT 2 [",
                                    "B ", "PRINT \"", "ELSE ",      "ENDIF "};
  for (const WordFacts& word : AllWords()) heads.push_back(std::string(word.Word) + " ");
  return heads;
}

TEST_P(LongTexts, AreNeverWorkedOnForLongWithoutALookAtTheWatch) {
  const std::string pattern = GetParam();
  for (const std::string& head : Heads()) EXPECT_LE(CopiesOf(Long(head, pattern)), MostCopies) << head << pattern;
}

INSTANTIATE_TEST_SUITE_P(Patterns, LongTexts,
                         testing::Values("A", "A ", "B ", "(", ")", "(1)", "((1", "[", "]", "1+", "-", ":N+", ":N ",
                                         "\"", "9", "%", "<", "XCOR+", "XCOR", "1*", "REPEAT 2 [", "#REPEAT ", "1<"));

}  // namespace
}  // namespace zerimo
