#include "batch/dumps.h"

#include <array>
#include <map>

namespace zerimo::batch {

namespace {

using NumberedTexts = std::vector<std::pair<int, std::string>>;

JsonLine DumpEvent(const char* what) { return JsonLine("dump").Text("what", what); }

JsonLine DumpStore(const Form1& form1) {
  std::vector<std::string> lines;
  for (int number = 1; number <= Store::LineCount && !form1.interpreter.store.Line(number).empty(); ++number) {
    lines.push_back(form1.interpreter.store.Line(number));
  }
  return DumpEvent("store").Texts("lines", lines);
}

JsonLine DumpStoreAll(const Form1& form1) {
  NumberedTexts lines;
  for (int number = 1; number <= Store::LineCount; ++number) {
    if (!form1.interpreter.store.Line(number).empty()) lines.emplace_back(number, form1.interpreter.store.Line(number));
  }
  return DumpEvent("storeall").TextsByNumber("lines", lines);
}

JsonLine DumpVariables(const Form1& form1) {
  NumberedTexts slots;
  for (int number = 1; number <= Variables::SlotCount; ++number) {
    if (!form1.interpreter.variables.Slot(number).empty())
      slots.emplace_back(number, form1.interpreter.variables.Slot(number));
  }
  return DumpEvent("variables").TextsByNumber("slots", slots);
}

void AppendInterpreter(JsonLine& event, const Form1& form1) {
  event.Text("CtrlStr", form1.interpreter.controlPath.CtrlStr())
      .Text("CurProcName", form1.interpreter.controlPath.CurProcName)
      .Number("FileDataCount", form1.interpreter.store.FileDataCount)
      .Flag("DetailsOn", form1.interpreter.dispatch.DetailsOn)
      .Number("TempProcNo", form1.interpreter.typedLines.TempProcNo)
      .Number("OverflowCount", form1.interpreter.dispatch.OverflowCount)
      .Text("LastTypedLine", form1.interpreter.typedLines.LastTypedLine)
      .Text("RepeatCounterName", form1.interpreter.lowering.RepeatCounterName)
      .Text("RepeatLabelName", form1.interpreter.lowering.RepeatLabelName);
}

void AppendTurtle(JsonLine& event, const Turtle& turtle) {
  event.Number("TurtleX", turtle.TurtleX)
      .Number("TurtleY", turtle.TurtleY)
      .Number("TurtleDir", turtle.TurtleDir)
      .Number("Resolution", turtle.Resolution)
      .Number("FenceMode", static_cast<double>(turtle.FenceMode))
      .Number("PenState", static_cast<double>(turtle.PenState))
      .Number("PenColor", turtle.PenColor)
      .Number("BGColor", turtle.BGColor);
}

JsonLine DumpState(const Form1& form1) {
  JsonLine event = DumpEvent("state");
  AppendInterpreter(event, form1);
  AppendTurtle(event, form1.turtle);
  const Control* const focus = form1.controls.Focus.Focus();
  event.Flag("CoordinatesOn", form1.graphics.palette.CoordinatesOn)
      .Text("CurrentFileName", form1.files.programFiles.CurrentFileName)
      .Text("SlideBaseName", form1.files.pictures.SlideBaseName)
      .Number("SlideCounter", form1.files.pictures.SlideCounter)
      .Text("SlideFileName", form1.files.pictures.SlideFileName)
      .Text("Focus", focus == nullptr ? std::string() : focus->Name());
  return event;
}

/// The order in which the properties of a control are written.
constexpr std::array<const char*, 30> PropertyOrder = {
    "Visible",   "Left",        "Top",         "Width",       "Height",    "X1",       "Y1",        "X2",
    "Y2",        "Text",        "Caption",     "Items",       "Value",     "Enabled",  "Interval",  "BackColor",
    "ForeColor", "BorderColor", "BorderStyle", "FillColor",   "FillStyle", "DrawMode", "DrawWidth", "ScaleMode",
    "CurrentX",  "CurrentY",    "Font.Size",   "ToolTipText", "FileName",  "Path",
};

}  // namespace

JsonLine DumpOf(const Form1& form1, action::DumpKind what) {
  switch (what) {
    case action::DumpKind::Store:
      return DumpStore(form1);
    case action::DumpKind::StoreAll:
      return DumpStoreAll(form1);
    case action::DumpKind::Variables:
      return DumpVariables(form1);
    case action::DumpKind::State:
      break;
  }
  return DumpState(form1);
}

JsonLine DumpOf(const action::DumpControl& control) {
  std::map<std::string, PropertyValue> properties;
  const PropertyReader collect = [&properties](const char* name, const PropertyValue& value) {
    properties.insert_or_assign(name, value);
  };
  const std::string& name = control.Shown != nullptr ? control.Shown->Name() : control.Ticking->Name();
  if (control.Shown != nullptr) {
    control.Shown->ReadProperties(collect);
  } else {
    control.Ticking->ReadProperties(collect);
  }
  JsonLine event = DumpEvent("control").Text("name", name);
  for (const char* const property : PropertyOrder) {
    const auto found = properties.find(property);
    if (found != properties.end()) event.Property(property, found->second);
  }
  return event;
}

}  // namespace zerimo::batch
