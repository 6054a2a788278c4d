#include "files/editor.h"

#include "base/failure.h"
#include "base/text.h"
#include "files/program_files.h"
#include "interpreter/line_entry.h"

namespace zerimo {

void Editor::Bind() {
  interpreter_.dispatch.Bind("EDIT", [this](PrimitiveCall&) {
    SkipOnFailure([&] { controls_.List4.Hide(); });
    SkipOnFailure([&] { controls_.Text2.Show(); });
    SkipOnFailure([&] { controls_.Focus.SetFocus(controls_.Text2); });
    SkipOnFailure([&] { controls_.Picture3.Hide(); });
  });
}

void Editor::Fold() {
  std::string& text = controls_.Text2.Text;
  interpreter_.dispatch.Execute("SS");
  text = UpperCase(text);
  // The whole text is one input of the filter: only its two ends are trimmed.
  std::string original = text;
  text = SpaceFilter(original);
  interpreter_.store.MakeEmptyFileDataArray();
  FillFiledataArrayFromEdit();
}

void Editor::FillFiledataArrayFromEdit() {
  std::int16_t number = 1;
  FillStore(interpreter_.store, controls_.Text2.Text, number);
  interpreter_.lowering.RemoveAllRepeats();
  ListStore(interpreter_.store, controls_.List1);
  interpreter_.store.ProcedureList();
}

}  // namespace zerimo
