#pragma once

#include <cstdint>

#include "graphics/drawing_context.h"

namespace zerimo {

enum class MouseButton { None, Left, Right, Middle };

/// What the mouse does on the surface and on the panels for choosing colours by hand. None of it is under the skip
/// rule.
class Palette {
 public:
  explicit Palette(const DrawingContext& context) : context_(context) {}

  /// The hint that follows the mouse; x and y are surface units. Fails at a `Resolution` of 0.
  void Picture1MouseMove(float x, float y);
  /// Returns the window to its place and gives the focus to the first empty row; a refused focus is ignored. Never
  /// fails.
  void Picture1Click();
  /// Places the dropped control.
  void Picture1DragDrop(Control& source, float x, float y) noexcept;
  void Picture2MouseMove(float x, float y);
  void Label13MouseDown(int index, MouseButton button, bool shift);
  void Label13MouseMove(int index);
  void Label14MouseMove() noexcept;
  void Label14Click();
  void HScroll1Change();
  void HScroll2Change();
  void Check1Click() noexcept;

  /// Where the pointer last was inside the palette.
  float PaletteGrabX = 0;
  std::int16_t PaletteGrabY = 0;
  /// Whether the next click on `Check1` hides the axes.
  bool CoordinatesOn = false;

 private:
  DrawingContext context_;
};

}  // namespace zerimo
