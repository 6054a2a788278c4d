#include "console/screen_modes.h"

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

void ScreenModes::Bind() {
  dispatch.Bind(Action::FullScreen, [this](PrimitiveCall&) { FullScreen(); });
  dispatch.Bind(Action::SplitScreen, [this](PrimitiveCall&) { SplitScreen(); });
  dispatch.Bind(Action::TextScreen, [this](PrimitiveCall&) { TextScreen(); });
  dispatch.Bind(Action::ClearText, [this](PrimitiveCall&) { ClearText(); });
  dispatch.Bind(Action::Hide, [this](PrimitiveCall&) { Hide(); });
  dispatch.Bind(Action::Show, [this](PrimitiveCall& call) { Show(call); });
}

void ScreenModes::RestoreSplitScreen() {
  Picture1.SetHeight(controls.Form1.Height() - controls.Picture3.Height());
  controls.Picture3.Show();
  controls.Text2.Hide();
}

void ScreenModes::FullScreen() {
  controls.Text2.Hide();
  PassOver([&] { Picture1.SetHeight(controls.Form1.Height()); });
  PassOver([&] { controls.Image1.SetHeight(Picture1.Height()); });
  controls.Picture3.Hide();
  controls.List4.Hide();
}

void ScreenModes::SplitScreen() {
  PassOver([&] { Picture1.SetHeight(controls.Form1.Height() - controls.Picture3.Height()); });
  controls.Picture3.Show();
  // The walk is not left early, so that the focus ends on the topmost empty row.
  for (int row = controls.Text1.Size - 1; row >= 0; --row) {
    if (!Trimmed(controls.Text1[row].Text).empty()) continue;
    PassOver([&] { controls.Focus.SetFocus(controls.Text1[row]); });
  }
  controls.Text2.Hide();
  controls.List4.Hide();
}

void ScreenModes::TextScreen() {
  controls.List4.Show();
  controls.Text2.Hide();
  PassOver([&] { Picture1.SetHeight(controls.Screen.Height - controls.Picture3.Height()); });
  PassOver([&] { DefinedStatement(store, controls.List3, controls.List4); });
}

void ScreenModes::ClearText() {
  controls.List4.Clear();
  for (int row = 0; row < controls.Text1.Size; ++row) controls.Text1[row].Text.clear();
  controls.Timer2.Enabled = true;
}

void ScreenModes::Hide() {
  controls.Frame1.Hide();
  controls.Timer4.Enabled = false;
  controls.Picture2.Hide();
  controls.Timer4.Enabled = false;
  dispatch.DetailsOn = false;
  controls.Line5.Hide();
  controls.Line6.Hide();
  controls.Form1.SetCaption("Zerimo");
}

void ScreenModes::Show(const PrimitiveCall& call) {
  // The only place where small letters work.
  const std::string word = UpperCase(Trimmed(call.Rest));
  if (word == "OPEN") files.ShowOpen();
  if (word == "SAVEAS") saving.ShowSaveAs();
  if (word == "DIA" || word == "DIAGNOSIS") controls.Frame1.Show();
  if (word == "TIME") controls.Timer4.Enabled = true;
  if (word == "PAL" || word == "PALLETE") controls.Picture2.Show();
  if (word == "DETAILS") {
    controls.Timer4.Enabled = false;
    dispatch.DetailsOn = true;
  }
  if (word == "PROCEDURE") PassOver([&] { saving.ShowProcedure(); });
  if (word == "DEVELOPER" || word == "DEVELOPERS") ShowDeveloper();
  if (word == "GRID") {
    controls.Line5.Show();
    controls.Line6.Show();
  }
}

void ScreenModes::ShowDeveloper() {
  services.MessageBox(
      "This Product is Developed by\r"
      "----------------------------------\r"
      "*Mr. Dorrin Pask\r"
      "*Mr. Hadric Moll\r"
      "*Mr. Ostrane Velk\r"
      "*Mr. Ilmar Tessen",
      box::Information, "Zerimo Team");
}

}  // namespace zerimo
