#include "web/web_pictures.h"

#include <memory>

#include "web/font_text.h"
#include "web/stb_picture_files.h"

namespace zerimo::web {

WebPictures::WebPictures(const std::filesystem::path& fontFile)
    : canvas_(std::make_unique<FontText>(fontFile), std::make_unique<StbPictureFiles>()) {}

}  // namespace zerimo::web
