#include "console/general_primitives.h"

#include <cmath>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "interpreter/relations.h"

namespace zerimo {

namespace {

double RemainderOf(double a, std::int16_t b) {
  const std::int32_t whole = ToInt32(a);
  if (b == 0) throw Failure(FailureKind::DivisionByZero);
  return static_cast<double>(static_cast<std::int64_t>(whole) % b);
}

double SumOf(double a, std::int16_t b) { return Finite(a + b); }
double ProductOf(double a, std::int16_t b) { return Finite(a * b); }
double QuotientOf(double a, std::int16_t b) { return std::floor(Divide(a, b)); }

}  // namespace

void GeneralPrimitives::Bind() {
  context_.dispatch.Bind("SAYDEVELOPER", [this](PrimitiveCall&) { SayDeveloper(); });
  context_.dispatch.Bind("COMMANDLIST", [this](PrimitiveCall&) { WriteCommandList(); });
  context_.dispatch.Bind("WAIT", [this](PrimitiveCall& call) { Wait(call); });
  context_.dispatch.Bind("SOUND", [this](PrimitiveCall&) {
    context_.services.Beep();
    context_.services.MessageBox("Sound");
  });
  context_.dispatch.Bind("BYE", [this](PrimitiveCall&) {
    const Answer answer = context_.services.MessageBox("Are You Sure That You Want To Leave Zerimo ?", box::YesNo);
    if (answer == Answer::Yes) throw Ended{"BYE"};
  });
  context_.dispatch.Bind("QUIT", [](PrimitiveCall&) { throw Ended{"QUIT"}; });
  context_.dispatch.Bind("MESSAGE", [this](PrimitiveCall& call) { Message(call); });
  context_.dispatch.Bind("PRINT", [this](PrimitiveCall& call) { Print(call); });
  context_.dispatch.Bind("(SUM", [this](PrimitiveCall& call) { BracketChain(call, '+'); });
  context_.dispatch.Bind("(PRODUCT", [this](PrimitiveCall& call) { BracketChain(call, '*'); });
  context_.dispatch.Bind("AEXP", [this](PrimitiveCall& call) { ArithmeticLine(call); });
  context_.dispatch.Bind("REXP", [this](PrimitiveCall& call) { RelationLine(call); });
  context_.dispatch.Bind("SUM", [this](PrimitiveCall& call) { TwoInputs(call, SumOf); });
  context_.dispatch.Bind("PRODUCT", [this](PrimitiveCall& call) { TwoInputs(call, ProductOf); });
  context_.dispatch.Bind("QUOTIENT", [this](PrimitiveCall& call) { TwoInputs(call, QuotientOf); });
  context_.dispatch.Bind("REMAINDER", [this](PrimitiveCall& call) { TwoInputs(call, RemainderOf); });
}

void GeneralPrimitives::SayDeveloper() {
  context_.services.MessageBox(
      "Zerimo is a Product of Vantrel,Designed by...\r\r"
      "* Mr. Ostrane Velk\r"
      "* Mr. Ilmar Tessen\r"
      "* Mr. Dorrin Pask\r"
      "* Mr. Hadric Moll",
      box::Information, "Zerimo ");
}

void GeneralPrimitives::WriteCommandList() {
  std::string lines;
  for (const std::string_view name : CommandListNames()) lines += std::string(name) + "\r\n";
  folders_.WriteFile("Commands.ZMG", lines);  // Leaves: it is the last statement.
}

void GeneralPrimitives::Wait(PrimitiveCall& call) {
  context_.arguments.ReplaceNames(call.Rest());
  if (context_.dispatch.TellMissingInput(call, "WAIT")) return;
  const double milliseconds = context_.arguments.Evaluate(call.Rest());
  context_.services.Sleep(ToInt32(milliseconds));  // Leaves: it is the last statement.
}

void GeneralPrimitives::Message(PrimitiveCall& call) {
  SkipOnFailure([&] { context_.Picture1.SetCurrentX(context_.turtle.TurtleX); });
  SkipOnFailure([&] { context_.Picture1.SetCurrentY(context_.turtle.TurtleY); });
  if (IsQuoted(call.Input)) {
    // Leaves: a single quote has nothing between its ends.
    context_.services.MessageBox(WithoutEnds(call.Input));
  } else {
    context_.services.MessageBox(Str(context_.arguments.Number(call.Input)));
  }
}

void GeneralPrimitives::Print(PrimitiveCall& call) {
  if (IsQuoted(call.Input)) {
    // Leaves, as in `Message`.
    context_.controls.List4.Add("?" + WithoutEnds(call.Input));
  } else {
    context_.controls.List4.Add("?" + Str(context_.arguments.Number(call.Input)));
  }
}

void GeneralPrimitives::BracketChain(PrimitiveCall& call, char op) {
  std::string& chain = call.Rest();
  if (!chain.ends_with(')')) return;
  chain.pop_back();
  const int length = Length(chain);
  for (int position = 1; position <= length; ++position) {
    if (CharacterAt(chain, position) != " ") continue;  // Never fails: positions from 1.
    // Never fails.
    chain = std::string(Left(chain, position - 1)) + op + std::string(Trimmed(From(chain, position + 1)));
  }
  context_.controls.List4.Add("? Result: " + Str(context_.arguments.Number(chain)));
}

void GeneralPrimitives::TwoInputs(PrimitiveCall& call, double (*work)(double, std::int16_t)) {
  const double a = context_.arguments.WordNumber(call.Rest(), 1);
  // The second input is whole: 2.5 counts as 2 and 3.5 as 4.
  std::int16_t b = 0;
  SkipOnFailure([&] { b = ToInt16(context_.arguments.WordNumber(call.Rest(), 2)); });
  std::string result;
  SkipOnFailure([&] { result = StrTrimmed(work(a, b)); });
  context_.services.MessageBox(result);
}

void GeneralPrimitives::ArithmeticLine(PrimitiveCall& call) {
  context_.services.MessageBox("Result: " + Str(context_.arguments.Number(call.Input)));
}

void GeneralPrimitives::RelationLine(PrimitiveCall& call) {
  context_.arguments.ReplaceNames(call.Rest());
  bool holds = false;
  SkipOnFailure([&] { holds = RelationEvaluator(call.Rest(), arithmetic_); });
  context_.services.MessageBox(holds ? "Result: True" : "Result: False");
}

}  // namespace zerimo
