#pragma once

namespace zerimo {

/// The scale in percent that a start picks for a screen so wide (in pixels) that letters would be too small to read;
/// 100 for all others, and where the desktop scales its programs itself (`ratio` is not 1). Whole multiples keep the
/// pixels of the picture sharp.
int ScaleForScreen(int width, double ratio);

}  // namespace zerimo
