#include "console/keys.h"

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

void Keys::Text1KeyDown(int index, int keyCode) {
  const int rows = context_.controls.Text1.Size;
  switch (keyCode) {
    case key::Esc:
      ClosePanels();
      break;
    case key::Enter:
      EnterLine(index);
      break;
    case key::F1:
      SkipOnFailure([&] { context_.dispatch.Execute("EDIT"); });
      break;
    case key::F2:
      SkipOnFailure([&] { context_.dispatch.Execute("SS"); });
      break;
    case key::F3:
      SkipOnFailure([&] { context_.dispatch.Execute("TS"); });
      break;
    case key::F4:
      SkipOnFailure([&] { context_.dispatch.Execute("FS"); });
      break;
    case key::F9:
      SkipOnFailure([&] { AskForProgramFile(); });
      break;
    case key::Up:
      SkipOnFailure([&] { context_.controls.Focus.SetFocus(context_.controls.Text1[(index + rows - 1) % rows]); });
      break;
    case key::Down:
      SkipOnFailure([&] { context_.controls.Focus.SetFocus(context_.controls.Text1[(index + 1) % rows]); });
      break;
    default:
      break;
  }
}

void Keys::EnterLine(int index) {
  const int lastRow = context_.controls.Text1.Size - 1;
  // Never fails: the index is that of the row that has the key.
  std::string typed = UpperCase(Trimmed(context_.controls.Text1[index].Text));
  std::string line;
  SkipOnFailure([&] { line = SpaceFilter(typed); });
  typedLines_.LastTypedLine = line;
  if (!line.empty() && line != " ") {
    context_.controls.List4.Add("?" + line);
    if (index == lastRow) ScrollRows();
  }
  SkipOnFailure([&] { typedLines_.ComplexExecutor(line); });
  if (index != lastRow)
    SkipOnFailure(
        [&] { context_.controls.Focus.SetFocus(context_.controls.Text1[(index + 1) % context_.controls.Text1.Size]); });
}

void Keys::ScrollRows() {
  const int lastRow = context_.controls.Text1.Size - 1;
  // Never fails: there are such rows.
  for (int row = 0; row < lastRow; ++row) context_.controls.Text1[row].Text = context_.controls.Text1[row + 1].Text;
  context_.controls.Text1[lastRow].Text.clear();  // Never fails.
  // To the box for the line width, not to the row. Unless the diagnosis panel is open, that is refused and ignored.
  SkipOnFailure([&] { context_.controls.Focus.SetFocus(context_.controls.Text4); });
}

void Keys::ClosePanels() noexcept {
  context_.controls.Frame1.Hide();
  context_.controls.Picture2.Hide();
  files_.helpPages.CloseView();
}

void Keys::AskForProgramFile() {
  const std::string answer = context_.services.InputBox("Enter the File Name", "Load Zerimo File");
  if (!answer.empty()) context_.dispatch.Execute("LOAD " + answer);
}

void Keys::List4KeyDown(int keyCode) {
  if (keyCode == key::F1) context_.dispatch.Execute("EDIT");
  if (keyCode == key::F2) context_.dispatch.Execute("SS");
  if (keyCode == key::F3) context_.dispatch.Execute("TS");
  if (keyCode == key::F4) context_.dispatch.Execute("FS");
  if (keyCode == key::F9) AskForProgramFile();
}

void Keys::Picture1KeyDown(int keyCode) {
  if (keyCode == key::F1) context_.dispatch.Execute("EDIT");
  if (keyCode == key::F2) {
    screenModes_.RestoreSplitScreen();
    context_.controls.Focus.SetFocus(context_.controls.Text1[0]);
  }
  if (keyCode == key::F3) context_.dispatch.Execute("TS");
  if (keyCode == key::F9) AskForProgramFile();
}

void Keys::Text2KeyDown(int keyCode) {
  if (keyCode == key::F2) files_.editor.Fold();
  if (keyCode == key::F3) context_.dispatch.Execute("TS");
  if (keyCode == key::F4) context_.dispatch.Execute("FS");
  if (keyCode == key::F9) AskForProgramFile();
  if (keyCode == key::F10) files_.saving.SaveFromEditor();
}

void Keys::RichTextBox1KeyDown(int keyCode) {
  if (keyCode == key::Esc) files_.helpPages.CloseView();
  if (keyCode == key::F11) files_.helpPages.SavePage();
}

void Keys::File1KeyDown(int keyCode) noexcept {
  if (keyCode == key::Esc) files_.helpPages.CloseView();
}

void Keys::Form1KeyDown(int keyCode) {
  if (keyCode == key::F2) screenModes_.RestoreSplitScreen();
}

void Keys::Timer2Tick() {
  SkipOnFailure([&] { context_.controls.Focus.SetFocus(context_.controls.Text1[0]); });
  context_.controls.Timer2.Enabled = false;
}

}  // namespace zerimo
