#pragma once

namespace zerimo {

/// Has put off setting some numbers, and sets them as soon as one of them is read.
class PutOff {
 public:
  virtual ~PutOff() = default;
  /// Sets them, unless that has been done. Never fails.
  virtual void CatchUp() = 0;
};

/// A single-precision number whose setting can be put off until it is read; whoever put it off sets it then.
class LateNumber {
 public:
  LateNumber() = default;
  // Stands for a number wherever one is expected.
  LateNumber(float number) : number_(number) {}
  LateNumber(const LateNumber& other) : number_(other) {}
  ~LateNumber() = default;
  // Only the number is copied, not who may put it off. NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
  LateNumber& operator=(const LateNumber& other) { return *this = static_cast<float>(other); }
  LateNumber& operator=(float number) noexcept {
    number_ = number;
    return *this;
  }

  /// From now on `by` may put it off; `by` must outlive every reader.
  void LeaveTo(PutOff& by) noexcept { by_ = &by; }

  operator float() const {
    if (by_ != nullptr) by_->CatchUp();
    return number_;
  }

 private:
  float number_ = 0;
  PutOff* by_ = nullptr;
};

}  // namespace zerimo
