#include "files/program_files.h"

#include <array>

#include "base/failure.h"
#include "base/text.h"
#include "files/program_text.h"

namespace zerimo {

namespace {

constexpr int EndingLength = 4;

std::string EndingInCapitals(const std::string& name) {
  if (name.size() < EndingLength) return {};
  return UpperCase(name.substr(name.size() - EndingLength));
}

std::string WithoutEnding(const std::string& name) { return name.substr(0, name.size() - EndingLength); }

}  // namespace

ProgramFiles::ProgramFiles(ProgramStore& programStore, Lowering& repeatLowering, Variables& allVariables,
                           FormControls& formControls, Services& desktop, Dispatch& dispatcher,
                           const Folders& theFolders, Pictures& thePictures)
    : store_(programStore),
      lowering_(repeatLowering),
      variables_(allVariables),
      controls_(formControls),
      services_(desktop),
      dispatch_(dispatcher),
      folders_(theFolders),
      pictures_(thePictures) {}

bool ProgramFiles::IsProgramName(const std::string& name) { return EndingInCapitals(name) == ".ZRM"; }

void ProgramFiles::Bind() {
  dispatch_.Bind(Action::Load, [this](PrimitiveCall& call) { Load(call); });
}

void ProgramFiles::Load(PrimitiveCall& call) {
  if (dispatch_.TellMissingInput(call, Action::Load)) return;
  CurrentFileName = Trimmed(call.Rest);
  if (!Folders::HasFolder(call.Rest)) call.Rest = folders_.AppFolder + "\\" + call.Rest;
  FileLoad(call.Rest);
  // Also when the file could not be loaded.
  PassOver([&] { variables_.CreateGlobalVariable(); });
  PassOver([&] { lowering_.RemoveAllRepeats(); });
}

void ProgramFiles::FileLoad(const std::string& nameOfTheFileWithoutExtension) {
  const std::string path(Trimmed(nameOfTheFileWithoutExtension + ".ZRM"));
  try {
    LoadedText = Folders::ReadFile(path);
    // Behind what the editor holds, with no line end between the two.
    controls_.Text2.Text += LoadedText;
    MakeArray(path);
  } catch (const Failure&) {
    services_.MessageBox("Unable to Load File " + path, box::AbortRetryIgnore, "Zerimo");
  }
}

void ProgramFiles::MakeArray(const std::string& file) {
  const std::string text = Folders::ReadFile(file);
  store_.FileDataCount = static_cast<std::int16_t>(store_.FirstEmptyLine());
  FillStore(store_, text, store_.FileDataCount);
  lowering_.RemoveAllRepeats();
  ListStore(store_, controls_.List1);
  store_.ProcedureList();
}

void ProgramFiles::ShowOpen() {
  std::string name;
  PassOver([&] { name = Trimmed(services_.ShowOpen()); });
  if (name.empty()) return;
  const std::string ending = EndingInCapitals(name);
  if (IsProgramName(name)) {
    OpenProgram(WithoutEnding(name));
  } else if (ending == ".JPG" || ending == ".BMP" || ending == ".GIF") {
    OpenPicture(name);
  } else {
    PassOver([&] { services_.MessageBox("Invalid File Format", box::Critical, "Zerimo"); });
  }
}

void ProgramFiles::OpenProgram(const std::string& name) {
  // A blank behind the question mark, unlike the entries of typed lines.
  PassOver([&] { controls_.List4.Add("? LOAD " + name); });
  PassOver([&] { dispatch_.Execute("LOAD " + name); });
}

void ProgramFiles::OpenPicture(const std::string& name) {
  PassOver([&] { pictures_.ShowPicture(name); });
  PassOver([&] { controls_.List4.Add("? LOADPICTURE " + UpperCase(WithoutEnding(name))); });
}

}  // namespace zerimo
