#pragma once

#include <concepts>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace zerimo {

/// A text that can be made late: while it follows a source, the source is asked only when the text is read. It is then
/// what the source gives at that moment; a list that is filled late (`ListBox::FillLater`) is as of the moment when it
/// was put off.
class LateText {
 public:
  using Source = std::function<const std::string&()>;

  LateText() = default;
  // Implicit, so that plain text can be assigned and passed.
  LateText(std::string text) : text_(std::move(text)) {}
  LateText(const char* text) : text_(text) {}

  /// The text is what the source gives, until another text is assigned or `Keep` is called.
  void Follow(Source source) noexcept { source_ = std::move(source); }

  /// Keeps what the source gives now.
  void Keep() {
    if (source_) *this = LateText(source_());
  }

  const std::string& Text() const { return source_ ? source_() : text_; }
  operator const std::string&() const { return Text(); }
  operator std::string_view() const { return Text(); }
  friend bool operator==(const LateText& one, const LateText& other) { return one.Text() == other.Text(); }
  template <typename Other>
  requires std::convertible_to<const Other&, std::string_view>
  friend bool operator==(const LateText& one, const Other& other) { return one.Text() == std::string_view(other); }

 private:
  std::string text_;
  Source source_;
};

}  // namespace zerimo
