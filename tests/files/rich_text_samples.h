#pragma once

#include "files/rich_text.h"

namespace zerimo {

/// A page that uses everything that the writer writes.
inline RichText FullPage() {
  CharacterForm title;
  title.FontName = "Arial";
  title.HalfPoints = 48;
  title.Bold = true;
  title.Color = 0x0000FF;
  CharacterForm word;
  word.FontName = "Courier; \xC3\x9C {New}";
  word.Italic = true;
  word.Underline = true;
  word.Strike = true;
  word.Background = 0x00FFFF;

  RichText page;
  Paragraph& head = page.Paragraphs[0];
  head.Form.Align = Alignment::Centre;
  head.Form.SpaceBefore = 120;
  head.Form.SpaceAfter = 240;
  Append(head, "Forward \xE2\x80\x94 FD", title);

  Paragraph bullet;
  bullet.Form.Bullet = true;
  bullet.Form.LeftIndent = 720;
  bullet.Form.FirstIndent = -360;
  bullet.Form.RightIndent = 100;
  bullet.Form.Tabs = {1440, 2880};
  Append(bullet, "back\\slash {braces}\ttab\nbreak ", {});
  Append(bullet, "\xF0\x9F\x90\xA2 turtle", word);
  page.Paragraphs.push_back(bullet);

  page.Paragraphs.emplace_back();
  Paragraph right;
  right.Form.Align = Alignment::Right;
  Append(right, "right", {});
  page.Paragraphs.push_back(right);
  Paragraph both;
  both.Form.Align = Alignment::Justified;
  Append(both, " blanks  at both ends ", {});
  page.Paragraphs.push_back(both);
  return page;
}

}  // namespace zerimo
