#pragma once

#include <string_view>

namespace zerimo {

/// Whether the content of a picture file ("bmp", "jpeg", "gif", "png") is complete: the decoders accept some truncated
/// pictures and show what there is. Icons always count as complete, since their decoder notices.
bool IsWholePicture(std::string_view content, std::string_view format);

}  // namespace zerimo
