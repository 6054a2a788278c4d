#include "console/diagnosis.h"

#include "base/numbers.h"

namespace zerimo {

void Diagnosis::Command1Click() noexcept { context_.controls.Frame1.Hide(); }

void Diagnosis::Command2Click() {
  interpreter_.controlPath.SetCtrlStr(".");
  interpreter_.variables.ForgetAll();
  interpreter_.lowering.ForgetNames();
  context_.controls.Label17.Caption = "#-" + Str(0);
  // "#-", although `REPEAT` shows "$-" here.
  context_.controls.Label18.Caption = "#-" + Str(0);
}

void Diagnosis::Text3Change() { context_.turtle.Resolution = Val(context_.controls.Text3.Text); }

void Diagnosis::Text4Change() {
  const double width = Val(context_.controls.Text4.Text);
  if (width > 0) context_.Picture1.SetDrawWidth(ToInt16(width));
}

}  // namespace zerimo
