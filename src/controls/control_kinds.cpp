#include "controls/control_kinds.h"

#include <utility>

#include "base/failure.h"

namespace zerimo {

void FocusKeeper::SetFocus(Control& control) {
  if (!control.IsOnScreen()) throw Failure(FailureKind::FocusRefused);
  focus_ = &control;
}

void FocusKeeper::VisibilityChanged() noexcept {
  if (focus_ != nullptr && !focus_->IsOnScreen()) focus_ = nullptr;
}

Control::Control(std::string controlName, Control* onPanel, FocusKeeper* focusKeeper)
    : name_(std::move(controlName)), panel_(onPanel), keeper_(focusKeeper) {}

void Control::SetVisible(bool value) noexcept {
  visible_ = value;
  if (keeper_ != nullptr) keeper_->VisibilityChanged();
}

bool Control::IsOnScreen() const noexcept { return visible_ && (panel_ == nullptr || panel_->IsOnScreen()); }

void Control::ReadProperties(const PropertyReader& read) const {
  read("Visible", visible_);
  read("Left", Left);
  read("Top", Top);
  read("Width", Width);
  read("Height", height);
}

void Window::SetCaption(std::string text) {
  caption_ = std::move(text);
  if (OnCaption) OnCaption(caption_);
}

void Window::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Caption", caption_);
}

void TextBox::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Text", Text);
  read("BackColor", static_cast<double>(BackColor));
  read("ForeColor", static_cast<double>(ForeColor));
  read("Font.Size", FontSize);
}

const std::vector<std::string>& ListBox::Items() const {
  if (isPutOff_) {
    isPutOff_ = false;
    items_ = Fill();
  }
  return items_;
}

void ListBox::Add(std::string item) {
  Items();
  ++version_;
  if (OnChange) OnChange(&item);
  items_.push_back(std::move(item));
}

void ListBox::Clear() {
  isPutOff_ = false;
  items_.clear();
  ++version_;
  ++clearings_;
  if (OnChange) OnChange(nullptr);
}

void ListBox::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Items", Items());
  read("BackColor", static_cast<double>(BackColor));
  read("ForeColor", static_cast<double>(ForeColor));
  read("Font.Size", FontSize);
}

void Label::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Caption", Caption.Text());
  read("BackColor", static_cast<double>(BackColor));
  read("ForeColor", static_cast<double>(ForeColor));
  read("BorderStyle", static_cast<double>(BorderStyle));
}

void PanelBox::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  if (!Caption.empty()) read("Caption", Caption);
  read("BackColor", static_cast<double>(BackColor));
}

void Button::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Caption", Caption);
}

void CheckBox::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Caption", Caption);
  read("Value", static_cast<double>(Value));
}

void ScrollBar::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Value", static_cast<double>(Value));
}

void Shape::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("BorderColor", static_cast<double>(BorderColor));
}

void LightLine::ReadProperties(const PropertyReader& read) const {
  read("Visible", Visible());
  read("X1", X1);
  read("Y1", Y1);
  read("X2", X2);
  read("Y2", Y2);
  read("BorderColor", static_cast<double>(BorderColor));
}

void Timer::ReadProperties(const PropertyReader& read) const {
  read("Enabled", Enabled);
  read("Interval", static_cast<double>(Interval));
}

void FileListBox::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Items", Items);
  read("FileName", FileName);
  read("Path", Path);
}

void RichTextView::ReadProperties(const PropertyReader& read) const {
  Control::ReadProperties(read);
  read("Text", Text);
  read("FileName", FileName);
}

}  // namespace zerimo
