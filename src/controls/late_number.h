#pragma once

namespace zerimo {

/// Has put off setting some numbers, and sets them when somebody reads one of them.
class PutOff {
 public:
  virtual ~PutOff() = default;
  /// Sets them; does nothing if that is done. Never fails.
  virtual void CatchUp() = 0;
};

/// A single that can be put off: before it is read, the one who puts it off sets it.
class LateNumber {
 public:
  LateNumber() = default;
  // A number is meant wherever one of these stands.
  LateNumber(float number) : number_(number) {}
  LateNumber(const LateNumber& other) : number_(other) {}
  ~LateNumber() = default;
  // Who puts it off stays the same, also in an assignment to itself. NOLINTNEXTLINE(bugprone-unhandled-self-assignment)
  LateNumber& operator=(const LateNumber& other) { return *this = static_cast<float>(other); }
  LateNumber& operator=(float number) noexcept {
    number_ = number;
    return *this;
  }

  /// From now on it may be put off by the one who is given, which must outlive every reader.
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
