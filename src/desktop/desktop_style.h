#pragma once

namespace zerimo {

/// Gives the program the same look on every desktop, so that the sizes and colours of the controls fit: light panels,
/// and a caret that can be seen from the back of a classroom.
void SetDesktopStyle();

}  // namespace zerimo
