#include "interpreter/formulas.h"

#include "interpreter/variables.h"

namespace zerimo {

std::optional<double> Formulas::Value(std::string_view expression) {
  const Formula* const formula = Of(expression);
  return formula == nullptr ? std::nullopt : formula->Value(source_);
}

std::optional<bool> Formulas::Holds(std::string_view condition) {
  const Formula* const formula = Of(condition);
  return formula == nullptr ? std::nullopt : formula->Holds(source_);
}

const Formula* Formulas::Of(std::string_view text) {
  Readings& readings = FindOrMake(texts_, text, [] { return Readings{}; });
  const std::uint64_t names = variables_.Names();
  const std::string& procedure = controlPath_.ProcedureName();
  for (const Read& read : readings.Kept) {
    if (read.Names == names && read.Procedure == procedure) return read.Form ? &*read.Form : nullptr;
  }
  Read& read = readings.Kept[readings.Oldest++ % readings.Kept.size()];
  read.Names = names;
  read.Procedure = procedure;
  read.Form.reset();
  if (const auto inUse = variables_.InUse()) read.Form = ReadFormula(text, *inUse);
  return read.Form ? &*read.Form : nullptr;
}

}  // namespace zerimo
