#pragma once

#include "web/page_shell.h"

/// What the page calls. Controls and timers go by their names, and an unknown name does nothing; places are in surface
/// units, and texts are UTF-8 with characters of the system alone.
namespace zerimo::web {

extern "C" {

// The linker keeps what is used, and so the page can call it.

/// The system works in the current folder; the font of printed text is in the root.
[[gnu::used]] PageShell* StartSystem(float width, float height);

[[gnu::used]] void Load(PageShell* shell);

/// These put what the user has changed into the control; no event of its own.
[[gnu::used]] void PutText(PageShell* shell, const char* name, const char* text);
[[gnu::used]] void PutEntry(PageShell* shell, const char* name, const char* entry);
[[gnu::used]] void PutValue(PageShell* shell, const char* name, int value);

[[gnu::used]] void Focus(PageShell* shell, const char* name);
[[gnu::used]] void Key(PageShell* shell, const char* name, int code);
[[gnu::used]] void Click(PageShell* shell, const char* name);
[[gnu::used]] void Change(PageShell* shell, const char* name);
[[gnu::used]] void MouseMove(PageShell* shell, const char* name, float x, float y);
[[gnu::used]] void MouseDown(PageShell* shell, const char* name, int right, int shift);
[[gnu::used]] void Drop(PageShell* shell, const char* name, float x, float y);
[[gnu::used]] void Tick(PageShell* shell, const char* name);
[[gnu::used]] void EndSlideShow(PageShell* shell);
[[gnu::used]] void Open(PageShell* shell, const char* file);

}  // extern "C"

}  // namespace zerimo::web
