#include "reference/interpreter/dispatch.h"

#include <utility>

#include "base/failure.h"
#include "base/text.h"
#include "reference/base/numbers.h"

namespace zerimo::reference {

namespace {

PrimitiveCall Split(const std::string& line) {
  const int blank = PositionOf(line, " ");
  const int wordEnd = blank == 0 ? Length(line) : blank;
  PrimitiveCall call;
  call.CommandLine = line;
  call.Word = std::string(Trimmed(Left(line, wordEnd)));
  call.Rest = std::string(From(line, wordEnd + 1));
  call.SavedRest = call.Rest;
  return call;
}

const std::string& MatchedText(MatchedBy match, const PrimitiveCall& call) {
  return match == MatchedBy::WholeLine ? call.CommandLine : call.Word;
}

}  // namespace

void Dispatch::Bind(Action action, Handler handler) { handlers_[action.Number] = std::move(handler); }

void Dispatch::Executor(std::string& commandLine) {
  Trim(commandLine);
  PrimitiveCall call = Split(commandLine);
  RunGroup(MatchedBy::WholeLine, call);
  RunGroup(MatchedBy::FirstWord, call);
  Tail(call);
}

void Dispatch::RunGroup(MatchedBy group, PrimitiveCall& call) {
  // The tests do not stop at a match; only one name can match, since an action leaves the line and the word alone.
  for (const ActionFacts& facts : Actions()) {
    if (facts.Match != group || !Matches(facts, call)) continue;
    const Handler& handler = handlers_[facts.Does.Number];
    SkipOnFailure([&] {
      if (handler) {
        handler(call);
      } else {
        TellMissingInput(call, facts.Does);
      }
    });
  }
}

bool Dispatch::Matches(const ActionFacts& facts, const PrimitiveCall& call) const {
  if (facts.Name == MatchedText(facts.Match, call)) return true;
  return !facts.OtherName.empty() && facts.OtherName == MatchedText(facts.OtherMatch, call);
}

bool Dispatch::TellMissingInput(const PrimitiveCall& call, Action action) {
  const MissingInput missing = FactsOf(action).Missing;
  if (missing == MissingInput::NoTest || !call.InputIsMissing()) return false;
  const std::string text = "Required Paramiter Missing After " + call.Word;
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
  TailStatement(call, [this] { OverflowCount = AddInt16(OverflowCount, 1); });
}

bool Dispatch::TailStatement(const PrimitiveCall& call, const std::function<void()>& statement) {
  if (SkipOnFailure(statement) || !call.OnFailure) return true;
  call.OnFailure();
  return false;
}

}  // namespace zerimo::reference
