#include "interpreter/dispatch.h"

#include <utility>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"

namespace zerimo {

namespace {

constexpr std::int16_t MostCounted = 32767;

}  // namespace

void Dispatch::Bind(Action action, Handler handler) noexcept { handlers_[action.Number] = std::move(handler); }

void Dispatch::Executor(std::string& commandLine) {
  Trim(commandLine);
  const PrimitiveWords words(commandLine);
  PrimitiveCall call(words.Word, words.Input);
  CarryOut(call, ActionOf(commandLine));
}

void Dispatch::Execute(const LineForm& line) {
  PrimitiveCall call(line.Word, line.Input.Text(), &line.Input);
  CarryOut(call, line.Primitive);
}

void Dispatch::CarryOut(PrimitiveCall& call, Action action) {
  if (action != Action::None) {
    const Handler& handler = handlers_[action.Number];
    SkipOnFailure([&] {
      if (handler) {
        handler(call);
      } else {
        TellMissingInput(call, action);
      }
    });
  }
  Tail(call);
}

bool Dispatch::TellMissing(const PrimitiveCall& call, Action action) {
  const MissingInput missing = FactsOf(action).Missing;
  if (missing == MissingInput::NoTest) return false;
  const std::string text = MissingInputWords + std::string(call.Word);
  switch (missing) {
    case MissingInput::Information:
      services_.MessageBox(text, box::Information, "Zerimo Message");
      break;
    case MissingInput::Plain:
      services_.MessageBox(text);
      break;
    default:
      // The answer makes no difference.
      services_.MessageBox(text, box::AbortRetryIgnore, "Zerimo");
      break;
  }
  return true;
}

void Dispatch::Tail(const PrimitiveCall& call) {
  if (!TailStatement(call, TurtlePos)) return;
  if (DetailsOn && !TailStatement(call, TitleText)) return;
  if (!TailStatement(call, RefreshSurface)) return;
  // The count stays at 32767. A box for an overflowing refresh buffer would need a count of 50000, which 16 bits never
  // reach: no run is ever cut here.
  if (OverflowCount == MostCounted) return CountFails(call);
  ++OverflowCount;
}

void Dispatch::CountFails(const PrimitiveCall& call) {
  if (call.OnFailure != nullptr) (*call.OnFailure)();  // Never fails.
}

bool Dispatch::TailStatement(const PrimitiveCall& call, const std::function<void()>& statement) {
  if (SkipOnFailure(statement) || call.OnFailure == nullptr) return true;
  (*call.OnFailure)();  // Never fails.
  return false;
}

}  // namespace zerimo
