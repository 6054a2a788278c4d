#include "console/diagnosis.h"

#include "base/numbers.h"

namespace zerimo {

void Diagnosis::Command1Click() { controls.Frame1.Hide(); }

void Diagnosis::Command2Click() {
  path.SetCtrlStr(".");
  variables.ForgetAll();
  lowering.ForgetNames();
  controls.Label17.Caption = "#-" + Str(0);
  // With the counter's mark, although a lowering writes the label's.
  controls.Label18.Caption = "#-" + Str(0);
}

void Diagnosis::Text3Change() { turtle.Resolution = Val(controls.Text3.Text); }

void Diagnosis::Text4Change() {
  const double width = Val(controls.Text4.Text);
  if (width > 0) Picture1.SetDrawWidth(ToInt16(width));
}

}  // namespace zerimo
