#include "web/rich_text_markup.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace zerimo::web {

namespace {

constexpr int TwentiethsPerPixel = 15;

/// UTF-8 as markup in ASCII.
std::string Escaped(std::string_view utf8) {
  std::string markup;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto lead = static_cast<unsigned char>(utf8[at]);
    const std::size_t length = lead < 0x80 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    unsigned code = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t more = 1; more < length && at + more < utf8.size(); ++more) {
      code = code << 6U | (static_cast<unsigned char>(utf8[at + more]) & 0x3FU);
    }
    const bool isPlain = code < 0x80 && code != '<' && code != '>' && code != '&' && code != '"';
    markup += isPlain ? std::string(1, static_cast<char>(code)) : "&#" + std::to_string(code) + ";";
    at += length;
  }
  return markup;
}

std::string Attribute(const char* name, const std::string& value) {
  return std::string(" data-") + name + "=\"" + value + "\"";
}

std::string ColourWords(Colour colour) {
  std::array<char, 8> words{};
  std::snprintf(words.data(), words.size(), "#%02x%02x%02x", static_cast<unsigned>(colour & 0xFF),
                static_cast<unsigned>(colour >> 8 & 0xFF), static_cast<unsigned>(colour >> 16 & 0xFF));
  return words.data();
}

std::string MarkupOf(const TextRun& run) {
  const CharacterForm& form = run.Form;
  std::string markup = "<span" + Attribute("size", std::to_string(form.HalfPoints / 2));
  if (!form.FontName.empty()) markup += Attribute("font", Escaped(form.FontName));
  if (form.Color) markup += Attribute("colour", ColourWords(*form.Color));
  if (form.Background) markup += Attribute("ground", ColourWords(*form.Background));
  markup += ">";
  std::string text = Escaped(run.Text);
  const auto wrap = [&text](bool wanted, const std::string& tag) {
    if (wanted) text = "<" + tag + ">" + text + "</" + tag + ">";
  };
  wrap(form.Bold, "b");
  wrap(form.Italic, "i");
  wrap(form.Underline, "u");
  wrap(form.Strike, "s");
  return markup + text + "</span>";
}

std::string MarkupOf(const Paragraph& paragraph) {
  constexpr std::array<const char*, 4> alignments = {"left", "center", "right", "justify"};
  const ParagraphForm& form = paragraph.Form;
  std::string markup = "<p" + Attribute("align", alignments[static_cast<std::size_t>(form.Align)]) +
                       Attribute("indent", std::to_string(form.LeftIndent / TwentiethsPerPixel));
  if (form.Bullet) markup += Attribute("bullet", "");
  markup += ">";
  for (const TextRun& run : paragraph.Runs) markup += MarkupOf(run);
  return markup + "</p>";
}

}  // namespace

std::string MarkupOf(const RichText& page) {
  std::string markup;
  for (const Paragraph& paragraph : page.Paragraphs) markup += MarkupOf(paragraph);
  return markup;
}

}  // namespace zerimo::web
