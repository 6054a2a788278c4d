#pragma once

#include "files/files.h"
#include "graphics/drawing_context.h"

namespace zerimo {

/// The screen modes: `FS`, `SS`, `TS`, `CT`, `HIDE` and `SHOW`. No field holds the mode: it consists only of which
/// controls are visible and how high the surface is.
class ScreenModes {
 public:
  ScreenModes(const DrawingContext& context, Store& store, Files& files)
      : context_(context), store_(store), files_(files) {}

  /// Binds the primitives to their actions.
  void Bind();

  /// Brings back the split screen without `Executor`: F2 on the surface and on the form.
  void RestoreSplitScreen();

 private:
  void FullScreen();
  /// Never fails.
  void SplitScreen();
  void TextScreen();
  /// Empties `List3` and adds to `List4` a line for each defined procedure of the learner's. Fails at a full store.
  void DefinedStatement();
  /// Never fails.
  void ClearText();
  void Hide();
  void Show(const PrimitiveCall& call);
  void ShowDeveloper();

  DrawingContext context_;
  Store& store_;
  Files& files_;
};

}  // namespace zerimo
