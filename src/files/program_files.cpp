#include "files/program_files.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"

namespace zerimo {

namespace {

constexpr char CarriageReturn = '\r';

bool IsKept(char character) noexcept { return character >= 32 && character <= 126; }

/// Adds the kept characters of a piece to the end of a line; stale text in it stays before them. Returns whether
/// there were any.
bool AppendToLine(Store& store, int number, std::string_view piece) {
  std::string kept;
  std::copy_if(piece.begin(), piece.end(), std::back_inserter(kept), IsKept);
  if (kept.empty()) return false;
  store.SetLine(number, store.Line(number) + kept);
  return true;
}

constexpr int EndingLength = 4;

std::string EndingInCapitals(const std::string& name) {
  if (name.size() < EndingLength) return {};
  return UpperCase(name.substr(name.size() - EndingLength));
}

std::string WithoutEnding(const std::string& name) { return name.substr(0, name.size() - EndingLength); }

}  // namespace

void FillStore(Store& store, std::string_view text, std::int16_t& number) {
  bool lineJustEnded = text.substr(0, 1) == "\r";
  while (!text.empty()) {
    const auto end = text.find(CarriageReturn);
    if (AppendToLine(store, number, text.substr(0, end))) lineJustEnded = false;
    if (end == std::string_view::npos) return;
    if (!lineJustEnded) number = AddInt16(number, 1);
    lineJustEnded = true;
    text.remove_prefix(end + 1);
  }
}

ProgramFiles::ProgramFiles(const FilesContext& context, Pictures& pictures) : context_(context), pictures_(pictures) {}

bool ProgramFiles::IsProgramName(const std::string& name) { return EndingInCapitals(name) == ".ZRM"; }

void ProgramFiles::Bind() {
  context_.interpreter.dispatch.Bind("LOAD", [this](PrimitiveCall& call) { Load(call); });
}

void ProgramFiles::Load(PrimitiveCall& call) {
  if (context_.interpreter.dispatch.TellMissingInput(call, "LOAD")) return;
  CurrentFileName = Trimmed(call.Rest());
  if (!Folders::HasFolder(call.Rest())) call.Rest() = context_.folders.AppFolder + "\\" + call.Rest();
  FileLoad(call.Rest());
  // Even if the file could not be loaded.
  SkipOnFailure([&] { context_.interpreter.variables.CreateGlobalVariable(); });
  SkipOnFailure([&] { context_.interpreter.lowering.RemoveAllRepeats(); });
}

void ProgramFiles::FileLoad(const std::string& nameOfTheFileWithoutExtension) {
  const std::string path(Trimmed(nameOfTheFileWithoutExtension + ".ZRM"));
  try {
    LoadedText = context_.folders.ReadFile(path);
    // After what the editor holds, with no line end in between.
    context_.controls.Text2.Text += LoadedText;
    MakeArray(path);
  } catch (const Failure&) {
    context_.services.MessageBox("Unable to Load File " + path, box::AbortRetryIgnore, "Zerimo");
  }
}

void ProgramFiles::MakeArray(const std::string& file) {
  const std::string text = context_.folders.ReadFile(file);
  context_.interpreter.store.FileDataCount = static_cast<std::int16_t>(context_.interpreter.store.FirstEmptyLine());
  FillStore(context_.interpreter.store, text, context_.interpreter.store.FileDataCount);
  context_.interpreter.lowering.RemoveAllRepeats();
  ListStore(context_.interpreter.store, context_.controls.List1);
  context_.interpreter.store.ProcedureList();
}

void ProgramFiles::ShowOpen() {
  std::string name;
  SkipOnFailure([&] { name = Trimmed(context_.services.ShowOpen()); });
  if (name.empty()) return;
  const std::string ending = EndingInCapitals(name);
  if (IsProgramName(name)) {
    OpenProgram(WithoutEnding(name));
  } else if (ending == ".JPG" || ending == ".BMP" || ending == ".GIF") {
    OpenPicture(name);
  } else {
    SkipOnFailure([&] { context_.services.MessageBox("Invalid File Format", box::Critical, "Zerimo"); });
  }
}

void ProgramFiles::OpenProgram(const std::string& name) {
  // A blank after the question mark, unlike in the entries of typed lines.
  SkipOnFailure([&] { context_.controls.List4.Add("? LOAD " + name); });
  SkipOnFailure([&] { context_.interpreter.dispatch.Execute("LOAD " + name); });
}

void ProgramFiles::OpenPicture(const std::string& name) {
  SkipOnFailure([&] { pictures_.ShowPicture(name); });
  SkipOnFailure([&] { context_.controls.List4.Add("? LOADPICTURE " + UpperCase(WithoutEnding(name))); });
}

}  // namespace zerimo
