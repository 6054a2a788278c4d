#include <emscripten.h>

#include <string>

#include "batch/latin1.h"
#include "web/page_shell.h"

/// What the page calls. Controls and timers go by their names, places are in surface units, and texts are UTF-8 with
/// characters of the system alone.
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

EMSCRIPTEN_KEEPALIVE PageShell* StartSystem(float width, float height) {
  return new PageShell(ScreenSize{width, height}, "/font.ttf");
}

EMSCRIPTEN_KEEPALIVE void Load(PageShell* shell) {
  shell->Deliver([](Form1& form1) { form1.Load(); });
}

/// Puts what the user has changed into the control; no event of its own.
EMSCRIPTEN_KEEPALIVE void PutText(PageShell* shell, const char* name, const char* text) {
  auto* const box = dynamic_cast<TextBox*>(shell->form1.FindControl(name));
  if (box != nullptr) box->Text = batch::FromUtf8(text);
}

EMSCRIPTEN_KEEPALIVE void PutEntry(PageShell* shell, const char* name, const char* entry) {
  auto* const list = dynamic_cast<FileListBox*>(shell->form1.FindControl(name));
  if (list != nullptr) list->FileName = batch::FromUtf8(entry);
}

EMSCRIPTEN_KEEPALIVE void PutValue(PageShell* shell, const char* name, int value) {
  auto* const bar = dynamic_cast<ScrollBar*>(shell->form1.FindControl(name));
  if (bar != nullptr) bar->Value = value;
}

EMSCRIPTEN_KEEPALIVE void Focus(PageShell* shell, const char* name) {
  On(*shell, name, [](Form1& form1, Control& control) {
    if (control.IsOnScreen()) form1.controls.Focus.SetFocus(control);
  });
}

EMSCRIPTEN_KEEPALIVE void Key(PageShell* shell, const char* name, int code) {
  On(*shell, name, [&](Form1& form1, Control& control) {
    form1.KeyDown(form1.controls.Form1, code);
    if (&control != &form1.controls.Form1) form1.KeyDown(control, code);
  });
}

EMSCRIPTEN_KEEPALIVE void Click(PageShell* shell, const char* name) {
  On(*shell, name, [](Form1& form1, Control& control) { form1.Click(control); });
}

EMSCRIPTEN_KEEPALIVE void Change(PageShell* shell, const char* name) {
  On(*shell, name, [](Form1& form1, Control& control) { form1.Change(control); });
}

EMSCRIPTEN_KEEPALIVE void MouseMove(PageShell* shell, const char* name, float x, float y) {
  On(*shell, name, [&](Form1& form1, Control& control) { form1.MouseMove(control, x, y); });
}

EMSCRIPTEN_KEEPALIVE void MouseDown(PageShell* shell, const char* name, int right, int shift) {
  On(*shell, name, [&](Form1& form1, Control& control) {
    form1.MouseDown(control, right != 0 ? MouseButton::Right : MouseButton::Left, shift != 0, 0, 0);
  });
}

EMSCRIPTEN_KEEPALIVE void Drop(PageShell* shell, const char* name, float x, float y) {
  On(*shell, name, [&](Form1& form1, Control& control) { form1.DragDrop(control, x, y); });
}

EMSCRIPTEN_KEEPALIVE void Tick(PageShell* shell, const char* name) {
  Timer* const timer = shell->form1.FindTimer(name);
  if (timer != nullptr) shell->Deliver([&](Form1& form1) { form1.Tick(*timer); });
}

EMSCRIPTEN_KEEPALIVE void Open(PageShell* shell, const char* file) { shell->Open(batch::FromUtf8(file)); }

}  // extern "C"

}  // namespace zerimo::web
