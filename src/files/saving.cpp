#include "files/saving.h"

#include "base/failure.h"
#include "base/text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

namespace {

constexpr const char* LineEnd = "\r\n";

}  // namespace

void Saving::ShowSaveAs() {
  std::string name;
  PassOver([&] { name = context_.services.ShowSave("Zerimo File(.ZRM)"); });
  if (Trimmed(name).empty()) return;
  // A full stop anywhere counts, also one in a folder's name.
  if (!Contains(name, ".")) name += ".ZRM";
  PassOver([&] { SaveAs(name); });
}

void Saving::SaveAs(const std::string& saveAsFileName) {
  std::string text = context_.controls.Text2.Text;
  context_.folders.WriteFile(saveAsFileName, SpaceFilter(text) + LineEnd);
}

void Saving::SaveFromEditor() {
  const std::string name = context_.services.InputBox("Enter the file name", "Save As", programFiles_.CurrentFileName);
  // An empty answer, also that of a cancelled box, writes the file ".ZRM".
  SaveAs(name + ".ZRM");
}

void Saving::ShowProcedure() {
  PassOver([&] { context_.services.MessageBox(context_.interpreter.store.ProcedureListInStringForm()); });
}

bool Saving::RescueEditorText() const {
  if (context_.controls.Text2.Text.empty()) return false;
  const Folders& folders = context_.folders;
  return PassOver([&] { folders.WriteFile(folders.AppFolder + "\\Rescued.ZRM", context_.controls.Text2.Text); });
}

}  // namespace zerimo
