/// Help pages: reading rich text, and writing what was read.

#include "files/rich_text.h"

#include <algorithm>

#include "files/unicode_text.h"
#include "fuzz.h"

namespace zerimo::fuzz {

namespace {

void CheckTidy(const RichText& page) {
  Require(!page.Paragraphs.empty());
  for (const Paragraph& paragraph : page.Paragraphs) {
    const auto& runs = paragraph.Runs;
    Require(std::ranges::none_of(runs, [](const TextRun& run) { return run.Text.empty(); }));
    Require(std::ranges::adjacent_find(runs, {}, &TextRun::Form) == runs.end());
  }
}

}  // namespace

void Try(std::string_view input) {
  const RichText page = ReadRtf(input);
  CheckTidy(page);
  const std::string words = PlainText(page);
  Require(IsUtf8(words));
  Require(words.size() <= 3 * input.size() + 8);
  Require(ReadRtf(WriteRtf(page)) == page);
  const RichText plain = FromPlainText(words);
  Require(ReadRtf(WriteRtf(plain)) == plain);
}

}  // namespace zerimo::fuzz
