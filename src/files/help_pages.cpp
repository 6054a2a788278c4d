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
  dispatch_.Bind(Action::Help, [this](PrimitiveCall& call) { Open(call); });
}

void HelpPages::Open(PrimitiveCall& call) {
  PassOver([&] { SetFolder(); });
  const std::string argument = call.Rest;
  call.OnFailure = [this, argument] { services_.MessageBox("Help is not available for " + argument); };
  try {
    const bool isGeneral = argument.empty() || argument == " ";
    LoadPage(PagesFolder + (isGeneral ? "HELP" : UpperCase(argument)));
    controls_.File1.Show();
    controls_.RichTextBox1.Show();
  } catch (const Failure&) {
    call.OnFailure();
  }
}

void HelpPages::SetFolder() {
  FileListBox& list = controls_.File1;
  list.Items = Folders::FilesIn(PagesFolder);
  list.Path = PagesFolder;
  list.FileName.clear();
}

void HelpPages::LoadPage(const std::string& file) {
  const std::string bytes = Folders::ReadFile(file);
  const bool isRich = IsRtf(bytes);
  const RichText page = isRich ? ReadRtf(bytes) : FromPlainText(IsUtf8(bytes) ? bytes : Utf8FromLatin1(bytes));
  RichTextView& view = controls_.RichTextBox1;
  view.FileName = file;
  view.Text = Latin1FromUtf8(PlainText(page));
  view.Document = isRich ? bytes : WriteRtf(page);
  ++view.Version;
}

void HelpPages::File1MouseDown() { LoadPage(PagesFolder + controls_.File1.FileName); }

void HelpPages::SavePage() {
  const std::string name = services_.InputBox("Enter the file name", "Save for Help");
  Folders::WriteFile(name, controls_.RichTextBox1.Document + "\r\n");
}

void HelpPages::CloseView() {
  controls_.RichTextBox1.Hide();
  controls_.File1.Hide();
}

}  // namespace zerimo
