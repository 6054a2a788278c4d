#include "interpreter/formulas.h"

#include <utility>
#include <vector>

#include "interpreter/formula_reader.h"
#include "interpreter/variables.h"

namespace zerimo {

double Formulas::Value(const EvaluatedText& expression) const {
  const Formula* const formula = Of(expression);
  return formula == nullptr ? NoNumber : formula->Value(operands_);
}

std::optional<bool> Formulas::Holds(const EvaluatedText& condition) const {
  const Formula* const formula = Of(condition);
  return formula == nullptr ? std::nullopt : formula->Holds(operands_);
}

const Formula* Formulas::Of(const EvaluatedText& text) const {
  for (const EvaluatedText::Reading& reading : text.readings_) {
    if (reading.Names == variables_.Names() && reading.Procedure == controlPath_.ProcedureNumber()) {
      return reading.Form ? &*reading.Form : nullptr;
    }
  }
  return Read(text);
}

const Formula* Formulas::Read(const EvaluatedText& text) const {
  constexpr std::size_t mostReadings = 4;
  EvaluatedText::Reading reading{variables_.Names(), controlPath_.ProcedureNumber(), std::nullopt};
  if (const auto inUse = variables_.InUse()) reading.Form = ReadFormula(text.Text(), *inUse);
  if (reading.Form) reading.Form->WorkOutConstants(operands_);
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
