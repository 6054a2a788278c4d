#include "interpreter/formulas.h"

#include <utility>
#include <vector>

#include "interpreter/formula_reader.h"
#include "interpreter/variables.h"

namespace zerimo {

[[gnu::noinline]] const Formula* Formulas::Read(const EvaluatedText& text) const {
  constexpr std::size_t mostReadings = 4;
  EvaluatedText::Reading reading{names_.Now(), controlPath_.ProcedureNumber(), std::nullopt};
  if (const auto inUse = variables_.InUse()) reading.Form = ReadFormula(text.Text(), *inUse);
  if (reading.Form) reading.Form->Prepare(operands_);
  std::vector<EvaluatedText::Reading>& readings = text.readings_;
  const std::size_t place = text.oldest_++ % mostReadings;
  if (place < readings.size()) {
    readings[place] = std::move(reading);
  } else {
    readings.push_back(std::move(reading));
  }
  return readings[place].Form ? &*readings[place].Form : nullptr;
}

const EvaluatedText& Formulas::Known(std::string_view text) {
  return FindOrMake(texts_, text, [&] { return EvaluatedText(text); });
}

}  // namespace zerimo
