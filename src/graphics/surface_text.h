#pragma once

#include <string>

#include "graphics/drawing_context.h"

namespace zerimo {

/// Text that becomes part of the picture: `WRITE`, `WRITERGB`, `TEXTSIZE`. The pen state makes no difference.
class SurfaceText {
 public:
  explicit SurfaceText(const DrawingContext& context) : context_(context) {}

  /// Binds the primitives to their actions.
  void Bind();

 private:
  void TextSize(PrimitiveCall& call);
  void Write(PrimitiveCall& call);
  void WriteRGB(PrimitiveCall& call);

  void BeginAtTurtle();
  void PrintInColour(const std::string& text, double colour);

  DrawingContext context_;
};

}  // namespace zerimo
