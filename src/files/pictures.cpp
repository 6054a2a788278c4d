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

/// The endings that `LOADPICTURE` tries, all of them: the last file that is there stays.
constexpr std::array<const char*, 5> EndingsTried = {".CUR", ".ICO", ".GIF", ".BMP", ".JPG"};

}  // namespace

void Pictures::Bind() {
  context_.interpreter.dispatch.Bind(Action::SavePicture, [this](PrimitiveCall& call) { SavePicture(call); });
  context_.interpreter.dispatch.Bind(Action::LoadPicture, [this](PrimitiveCall& call) { LoadPicture(call); });
  context_.interpreter.dispatch.Bind(Action::SlideShow, [this](PrimitiveCall& call) { SlideShow(call); });
}

void Pictures::ShowPicture(const std::string& fileName) {
  const std::filesystem::path file = context_.folders.ToRead(fileName);
  std::error_code error;
  // A pipe of that name would hold the system for ever.
  if (!std::filesystem::is_regular_file(file, error)) throw Failure(FailureKind::FileNotFound);
  Picture1.SetPicture(file, fileName);
}

void Pictures::SavePicture(PrimitiveCall& call) {
  if (context_.interpreter.dispatch.TellMissingInput(call, Action::SavePicture)) return;
  // Also in front of a name that has a folder, unlike the other primitives.
  call.Rest = context_.folders.AppFolder + "\\" + call.Rest;
  call.Rest += ".Bmp";
  PassOver([&] { Picture1.SavePicture(context_.folders.ToWrite(call.Rest)); });
}

void Pictures::LoadPicture(PrimitiveCall& call) {
  if (context_.interpreter.dispatch.TellMissingInput(call, Action::LoadPicture)) return;
  // With its folder in front, the name NONE clears nothing: it is looked for as a file like any other.
  if (!Folders::HasFolder(call.Rest)) call.Rest = context_.folders.AppFolder + "\\" + call.Rest;
  for (const char* ending : EndingsTried) PassOver([&] { ShowPicture(call.Rest + ending); });
}

void Pictures::SlideShow(PrimitiveCall& call) {
  std::string base;
  std::string interval;
  PassOver([&] { base = GiveWord(call.Rest, 1); });
  PassOver([&] { interval = GiveWord(call.Rest, 2); });
  if (base.empty() || interval.empty()) return;
  context_.controls.Timer3.Enabled = true;
  // The one place that does not use the backslash.
  SlideBaseName = context_.folders.AppFolder + "/" + base;
  const double milliseconds = context_.interpreter.arguments.Number(interval);
  PassOver([&] { context_.controls.Timer3.Interval = ToInt16(milliseconds); });
}

void Pictures::Timer3Tick() {
  try {
    SlideCounter = AddInt16(SlideCounter, 1);
    SlideFileName = UpperCase(std::string(Trimmed(SlideBaseName)) + StrTrimmed(SlideCounter) + ".JPG");
    ShowPicture(SlideFileName);
  } catch (const Failure&) {
    // The first number without a file is the regular end of a show.
    SlideCounter = 0;
    context_.controls.Timer3.Enabled = false;
  }
}

}  // namespace zerimo
