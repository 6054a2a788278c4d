#pragma once

/// What is used of the stb libraries, with the same settings wherever they are included.
#define STBI_ONLY_BMP
#define STBI_ONLY_GIF
#define STBI_ONLY_JPEG
#define STBI_ONLY_PNG
#define STBI_NO_STDIO
#define STBI_WRITE_NO_STDIO
#include <stb_image.h>
#include <stb_image_write.h>
#include <stb_truetype.h>
