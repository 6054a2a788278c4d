#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "controls/late_number.h"
#include "controls/late_text.h"

/// The controls of the window as plain data. The system reads and writes these; a shell shows them and turns the
/// user's events into calls of Form1's handlers. Places and sizes are singles in surface units (15 to a pixel),
/// relative to the control's panel; colours are red + 256 * green + 65536 * blue.
namespace zerimo {

class Control;

/// A colour value: red + 256 * green + 65536 * blue.
using Colour = std::int32_t;

inline constexpr Colour White = 0xFFFFFF;
inline constexpr Colour Yellow = 0x00FFFF;
inline constexpr Colour Blue = 0xFF0000;
inline constexpr Colour Red = 0x0000FF;
inline constexpr Colour Green = 0x00FF00;

/// The value of one property, as `ReadProperties` reports it.
using PropertyValue = std::variant<bool, double, float, std::string, std::vector<std::string>>;

/// Receives the properties of a control, name and value, in a fixed order.
using PropertyReader = std::function<void(const char* name, const PropertyValue& value)>;

/// Keeps track of the control that has the focus. At most one has it. A control that becomes hidden, itself or with its
/// panel, loses it; then none has it until it is given to one.
class FocusKeeper {
 public:
  /// The control that has the focus, or null.
  Control* Focus() const noexcept { return focus_; }

  /// Gives the focus to a control; fails (focus refused) if the control or a panel that holds it is hidden.
  void SetFocus(Control& control);

  /// Must be called when the visibility of any control has changed.
  void VisibilityChanged() noexcept;

 private:
  Control* focus_ = nullptr;
};

/// What all visible controls have in common.
class Control {
 public:
  Control(std::string name, Control* panel = nullptr, FocusKeeper* keeper = nullptr);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  /// The control's name, with its index if it is an element of an array: "List4", "Text1(0)".
  const std::string& Name() const noexcept { return name_; }
  /// The panel that holds it; null for the window itself and for what is directly on the window.
  Control* Panel() const noexcept { return panel_; }

  bool Visible() const noexcept { return visible_; }
  void SetVisible(bool value) noexcept;
  void Show() noexcept { SetVisible(true); }
  void Hide() noexcept { SetVisible(false); }
  /// Whether it and all panels that hold it are visible.
  bool IsOnScreen() const noexcept;

  LateNumber Left;
  LateNumber Top;
  float Width = 0;

  float Height() const noexcept { return height; }
  virtual void SetHeight(float value) { height = value; }

  /// Reports the properties: first those that visible controls have in common, then the kind's own.
  virtual void ReadProperties(const PropertyReader& read) const;

 protected:
  float height = 0;

 private:
  std::string name_;
  Control* panel_;
  FocusKeeper* keeper_;
  bool visible_ = true;
};

/// The main window.
class Window : public Control {
 public:
  using Control::Control;
  /// The title bar's text.
  const std::string& Caption() const noexcept { return caption_; }
  void SetCaption(std::string text);
  /// If set, called at each assignment of the caption.
  std::function<void(const std::string& text)> OnCaption;
  void ReadProperties(const PropertyReader& read) const override;

 private:
  std::string caption_;
};

/// A text box of one line or many; lines end with carriage return and line feed.
class TextBox : public Control {
 public:
  using Control::Control;
  std::string Text;
  Colour BackColor = White;
  Colour ForeColor = 0;
  double FontSize = 8.25;
  void ReadProperties(const PropertyReader& read) const override;
};

/// A list of texts. Every change increases `Version`, so that a shell can show only what is new.
class ListBox : public Control {
 public:
  using Control::Control;

  const std::vector<std::string>& Items() const;
  void Add(std::string item);
  void Clear();

  /// Fills the list if that was put off. It must return the items as of the time when it was put off.
  std::function<std::vector<std::string>()> Fill;
  /// Puts off filling the list until the items are asked for.
  void FillLater() noexcept {
    isPutOff_ = true;
    ++version_;
    ++clearings_;
  }

  std::uint64_t Version() const noexcept { return version_; }
  /// Counts the clearings, so that a shell knows whether a new version only adds to the end of the old one.
  std::uint64_t Clearings() const noexcept { return clearings_; }

  /// If set, `Add` calls it with the item and `Clear` with null.
  std::function<void(const std::string* item)> OnChange;

  Colour BackColor = White;
  Colour ForeColor = 0;
  double FontSize = 8.25;
  void ReadProperties(const PropertyReader& read) const override;

 private:
  mutable std::vector<std::string> items_;
  mutable bool isPutOff_ = false;
  std::uint64_t version_ = 0;
  std::uint64_t clearings_ = 0;
};

/// The edge of a label, with the numbers that the system shows.
enum class Border : int { None = 0, Single = 1 };

/// A line of text that the user can't change; some labels serve as colour squares.
class Label : public Control {
 public:
  using Control::Control;
  LateText Caption;
  Colour BackColor = 0xC8D0D4;
  Colour ForeColor = 0;
  Border BorderStyle = Border::None;
  void ReadProperties(const PropertyReader& read) const override;
};

/// A panel: a frame with a caption, or a picture box that only carries controls.
class PanelBox : public Control {
 public:
  using Control::Control;
  /// A picture box has none.
  std::string Caption;
  Colour BackColor = 0xC8D0D4;
  void ReadProperties(const PropertyReader& read) const override;
};

/// The title picture over the surface.
class ImageBox : public Control {
 public:
  using Control::Control;
};

class Button : public Control {
 public:
  using Control::Control;
  std::string Caption;
  void ReadProperties(const PropertyReader& read) const override;
};

class CheckBox : public Control {
 public:
  using Control::Control;
  std::string Caption;
  /// Whether it is checked; the system shows 1 or 0.
  bool Value = false;
  void ReadProperties(const PropertyReader& read) const override;
};

/// A scroll bar with a range from 0 to 255.
class ScrollBar : public Control {
 public:
  using Control::Control;
  static constexpr int Least = 0;
  static constexpr int Greatest = 255;
  int Value = 0;
  void ReadProperties(const PropertyReader& read) const override;
};

/// A lightweight figure over the surface or the palette: a circle or a frame.
class Shape : public Control {
 public:
  using Control::Control;
  Colour BorderColor = 0;
  /// Pixels.
  int BorderWidth = 1;
  void ReadProperties(const PropertyReader& read) const override;
};

/// A lightweight line over the surface. Its ends are in surface units.
class LightLine : public Control {
 public:
  using Control::Control;
  LateNumber X1;
  LateNumber Y1;
  LateNumber X2;
  LateNumber Y2;
  Colour BorderColor = 0;
  /// Pixels.
  int BorderWidth = 1;
  void ReadProperties(const PropertyReader& read) const override;
};

/// A timer. It ticks only when the system is back in the event loop.
class Timer {
 public:
  explicit Timer(std::string timerName, std::int32_t interval, bool enabled)
      : Interval(interval), Enabled(enabled), name_(std::move(timerName)) {}
  const std::string& Name() const noexcept { return name_; }
  /// Milliseconds; 0 never ticks.
  std::int32_t Interval;
  bool Enabled;
  void ReadProperties(const PropertyReader& read) const;

 private:
  std::string name_;
};

/// The list of the files of a folder.
class FileListBox : public Control {
 public:
  using Control::Control;
  /// The folder as the system names it.
  std::string Path;
  std::vector<std::string> Items;
  /// The selected entry, or empty.
  std::string FileName;
  void ReadProperties(const PropertyReader& read) const override;
};

/// The rich-text view. `Document` is the page as rich text (RTF), whatever format the file had.
class RichTextView : public Control {
 public:
  using Control::Control;
  /// The file that was loaded last.
  std::string FileName;
  /// The page's text without formatting.
  std::string Text;
  /// The page in RTF.
  std::string Document;
  /// Counts the loads, so that a shell notices a new page.
  std::uint64_t Version = 0;
  void ReadProperties(const PropertyReader& read) const override;
};

}  // namespace zerimo
