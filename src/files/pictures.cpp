#include "files/pictures.h"

#include <array>
#include <filesystem>
#include <system_error>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

namespace {

/// `LOADPICTURE` tries all these endings: the last file found stays.
constexpr std::array<const char*, 5> EndingsTried = {".CUR", ".ICO", ".GIF", ".BMP", ".JPG"};

}  // namespace

void Pictures::Bind() {
  context_.interpreter.dispatch.Bind("SAVEPICTURE", [this](PrimitiveCall& call) { SavePicture(call); });
  context_.interpreter.dispatch.Bind("LOADPICTURE", [this](PrimitiveCall& call) { LoadPicture(call); });
  context_.interpreter.dispatch.Bind("SLIDESHOW", [this](PrimitiveCall& call) { SlideShow(call); });
}

void Pictures::ShowPicture(const std::string& fileName) {
  const std::filesystem::path file = context_.folders.ToRead(fileName);
  std::error_code error;
  // Reading a pipe might wait for ever.
  if (!std::filesystem::is_regular_file(file, error)) throw Failure(FailureKind::FileNotFound);
  Picture1.SetPicture(file, fileName);
}

void Pictures::SavePicture(PrimitiveCall& call) {
  if (context_.interpreter.dispatch.TellMissingInput(call, "SAVEPICTURE")) return;
  // Even if the name has a folder, unlike in the other primitives.
  call.Rest() = context_.folders.AppFolder + "\\" + call.Rest();
  call.Rest() += ".Bmp";
  SkipOnFailure([&] { Picture1.SavePicture(context_.folders.ToWrite(call.Rest())); });
}

void Pictures::LoadPicture(PrimitiveCall& call) {
  if (context_.interpreter.dispatch.TellMissingInput(call, "LOADPICTURE")) return;
  // The folder goes before NONE too, so NONE clears nothing: it is a file name like any other.
  if (!Folders::HasFolder(call.Rest())) call.Rest() = context_.folders.AppFolder + "\\" + call.Rest();
  for (const char* ending : EndingsTried) SkipOnFailure([&] { ShowPicture(call.Rest() + ending); });
}

void Pictures::SlideShow(PrimitiveCall& call) {
  std::string base;
  std::string interval;
  SkipOnFailure([&] { base = GiveWord(call.Rest(), 1); });
  SkipOnFailure([&] { interval = GiveWord(call.Rest(), 2); });
  if (base.empty() || interval.empty()) return;
  context_.controls.Timer3.Enabled = true;
  // The only place that does not use a backslash.
  SlideBaseName = context_.folders.AppFolder + "/" + base;
  const double milliseconds = context_.interpreter.arguments.Number(interval);
  SkipOnFailure([&] { context_.controls.Timer3.Interval = ToInt16(milliseconds); });
}

void Pictures::Timer3Tick() {
  try {
    SlideCounter = AddInt16(SlideCounter, 1);
    SlideFileName = UpperCase(std::string(Trimmed(SlideBaseName)) + StrTrimmed(SlideCounter) + ".JPG");
    ShowPicture(SlideFileName);
  } catch (const Failure&) {
    // The first number without a file is the normal end of a show.
    EndSlideShow();
  }
}

void Pictures::EndSlideShow() noexcept {
  SlideCounter = 0;
  context_.controls.Timer3.Enabled = false;
}

}  // namespace zerimo
