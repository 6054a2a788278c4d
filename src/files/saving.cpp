#include "files/saving.h"

#include <random>
#include <system_error>

#include "base/failure.h"
#include "base/text.h"
#include "files/disk_files.h"
#include "interpreter/line_entry.h"

namespace zerimo {

namespace {

namespace fs = std::filesystem;

constexpr const char* LineBreak = "\r\n";

}  // namespace

void Saving::ShowSaveAs() {
  std::string name;
  SkipOnFailure([&] { name = context_.services.ShowSave("Zerimo File(.ZRM)"); });
  if (Trimmed(name).empty()) return;
  // A full stop anywhere counts, even in a folder's name.
  if (!Contains(name, ".")) name += ".ZRM";
  SkipOnFailure([&] { SaveAs(name); });
}

void Saving::SaveAs(const std::string& saveAsFileName) {
  std::string text = context_.controls.Text2.Text;
  context_.folders.WriteFile(saveAsFileName, SpaceFilter(text) + LineBreak);
}

void Saving::SaveFromEditor() {
  const std::string name = context_.services.InputBox("Enter the file name", "Save As", programFiles_.CurrentFileName);
  // An empty answer, even from a cancelled box, writes the file ".ZRM".
  SaveAs(name + ".ZRM");
}

void Saving::ShowProcedure() {
  SkipOnFailure([&] { context_.services.MessageBox(context_.interpreter.store.ProcedureListInStringForm()); });
}

std::optional<fs::path> Saving::RescueEditorText(const std::vector<fs::path>& others) const {
  const std::string& text = context_.controls.Text2.Text;
  if (text.empty()) return std::nullopt;
  const Folders& folders = context_.folders;
  const std::string name = folders.AppFolder + "\\" + RescuedName;
  // Never fails: the name has just been used.
  if (SkipOnFailure([&] { folders.WriteFile(name, text); })) return folders.ToRead(name);
  for (const fs::path& folder : others) {
    std::error_code error;
    const bool isNew = fs::create_directories(folder, error);
    // Others may be able to look into the parent folder.
    if (isNew) fs::permissions(folder, fs::perms::owner_all, error);
    if (SkipOnFailure([&] { WriteBeside(folder / RescuedName, text); })) return folder / RescuedName;
  }
  return std::nullopt;
}

std::vector<fs::path> FoldersForRescue(const fs::path& stateFolder, const fs::path& temporaryFolder) {
  std::vector<fs::path> folders;
  if (!stateFolder.empty()) folders.push_back(stateFolder);
  if (!temporaryFolder.empty()) {
    std::random_device random;
    folders.push_back(temporaryFolder / ("zerimo-" + std::to_string(random()) + std::to_string(random())));
  }
  return folders;
}

}  // namespace zerimo
