#include "programs/zerimo_page.h"

#include "batch/latin1.h"
#include "files/folders.h"

namespace zerimo::web {

namespace {

/// Calls `act(form1, control)` as an event, if there is such a control.
template <typename Act>
void On(PageShell& shell, const char* name, Act&& act) {
  Control* const control = shell.form1.FindControl(name);
  if (control == nullptr) return;
  shell.Deliver([&](Form1& form1) { act(form1, *control); });
}

}  // namespace

extern "C" {

PageShell* StartSystem(float width, float height) {
  return new PageShell(ScreenSize{width, height}, "/font.ttf", Folders(AppFolderName(std::filesystem::current_path())));
}

void Load(PageShell* shell) {
  shell->Deliver([](Form1& form1) { form1.Load(); });
}

void PutText(PageShell* shell, const char* name, const char* text) {
  auto* const box = dynamic_cast<TextBox*>(shell->form1.FindControl(name));
  if (box != nullptr) box->Text = batch::FromUtf8(text);
}

void PutEntry(PageShell* shell, const char* name, const char* entry) {
  auto* const list = dynamic_cast<FileListBox*>(shell->form1.FindControl(name));
  if (list != nullptr) list->FileName = batch::FromUtf8(entry);
}

void PutValue(PageShell* shell, const char* name, int value) {
  auto* const bar = dynamic_cast<ScrollBar*>(shell->form1.FindControl(name));
  if (bar != nullptr) bar->Value = value;
}

void Focus(PageShell* shell, const char* name) {
  On(*shell, name, [](Form1& form1, Control& control) {
    if (control.IsOnScreen()) form1.controls.Focus.SetFocus(control);
  });
}

void Key(PageShell* shell, const char* name, int code) {
  On(*shell, name, [&](Form1& form1, Control& control) {
    form1.KeyDown(form1.controls.Form1, code);
    if (&control != &form1.controls.Form1) form1.KeyDown(control, code);
  });
}

void Click(PageShell* shell, const char* name) {
  On(*shell, name, [](Form1& form1, Control& control) { form1.Click(control); });
}

void Change(PageShell* shell, const char* name) {
  On(*shell, name, [](Form1& form1, Control& control) { form1.Change(control); });
}

void MouseMove(PageShell* shell, const char* name, float x, float y) {
  On(*shell, name, [&](Form1& form1, Control& control) { form1.MouseMove(control, x, y); });
}

void MouseDown(PageShell* shell, const char* name, int right, int shift) {
  On(*shell, name, [&](Form1& form1, Control& control) {
    form1.MouseDown(control, right != 0 ? MouseButton::Right : MouseButton::Left, shift != 0, 0, 0);
  });
}

void Drop(PageShell* shell, const char* name, float x, float y) {
  On(*shell, name, [&](Form1& form1, Control& control) { form1.DragDrop(control, x, y); });
}

void Tick(PageShell* shell, const char* name) {
  Timer* const timer = shell->form1.FindTimer(name);
  if (timer != nullptr) shell->Deliver([&](Form1& form1) { form1.Tick(*timer); });
}

void EndSlideShow(PageShell* shell) {
  shell->Deliver([](Form1& form1) {
    if (form1.controls.Timer3.Enabled) form1.files.pictures.EndSlideShow();
  });
}

void Open(PageShell* shell, const char* file) { shell->Open(batch::FromUtf8(file)); }

}  // extern "C"

}  // namespace zerimo::web
