#include "console/screen_modes.h"

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

void ScreenModes::Bind() {
  context_.dispatch.Bind("FS", [this](PrimitiveCall&) { FullScreen(); });
  context_.dispatch.Bind("SS", [this](PrimitiveCall&) { SplitScreen(); });
  context_.dispatch.Bind("TS", [this](PrimitiveCall&) { TextScreen(); });
  context_.dispatch.Bind("CT", [this](PrimitiveCall&) { ClearText(); });
  context_.dispatch.Bind("HIDE", [this](PrimitiveCall&) { Hide(); });
  context_.dispatch.Bind("SHOW", [this](PrimitiveCall& call) { Show(call); });
}

void ScreenModes::RestoreSplitScreen() {
  context_.Picture1.SetHeight(context_.controls.Form1.Height() - context_.controls.Picture3.Height());
  context_.controls.Picture3.Show();
  context_.controls.Text2.Hide();
}

void ScreenModes::FullScreen() {
  context_.controls.Text2.Hide();
  SkipOnFailure([&] { context_.Picture1.SetHeight(context_.controls.Form1.Height()); });
  SkipOnFailure([&] { context_.controls.Image1.SetHeight(context_.Picture1.Height()); });
  context_.controls.Picture3.Hide();
  context_.controls.List4.Hide();
}

void ScreenModes::SplitScreen() {
  SkipOnFailure(
      [&] { context_.Picture1.SetHeight(context_.controls.Form1.Height() - context_.controls.Picture3.Height()); });
  context_.controls.Picture3.Show();
  // The loop runs to the end, so that the focus ends on the topmost empty row.
  for (int row = context_.controls.Text1.Size - 1; row >= 0; --row) {
    if (!Trimmed(context_.controls.Text1[row].Text).empty()) continue;  // Never fails: there is such a row.
    SkipOnFailure([&] { context_.controls.Focus.SetFocus(context_.controls.Text1[row]); });
  }
  context_.controls.Text2.Hide();
  context_.controls.List4.Hide();
}

void ScreenModes::TextScreen() {
  context_.controls.List4.Show();
  context_.controls.Text2.Hide();
  SkipOnFailure(
      [&] { context_.Picture1.SetHeight(context_.controls.Screen.Height - context_.controls.Picture3.Height()); });
  SkipOnFailure([&] { DefinedStatement(); });
}

void ScreenModes::DefinedStatement() {
  context_.controls.List3.Clear();
  for (int number = 1; !store_.Line(number).empty(); ++number) {
    if (store_.ClassOf(number) != StmtTo) continue;
    LentLine line(store_, number);
    const std::string name = GiveWord(line.Text, 2);
    if (name.find_first_of("$#") == std::string::npos) context_.controls.List4.Add(name + " is Defined");
  }
}

void ScreenModes::ClearText() {
  context_.controls.List4.Clear();
  // Never fails: there are such rows.
  for (int row = 0; row < context_.controls.Text1.Size; ++row) context_.controls.Text1[row].Text.clear();
  context_.controls.Timer2.Enabled = true;
}

void ScreenModes::Hide() {
  context_.controls.Frame1.Hide();
  context_.controls.Timer4.Enabled = false;
  context_.controls.Picture2.Hide();
  context_.controls.Timer4.Enabled = false;
  context_.dispatch.DetailsOn = false;
  context_.controls.Line5.Hide();
  context_.controls.Line6.Hide();
  context_.controls.Form1.SetCaption("Zerimo");
}

void ScreenModes::Show(const PrimitiveCall& call) {
  // The only place where small letters work.
  const std::string word = UpperCase(Trimmed(call.Input));
  if (word == "OPEN") files_.programFiles.ShowOpen();
  if (word == "SAVEAS") files_.saving.ShowSaveAs();
  if (word == "DIA" || word == "DIAGNOSIS") context_.controls.Frame1.Show();
  if (word == "TIME") context_.controls.Timer4.Enabled = true;
  if (word == "PAL" || word == "PALLETE") context_.controls.Picture2.Show();
  if (word == "DETAILS") {
    context_.controls.Timer4.Enabled = false;
    context_.dispatch.DetailsOn = true;
  }
  if (word == "PROCEDURE") SkipOnFailure([&] { files_.saving.ShowProcedure(); });
  if (word == "DEVELOPER" || word == "DEVELOPERS") ShowDeveloper();
  if (word == "GRID") {
    context_.controls.Line5.Show();
    context_.controls.Line6.Show();
  }
}

void ScreenModes::ShowDeveloper() {
  context_.services.MessageBox(
      "This Product is Developed by\r"
      "----------------------------------\r"
      "*Mr. Dorrin Pask\r"
      "*Mr. Hadric Moll\r"
      "*Mr. Ostrane Velk\r"
      "*Mr. Ilmar Tessen",
      box::Information, "Zerimo Team");
}

}  // namespace zerimo
