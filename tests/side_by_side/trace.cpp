#include "side_by_side/trace.h"

#include <bit>
#include <functional>

namespace zerimo {

namespace {

/// The numbers of an operation, in the order of its fields.
std::vector<double> Numbers(const SurfaceOperation& operation) {
  using namespace surface_operation;
  if (const auto* const line = std::get_if<Line>(&operation)) return {line->X1, line->Y1, line->X2, line->Y2};
  if (const auto* const box = std::get_if<Box>(&operation)) return {box->X1, box->Y1, box->X2, box->Y2};
  if (const auto* const line = std::get_if<LineTo>(&operation)) return {line->X1, line->Y1, line->X2, line->Y2};
  if (const auto* const point = std::get_if<PSet>(&operation)) {
    return {point->X, point->Y, static_cast<double>(point->Color)};
  }
  if (const auto* const circle = std::get_if<Circle>(&operation)) {
    return {circle->X, circle->Y, circle->Radius, circle->Aspect.value_or(-1)};
  }
  if (const auto* const set = std::get_if<Set>(&operation)) {
    if (const auto* const number = std::get_if<double>(&set->Value)) return {*number};
    if (const auto* const number = std::get_if<float>(&set->Value)) return {*number};
  }
  return {};
}

}  // namespace

void Trace::Note(std::string_view text) { Mix(std::hash<std::string_view>{}(text)); }

void Trace::Note(double number) { Mix(std::bit_cast<std::uint64_t>(number)); }

void Trace::Note(const SurfaceOperation& operation) {
  Mix(operation.index());
  for (const double number : Numbers(operation)) Note(number);
}

void Trace::EndStep() {
  steps_.push_back(now_);
  now_ = 0;
}

void Trace::Mix(std::uint64_t value) {
  constexpr std::uint64_t odd = 0x9E3779B97F4A7C15;
  now_ = std::rotl(now_ ^ value, 23) * odd;
}

}  // namespace zerimo
