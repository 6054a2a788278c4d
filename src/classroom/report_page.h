#pragma once

#include <QByteArray>
#include <vector>

#include "classroom/page_html.h"
#include "classroom/report.h"

namespace zerimo::classroom {

/// A class run for people: one HTML page in UTF-8 that needs and loads nothing else but the pictures that lie beside
/// it. Its one script is its own, and nothing is lost without it. Fails (file access) if a picture can't be written.
QByteArray PageOf(const Report& report, PictureSource pictures = PictureSource());

/// The page of one pupil, to be handed back, with nothing about anyone else.
QByteArray PageOfPupil(const Report& report, const PupilRun& run);

/// One page of a report that has several.
struct IndexEntry {
  QString File;
  QString First;
  QString Last;
  std::size_t Programs = 0;
  std::size_t Ended = 0;
  std::size_t Suspicious = 0;
};

/// The page that leads to the pages of a large report.
QByteArray IndexPage(const Report& report, const std::vector<IndexEntry>& entries);

}  // namespace zerimo::classroom
