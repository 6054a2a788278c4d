/// What is read from outside without being run: directives, transcripts, records of a class, and the page made of them.

#include <QString>
#include <algorithm>

#include "batch/errors.h"
#include "batch/session_reader.h"
#include "classroom/record.h"
#include "classroom/report_page.h"
#include "classroom/transcript_reader.h"
#include "fuzz.h"
#include "memory_session.h"

namespace zerimo::fuzz {

namespace {

void ReadDirectives(std::string_view input) {
  static MemorySession session(Disk::Confined("/there is no such folder", "/there is no such folder"));
  try {
    session.Session().Read(input);
  } catch (const batch::SessionError& error) {
    Require(error.Line >= 1);
  }
}

/// A page with a text wherever a pupil can put one.
QByteArray PageWith(const classroom::PupilRun& read, const QString& text) {
  classroom::PupilRun run = read;
  run.Who = {"/class/A.ZRM", {}, text};
  run.Picture.clear();
  run.Outcome.Message = text;
  run.Outcome.Where = {1, text, text, text};
  run.Outcome.Typed = {text};
  run.Outcome.Notes = {text};
  run.Told.Lines = {text};
  run.Told.Boxes = {{"box", text, text, text, text}};
  run.Outcome.Source = {{text, QStringList{text}}};
  run.Outcome.Findings.clear();
  run.Outcome.Goals.clear();
  run.Outcome.By.clear();
  classroom::Report report;
  report.Folder = text;
  report.TaskTitle = text;
  report.Runs = {run};
  return classroom::PageOf(report);
}

/// However a pupil writes, no text becomes an element or an attribute of the page.
void CheckPage(const classroom::PupilRun& run, std::string_view input) {
  const QString text = QString::fromUtf8(input.data(), static_cast<qsizetype>(input.size()));
  QString harmless = text;
  for (QChar& character : harmless) {
    if (QStringLiteral("<>&\"'").contains(character)) character = u'x';
  }
  const QByteArray page = PageWith(run, text);
  const QByteArray plain = PageWith(run, harmless);
  for (const char mark : {'<', '>', '"'}) Require(page.count(mark) == plain.count(mark));
}

void ReadRecord(std::string_view input) {
  classroom::PupilRun run;
  if (const auto json = classroom::ParsedObject(std::string(input))) {
    run = classroom::RunIn(*json);
    const std::string once = classroom::Compact(classroom::JsonOf(run));
    const std::string twice = classroom::Compact(classroom::JsonOf(classroom::RunIn(*classroom::ParsedObject(once))));
    Require(once == twice);
  }
  CheckPage(run, input);
}

}  // namespace

void Try(std::string_view input) {
  ReadDirectives(input);
  const classroom::Said said = classroom::SaidIn(QByteArray(input.data(), static_cast<qsizetype>(input.size())));
  Require(said.Lines.size() <= classroom::MostLines && said.Boxes.size() <= classroom::MostBoxes);
  ReadRecord(input);
}

}  // namespace zerimo::fuzz
