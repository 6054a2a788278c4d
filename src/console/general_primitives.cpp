#include "console/general_primitives.h"

#include <cmath>

#include "base/failure.h"
#include "base/numbers.h"
#include "base/text.h"
#include "files/folders.h"
#include "interpreter/relations.h"

namespace zerimo {

namespace {

/// Whether an input is a text in double quotes.
bool IsQuoted(std::string_view rest) { return Trimmed(rest).starts_with('"') && rest.ends_with('"'); }

/// The characters between the first and the last; a single double quote has none and fails.
std::string BetweenQuotes(std::string_view rest) { return std::string(Mid(rest, 2, Length(rest) - 2)); }

double RemainderOf(double a, std::int16_t b) {
  const std::int32_t whole = ToInt32(a);
  if (b == 0) throw Failure(FailureKind::DivisionByZero);
  return static_cast<double>(static_cast<std::int64_t>(whole) % b);
}

double Reckon(Action action, double a, std::int16_t b) {
  switch (action) {
    case Action::Sum:
      return Finite(a + b);
    case Action::Product:
      return Finite(a * b);
    case Action::Quotient:
      return std::floor(Divide(a, b));
    default:
      return RemainderOf(a, b);
  }
}

}  // namespace

void GeneralPrimitives::Bind() {
  dispatch.Bind(Action::SayDeveloper, [this](PrimitiveCall&) { SayDeveloper(); });
  dispatch.Bind(Action::CommandList, [this](PrimitiveCall&) { WriteCommandList(); });
  dispatch.Bind(Action::Wait, [this](PrimitiveCall& call) { Wait(call); });
  dispatch.Bind(Action::Sound, [this](PrimitiveCall&) {
    services.Beep();
    services.MessageBox("Sound");
  });
  dispatch.Bind(Action::Bye, [this](PrimitiveCall&) {
    const Answer answer = services.MessageBox("Are You Sure That You Want To Leave Zerimo ?", box::YesNo);
    if (answer == Answer::Yes) throw Ended{"BYE"};
  });
  dispatch.Bind(Action::Quit, [](PrimitiveCall&) { throw Ended{"QUIT"}; });
  dispatch.Bind(Action::Message, [this](PrimitiveCall& call) { Message(call); });
  dispatch.Bind(Action::Print, [this](PrimitiveCall& call) { Print(call); });
  dispatch.Bind(Action::BracketSum, [this](PrimitiveCall& call) { BracketChain(call, '+'); });
  dispatch.Bind(Action::BracketProduct, [this](PrimitiveCall& call) { BracketChain(call, '*'); });
  dispatch.Bind(Action::ArithmeticLine, [this](PrimitiveCall& call) { ArithmeticLine(call); });
  dispatch.Bind(Action::RelationLine, [this](PrimitiveCall& call) { RelationLine(call); });
  for (const Action action : {Action::Sum, Action::Product, Action::Quotient, Action::Remainder}) {
    dispatch.Bind(action, [this, action](PrimitiveCall& call) { TwoInputs(call, action); });
  }
}

void GeneralPrimitives::SayDeveloper() {
  services.MessageBox(
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
  Folders::WriteFile("Commands.ZMG", lines);
}

void GeneralPrimitives::Wait(PrimitiveCall& call) {
  inputs.ReplaceNames(call.Rest);
  if (dispatch.TellMissingInput(call, Action::Wait)) return;
  const double milliseconds = inputs.Evaluate(call.Rest);
  services.Sleep(ToInt32(milliseconds));
}

void GeneralPrimitives::Message(PrimitiveCall& call) {
  PassOver([&] { Picture1.SetCurrentX(turtle.TurtleX); });
  PassOver([&] { Picture1.SetCurrentY(turtle.TurtleY); });
  if (IsQuoted(call.Rest)) {
    services.MessageBox(BetweenQuotes(call.Rest));
  } else {
    services.MessageBox(Str(inputs.Number(call.Rest)));
  }
}

void GeneralPrimitives::Print(PrimitiveCall& call) {
  if (IsQuoted(call.Rest)) {
    controls.List4.Add("?" + BetweenQuotes(call.Rest));
  } else {
    controls.List4.Add("?" + Str(inputs.Number(call.Rest)));
  }
}

void GeneralPrimitives::BracketChain(PrimitiveCall& call, char op) {
  if (!call.Rest.ends_with(')')) return;
  call.Rest.pop_back();
  const int length = Length(call.Rest);
  for (int position = 1; position <= length; ++position) {
    if (CharacterAt(call.Rest, position) != " ") continue;
    call.Rest = std::string(Left(call.Rest, position - 1)) + op + std::string(Trimmed(From(call.Rest, position + 1)));
  }
  controls.List4.Add("? Result: " + Str(inputs.Number(call.Rest)));
}

void GeneralPrimitives::TwoInputs(PrimitiveCall& call, Action action) {
  const double a = inputs.WordNumber(call.Rest, 1);
  // The second input is whole: 2.5 counts as 2 and 3.5 as 4.
  std::int16_t b = 0;
  PassOver([&] { b = ToInt16(inputs.WordNumber(call.Rest, 2)); });
  std::string result;
  PassOver([&] { result = StrTrimmed(Reckon(action, a, b)); });
  services.MessageBox(result);
}

void GeneralPrimitives::ArithmeticLine(PrimitiveCall& call) {
  services.MessageBox("Result: " + Str(inputs.Number(call.Rest)));
}

void GeneralPrimitives::RelationLine(PrimitiveCall& call) {
  inputs.ReplaceNames(call.Rest);
  bool holds = false;
  PassOver([&] { holds = RelationEvaluator(call.Rest, arithmetic); });
  services.MessageBox(holds ? "Result: True" : "Result: False");
}

}  // namespace zerimo
