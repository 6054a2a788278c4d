#pragma once

#include <QImage>
#include <QSize>
#include <filesystem>
#include <string>

namespace zerimo {

/// Reads the upper left part of a picture file, at most that large. The format follows from the content: BMP, CUR, GIF,
/// ICO, JPEG or PNG. Fails (file not found, invalid picture); a truncated or very large picture is an invalid one.
QImage ReadPictureFile(const std::filesystem::path& file, QSize largest);

/// Writes an image; the format follows from the file's ending (.bmp, .png, .jpg, .jpeg, any case). Fails (invalid
/// argument for another ending, file access if it can't be written), and then leaves a former file as it was.
void WritePictureFile(const QImage& image, const std::filesystem::path& file);

/// The ending of a file name, in small letters and with its point.
std::string EndingOf(const std::filesystem::path& file);

}  // namespace zerimo
