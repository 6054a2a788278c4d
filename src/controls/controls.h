#pragma once

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "controls/control_kinds.h"

namespace zerimo {

/// The size of the screen in surface units.
struct ScreenSize {
  float Width = 15360;
  float Height = 11520;
};

/// An array of controls with numbered names: "Text1(0)", "Text1(1)", ...
template <typename Kind, int Count>
class ControlArray {
 public:
  ControlArray(const std::string& name, Control* panel, FocusKeeper* keeper) {
    for (int index = 0; index < Count; ++index) {
      controls_[static_cast<std::size_t>(index)] =
          std::make_unique<Kind>(name + "(" + std::to_string(index) + ")", panel, keeper);
    }
  }
  static constexpr int Size = Count;
  /// An element by its index from 0; fails (subscript) if there is none.
  Kind& operator[](int index) { return *controls_[Checked(index)]; }
  const Kind& operator[](int index) const { return *controls_[Checked(index)]; }

 private:
  static std::size_t Checked(int index);
  std::array<std::unique_ptr<Kind>, static_cast<std::size_t>(Count)> controls_;
};

/// Every control of the window but the surface, with the values that the design of the form gives them.
struct Controls {
  explicit Controls(ScreenSize screen);

  /// Calls `visit(control)` for every control, `Form1` first. Timers are not visited.
  template <typename Visitor>
  void ForEach(Visitor&& visit);

  const ScreenSize Screen;
  FocusKeeper Focus;

  Window Form1{"Form1"};
  // The command rows.
  PanelBox Picture3{"Picture3", nullptr, &Focus};
  ControlArray<TextBox, 5> Text1{"Text1", &Picture3, &Focus};
  TextBox Prompt{"Prompt", &Picture3, &Focus};
  // Above the surface.
  ImageBox Image1{"Image1", nullptr, &Focus};
  ControlArray<Label, 4> Label20{"Label20", nullptr, &Focus};
  Shape Shape2{"Shape2"};
  LightLine Line1{"Line1"};
  LightLine Line2{"Line2"};
  LightLine Line3{"Line3"};
  LightLine Line5{"Line5"};
  LightLine Line6{"Line6"};
  // The text screen and the editor.
  ListBox List4{"List4", nullptr, &Focus};
  TextBox Text2{"Text2", nullptr, &Focus};
  // The diagnosis panel.
  PanelBox Frame1{"Frame1", nullptr, &Focus};
  ListBox List1{"List1", &Frame1, &Focus};
  ListBox List2{"List2", &Frame1, &Focus};
  ListBox List3{"List3", &Frame1, &Focus};
  Label Label17{"Label17", &Frame1, &Focus};
  Label Label18{"Label18", &Frame1, &Focus};
  Label Label19{"Label19", &Frame1, &Focus};
  TextBox Text3{"Text3", &Frame1, &Focus};
  TextBox Text4{"Text4", &Frame1, &Focus};
  Button Command1{"Command1", &Frame1, &Focus};
  Button Command2{"Command2", &Frame1, &Focus};
  CheckBox Check1{"Check1", &Frame1, &Focus};
  ControlArray<ScrollBar, 3> HScroll1{"HScroll1", &Frame1, &Focus};
  ControlArray<ScrollBar, 3> HScroll2{"HScroll2", &Frame1, &Focus};
  Label Label8{"Label8", &Frame1, &Focus};
  Label Label9{"Label9", &Frame1, &Focus};
  Label Label10{"Label10", &Frame1, &Focus};
  Label Label11{"Label11", &Frame1, &Focus};
  /// The captions "Intermediate Contents", "Variables", "Procedures", "Resolution", "Line Width".
  ControlArray<Label, 5> Label12{"Label12", &Frame1, &Focus};
  // The palette.
  PanelBox Picture2{"Picture2", nullptr, &Focus};
  ControlArray<Label, 16> Label13{"Label13", &Picture2, &Focus};
  Label Label14{"Label14", &Picture2, &Focus};
  Label Label15{"Label15", &Picture2, &Focus};
  Label Label16{"Label16", &Picture2, &Focus};
  Shape Shape5{"Shape5", &Picture2};
  Shape Shape7{"Shape7", &Picture2};
  Button Command3{"Command3", &Picture2, &Focus};
  Button Command4{"Command4", &Picture2, &Focus};
  Button Command5{"Command5", &Picture2, &Focus};
  // The help view.
  FileListBox File1{"File1", nullptr, &Focus};
  RichTextView RichTextBox1{"RichTextBox1", nullptr, &Focus};
  // The timers.
  Timer Timer2{"Timer2", 1, true};
  Timer Timer3{"Timer3", 1, false};
  Timer Timer4{"Timer4", 1000, false};

 private:
  void DesignRows();
  void DesignSurface();
  void DesignDiagnosis();
  void DesignPalette();
};

/// The sixteen colours by their codes.
inline constexpr std::array<Colour, 16> ColoursOfCodes = {
    0x000000, 0x800000, 0x008000, 0x808000, 0x000080, 0x800080, 0x008080, 0xC0C0C0,
    0x808080, 0xFF0000, 0x00FF00, 0xFFFF00, 0x0000FF, 0xFF00FF, 0x00FFFF, 0xFFFFFF,
};

/// The colour of a code; fails (invalid argument) outside 0 to 15.
Colour QBColor(int code);

/// A colour from its parts; parts above 255 count as 255. A negative part fails (invalid argument).
Colour RGB(std::int16_t red, std::int16_t green, std::int16_t blue);

void SubscriptFailure();

template <typename Kind, int Count>
std::size_t ControlArray<Kind, Count>::Checked(int index) {
  if (index < 0 || index >= Count) SubscriptFailure();
  return static_cast<std::size_t>(index);
}

template <typename Visitor>
void Controls::ForEach(Visitor&& visit) {
  const auto all = [&visit](auto&... controls) { (visit(controls), ...); };
  const auto each = [&visit](auto&... arrays) {
    const auto one = [&visit](auto& array) {
      for (int index = 0; index < array.Size; ++index) visit(array[index]);
    };
    (one(arrays), ...);
  };
  all(Form1, Picture3, Prompt, Image1, Shape2, Line1, Line2, Line3, Line5, Line6, List4, Text2, Frame1, List1, List2,
      List3, Label17, Label18, Label19, Text3, Text4, Command1, Command2, Check1, Label8, Label9, Label10, Label11,
      Picture2, Label14, Label15, Label16, Shape5, Shape7, Command3, Command4, Command5, File1, RichTextBox1);
  each(Text1, Label20, HScroll1, HScroll2, Label12, Label13);
}

}  // namespace zerimo
