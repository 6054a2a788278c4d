#include "files/editor.h"

#include "base/failure.h"
#include "base/text.h"
#include "files/program_text.h"
#include "interpreter/line_entry.h"

namespace zerimo {

void Editor::Bind() {
  dispatch.Bind(Action::Edit, [this](PrimitiveCall&) {
    PassOver([&] { controls.List4.Hide(); });
    PassOver([&] { controls.Text2.Show(); });
    PassOver([&] { controls.Focus.SetFocus(controls.Text2); });
    PassOver([&] { controls.Picture3.Hide(); });
  });
}

void Editor::Fold() {
  std::string& text = controls.Text2.Text;
  dispatch.Execute("SS");
  text = UpperCase(text);
  // The whole text is one input of the filter: only its two ends are trimmed.
  std::string original = text;
  text = SpaceFilter(original);
  store.MakeEmptyFileDataArray();
  FillFiledataArrayFromEdit();
}

void Editor::FillFiledataArrayFromEdit() {
  std::int16_t number = 1;
  FillStore(store, controls.Text2.Text, number);
  lowering.RemoveAllRepeats();
  ListStore(store, controls.List1);
  store.ProcedureList();
}

}  // namespace zerimo
