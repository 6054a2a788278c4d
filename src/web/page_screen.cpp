#include "web/page_screen.h"

#include "batch/dumps.h"
#include "console/control_words.h"
#include "web/page_port.h"
#include "web/rich_text_markup.h"

namespace zerimo::web {

namespace {

/// Only that it is hidden: writing all texts and numbers would take longer than most lines.
std::string Hidden(const Control& control) {
  return batch::JsonLine("dump").Text("name", control.Name()).Flag("Visible", false).Finished();
}

/// The name for people, with the number of a control of an array.
std::string NameFor(const ControlWords& words, const std::string& control) {
  std::string name = words.Name;
  const std::size_t mark = name.find("%1");
  return mark == std::string::npos ? name : name.replace(mark, 2, std::to_string(IndexInName(control) + 1));
}

}  // namespace

void PageScreen::Describe() {
  std::string all;
  const auto describe = [&all](const Control& control) {
    const ControlWords* const words = FindControlWords(control.Name());
    if (words == nullptr) return;
    all += (all.empty() ? "" : ",") + batch::JsonLine("words")
                                          .Text("name", control.Name())
                                          .Text("label", NameFor(*words, control.Name()))
                                          .Text("tip", words->ToolTip)
                                          .Finished();
  };
  describe(form1_.Picture1);
  form1_.controls.ForEach(describe);
  TellPage("[" + all + "]");
}

void PageScreen::Show() {
  ShowPicture();
  std::string changes;
  ShowControl(form1_.Picture1, changes);
  form1_.controls.ForEach([&](Control& control) { ShowControl(control, changes); });
  for (const Timer* timer : {&form1_.controls.Timer2, &form1_.controls.Timer3, &form1_.controls.Timer4}) {
    ShowTimer(*timer, changes);
  }
  ShowPage(changes);
  ShowFocus(changes);
  if (!changes.empty()) TellPage("[" + changes + "]");
}

void PageScreen::ShowPicture() {
  const PixelRect drawn = canvas_.TakeDirty();
  if (!drawn.IsEmpty()) ShowPart(canvas_.Pixels(), drawn);
}

void PageScreen::ShowControl(Control& control, std::string& changes) {
  const auto* const list = dynamic_cast<const ListBox*>(&control);
  if (!control.IsOnScreen()) {
    shownLists_.erase(list);
    return Add(&control, Hidden(control), changes);
  }
  if (list == nullptr) return Add(&control, batch::DumpOf({&control, nullptr}).Finished(), changes);
  const auto known = shownLists_.find(list);
  if (known != shownLists_.end() && known->second == list->Version()) return;
  shownLists_[list] = list->Version();
  Add(&control, batch::DumpOf({&control, nullptr}).Finished(), changes);
}

void PageScreen::ShowTimer(const Timer& timer, std::string& changes) {
  Add(&timer, batch::DumpOf({nullptr, &timer}).Finished(), changes);
}

void PageScreen::ShowPage(std::string& changes) {
  const RichTextView& page = form1_.controls.RichTextBox1;
  if (page.Version == shownPage_) return;
  shownPage_ = page.Version;
  const std::string markup = MarkupOf(ReadRtf(page.Document));
  Add(&shownPage_, batch::JsonLine("page").Text("markup", markup).Finished(), changes);
}

void PageScreen::ShowFocus(std::string& changes) {
  const Control* const focus = form1_.controls.Focus.Focus();
  Add(&form1_.controls.Focus, batch::JsonLine("focus").Text("name", focus == nullptr ? "" : focus->Name()).Finished(),
      changes);
}

void PageScreen::Add(const void* what, std::string words, std::string& changes) {
  std::string& shown = shown_[what];
  if (shown == words) return;
  if (!changes.empty()) changes += ',';
  changes += words;
  shown = std::move(words);
}

}  // namespace zerimo::web
