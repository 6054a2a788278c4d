#include "console/keys.h"

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

void Keys::Text1KeyDown(int index, int keyCode) {
  const int rows = controls.Text1.Size;
  switch (keyCode) {
    case key::Esc:
      ClosePanels();
      break;
    case key::Enter:
      EnterLine(index);
      break;
    case key::F1:
      PassOver([&] { dispatch.Execute("EDIT"); });
      break;
    case key::F2:
      PassOver([&] { dispatch.Execute("SS"); });
      break;
    case key::F3:
      PassOver([&] { dispatch.Execute("TS"); });
      break;
    case key::F4:
      PassOver([&] { dispatch.Execute("FS"); });
      break;
    case key::F9:
      PassOver([&] { AskForProgramFile(); });
      break;
    case key::Up:
      PassOver([&] { controls.Focus.SetFocus(controls.Text1[(index + rows - 1) % rows]); });
      break;
    case key::Down:
      PassOver([&] { controls.Focus.SetFocus(controls.Text1[(index + 1) % rows]); });
      break;
    default:
      break;
  }
}

void Keys::EnterLine(int index) {
  const int lastRow = controls.Text1.Size - 1;
  std::string typed = UpperCase(Trimmed(controls.Text1[index].Text));
  std::string line;
  PassOver([&] { line = SpaceFilter(typed); });
  lines.LastTypedLine = line;
  if (!line.empty() && line != " ") {
    controls.List4.Add("?" + line);
    if (index == lastRow) ScrollRows();
  }
  PassOver([&] { lines.ComplexExecutor(line); });
  if (index != lastRow) PassOver([&] { controls.Focus.SetFocus(controls.Text1[(index + 1) % controls.Text1.Size]); });
}

void Keys::ScrollRows() {
  const int lastRow = controls.Text1.Size - 1;
  for (int row = 0; row < lastRow; ++row) controls.Text1[row].Text = controls.Text1[row + 1].Text;
  controls.Text1[lastRow].Text.clear();
  // To the box for the line width, not to the row: refused, and passed over, unless the diagnosis panel is open.
  PassOver([&] { controls.Focus.SetFocus(controls.Text4); });
}

void Keys::ClosePanels() {
  controls.Frame1.Hide();
  controls.Picture2.Hide();
  help.CloseView();
}

void Keys::AskForProgramFile() {
  const std::string answer = services.InputBox("Enter the File Name", "Load Zerimo File");
  if (!answer.empty()) dispatch.Execute("LOAD " + answer);
}

void Keys::List4KeyDown(int keyCode) {
  if (keyCode == key::F1) dispatch.Execute("EDIT");
  if (keyCode == key::F2) dispatch.Execute("SS");
  if (keyCode == key::F3) dispatch.Execute("TS");
  if (keyCode == key::F4) dispatch.Execute("FS");
  if (keyCode == key::F9) AskForProgramFile();
}

void Keys::Picture1KeyDown(int keyCode) {
  if (keyCode == key::F1) dispatch.Execute("EDIT");
  if (keyCode == key::F2) {
    modes.RestoreSplitScreen();
    controls.Focus.SetFocus(controls.Text1[0]);
  }
  if (keyCode == key::F3) dispatch.Execute("TS");
  if (keyCode == key::F9) AskForProgramFile();
}

void Keys::Text2KeyDown(int keyCode) {
  if (keyCode == key::F2) editor.Fold();
  if (keyCode == key::F3) dispatch.Execute("TS");
  if (keyCode == key::F4) dispatch.Execute("FS");
  if (keyCode == key::F9) AskForProgramFile();
  if (keyCode == key::F10) saving.SaveFromEditor();
}

void Keys::RichTextBox1KeyDown(int keyCode) {
  if (keyCode == key::Esc) help.CloseView();
  if (keyCode == key::F11) help.SavePage();
}

void Keys::File1KeyDown(int keyCode) {
  if (keyCode == key::Esc) help.CloseView();
}

void Keys::Form1KeyDown(int keyCode) {
  if (keyCode == key::F2) modes.RestoreSplitScreen();
}

void Keys::Timer2Tick() {
  PassOver([&] { controls.Focus.SetFocus(controls.Text1[0]); });
  controls.Timer2.Enabled = false;
}

}  // namespace zerimo
