#include "files/help_pages.h"

#include "base/failure.h"
#include "base/text.h"
#include "files/folders.h"
#include "files/rich_text.h"
#include "files/unicode_text.h"

namespace zerimo {

namespace {

/// Relative to the current folder of the process, not to `AppFolder`.
constexpr const char* PagesFolder = "ZMHELP\\";

}  // namespace

void HelpPages::Bind() {
  context_.interpreter.dispatch.Bind("HELP", [this](PrimitiveCall& call) { Open(call); });
}

void HelpPages::Open(PrimitiveCall& call) {
  SkipOnFailure([&] { SetFolder(); });
  wanted_ = call.Input;
  call.OnFailure = &sayNotAvailable_;
  try {
    LoadPage(PagesFolder + (call.InputIsMissing() ? "HELP" : UpperCase(wanted_)));
    context_.controls.File1.Show();
    context_.controls.RichTextBox1.Show();
  } catch (const Failure&) {
    sayNotAvailable_();  // Never fails: it shows a box.
  }
}

void HelpPages::SetFolder() {
  FileListBox& list = context_.controls.File1;
  list.Items = context_.folders.FilesIn(PagesFolder);
  list.Path = PagesFolder;
  list.FileName.clear();
}

void HelpPages::LoadPage(const std::string& file) {
  const std::string bytes = context_.folders.ReadFile(file);
  const bool isRich = IsRtf(bytes);
  const RichText page = isRich ? ReadRtf(bytes) : FromPlainText(IsUtf8(bytes) ? bytes : Utf8FromLatin1(bytes));
  RichTextView& view = context_.controls.RichTextBox1;
  view.FileName = file;
  view.Text = Latin1FromUtf8(PlainText(page));
  view.Document = isRich ? bytes : WriteRtf(page);
  ++view.Version;
}

void HelpPages::File1MouseDown() { LoadPage(PagesFolder + context_.controls.File1.FileName); }

void HelpPages::SavePage() {
  const std::string name = context_.services.InputBox("Enter the file name", "Save for Help");
  context_.folders.WriteFile(name, context_.controls.RichTextBox1.Document + "\r\n");
}

void HelpPages::CloseView() noexcept {
  context_.controls.RichTextBox1.Hide();
  context_.controls.File1.Hide();
}

}  // namespace zerimo
