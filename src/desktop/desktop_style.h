#pragma once

namespace zerimo {

/// One look on every desktop, so that the places and colours of the controls fit: light panels, and a caret that can
/// be seen from afar.
void SetDesktopStyle();

}  // namespace zerimo
