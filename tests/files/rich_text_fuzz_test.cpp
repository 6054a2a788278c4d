#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#include "files/rich_text.h"
#include "files/rich_text_samples.h"
#include "files/unicode_text.h"

namespace zerimo {
namespace {

/// Makes bad pages from good ones, always the same ones.
class BadPages {
 public:
  std::string RandomBytes(std::size_t most) {
    std::string bytes(Below(most + 1), ' ');
    for (char& byte : bytes) byte = static_cast<char>(Below(256));
    return bytes;
  }

  std::string RandomPieces(std::size_t most) {
    std::string bytes = "{\\rtf1";
    for (std::size_t count = Below(most); count > 0; --count) bytes += Pieces[Below(Pieces.size())];
    return bytes;
  }

  std::string Changed(std::string bytes) {
    for (std::size_t count = 1 + Below(8); count > 0 && !bytes.empty(); --count) Change(bytes);
    return bytes;
  }

  std::size_t Below(std::size_t limit) { return limit == 0 ? 0 : random() % limit; }

 private:
  void Change(std::string& bytes) {
    const std::size_t at = Below(bytes.size());
    const std::string piece = bytes.substr(Below(bytes.size()), Below(20));
    switch (Below(5)) {
      case 0:
        bytes[at] = static_cast<char>(Below(256));
        break;
      case 1:
        bytes.erase(at, Below(10));
        break;
      case 2:
        bytes.insert(at, piece);
        break;
      case 3:
        bytes.insert(at, Pieces[Below(Pieces.size())]);
        break;
      default:
        bytes.resize(at);
        break;
    }
  }

  std::mt19937 random{20240229};
  const std::vector<std::string> Pieces = {"{",
                                           "}",
                                           "\\",
                                           "\\*",
                                           "{\\*",
                                           "\\par ",
                                           "\\'",
                                           "\\'e4",
                                           "\\u",
                                           "\\u-10179",
                                           "\\u-9182?",
                                           "\\uc9",
                                           "\\uc-1",
                                           "\\bin",
                                           "\\bin9999999999",
                                           "\\bin3 ",
                                           "\\b",
                                           "\\fs2147483647",
                                           "\\f99999",
                                           "{\\fonttbl",
                                           "{\\f1 x;}",
                                           "{\\colortbl",
                                           ";",
                                           "\\red999",
                                           "\\cf-9",
                                           "{\\pntext",
                                           "{\\*\\pn\\pnlvlblt",
                                           "\\tx1",
                                           "\\li-2147483649",
                                           "\\ansicpg0",
                                           "\\plain",
                                           "\\pard",
                                           "text",
                                           "\xFF",
                                           "\\tab",
                                           "\\pict",
                                           "{\\info",
                                           "\\deff-1",
                                           "\\line",
                                           "\r\n",
                                           "\\\r",
                                           "\\fcharset238",
                                           "\\-",
                                           "\\page",
                                           "\t",
                                           "  "};
};

void ExpectSound(const std::string& bytes) {
  const RichText page = ReadRtf(bytes);
  ASSERT_FALSE(page.Paragraphs.empty());
  const std::string words = PlainText(page);
  ASSERT_TRUE(IsUtf8(words));
  ASSERT_LE(words.size(), 3 * bytes.size() + 8);
  for (const Paragraph& paragraph : page.Paragraphs) {
    for (const TextRun& run : paragraph.Runs) ASSERT_FALSE(run.Text.empty());
  }
  // What was read is tidy, so that it reads back the same.
  ASSERT_EQ(ReadRtf(WriteRtf(page)), page) << bytes;
}

TEST(RtfFuzz, RandomBytes) {
  BadPages pages;
  for (int round = 0; round < 2000; ++round) ExpectSound("{\\rtf1" + pages.RandomBytes(300));
}

TEST(RtfFuzz, RandomPieces) {
  BadPages pages;
  for (int round = 0; round < 4000; ++round) ExpectSound(pages.RandomPieces(60));
}

TEST(RtfFuzz, ChangedPages) {
  BadPages pages;
  const std::string good = WriteRtf(FullPage());
  for (int round = 0; round < 3000; ++round) ExpectSound(pages.Changed(good));
}

TEST(RtfFuzz, EveryBeginningOfAPage) {
  const std::string good = WriteRtf(FullPage());
  for (std::size_t length = 0; length <= good.size(); ++length) ExpectSound(good.substr(0, length));
}

TEST(RtfFuzz, LongPagesOfOnePieceEnd) {
  for (const char* piece : {"{", "}", "\\", "\\par", "\\'e4", "\\u1", "{\\*\\x", "{\\pntext-}", "\\b\\b0 a", "\\tx1",
                            "{\\f1;}", "\\bin9", "{\\fonttbl{\\f1 a", "{\\colortbl;", "\\u-10179"}) {
    std::string bytes = "{\\rtf1 ";
    while (bytes.size() < 200000) bytes += piece;
    EXPECT_LE(PlainText(ReadRtf(bytes)).size(), 3 * bytes.size()) << piece;
  }
}

}  // namespace
}  // namespace zerimo
