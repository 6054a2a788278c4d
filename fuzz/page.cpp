/// What the page in the browser calls, and what it answers: each line of an input is a call or an answer.

#include <cmath>
#include <cstdlib>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>

#include "batch/latin1.h"
#include "fuzz.h"
#include "programs/zerimo_page.h"
#include "web/page_port.h"

namespace zerimo {

namespace {

constexpr double MillisecondsBetweenLooks = 5;
/// Then the user stops whatever runs.
constexpr double PatienceInMilliseconds = 500;

/// The page of one input.
struct Page {
  std::string Answer;
  double Now = 0;
  double Pause = 0;
} page;

}  // namespace

namespace web {

void TellPage(const std::string& message) { fuzz::Require(nlohmann::json::parse(message).is_array()); }

void ShowPart(const PixelBuffer& pixels, const PixelRect& part) {
  fuzz::Require(!part.IsEmpty() && United(part, pixels.Bounds()) == pixels.Bounds());
}

std::string AskPage(const std::string& question) {
  fuzz::Require(nlohmann::json::parse(question).is_object());
  return page.Answer;
}

void HoldFor(double) {}

bool TakeFrame() {
  page.Now += MillisecondsBetweenLooks;
  return true;
}

double PageClock() { return page.Now; }

bool TakeStop() { return page.Now > PatienceInMilliseconds; }

double ChosenPause() { return page.Pause; }

void HoldLine(double) { page.Now += MillisecondsBetweenLooks; }

std::string PageTimeOfDay() { return "00:00"; }

}  // namespace web

namespace fuzz {

namespace {

/// A number of the browser is never infinite.
float NextNumber(std::istream& line) {
  std::string word;
  line >> word;
  const float number = std::strtof(word.c_str(), nullptr);
  return std::isfinite(number) ? number : 0;
}

int NextWhole(std::istream& line) {
  std::string word;
  line >> word;
  return std::atoi(word.c_str());
}

/// The rest of a line, in which | stands for a line end.
std::string Rest(std::istream& line) {
  line.get();
  std::string text;
  for (char character = 0; line.get(character);) text += character == '|' ? "\r\n" : std::string(1, character);
  return batch::ToUtf8(text);
}

void Call(web::PageShell& shell, const std::string& text) {
  std::istringstream line(text);
  std::string call;
  std::string control;
  line >> call;
  if (call == "answer") {
    page.Answer = Rest(line);
    return;
  }
  if (call == "pause") {
    page.Pause = NextWhole(line);
    return;
  }
  if (call == "endslides") return web::EndSlideShow(&shell);
  if (call == "open") return web::Open(&shell, Rest(line).c_str());
  line >> control;
  const char* const name = control.c_str();
  if (call == "text") return web::PutText(&shell, name, Rest(line).c_str());
  if (call == "entry") return web::PutEntry(&shell, name, Rest(line).c_str());
  if (call == "value") return web::PutValue(&shell, name, NextWhole(line));
  if (call == "focus") return web::Focus(&shell, name);
  if (call == "key") return web::Key(&shell, name, NextWhole(line));
  if (call == "click") return web::Click(&shell, name);
  if (call == "change") return web::Change(&shell, name);
  if (call == "tick") return web::Tick(&shell, name);
  const float x = NextNumber(line);
  const float y = NextNumber(line);
  if (call == "move") return web::MouseMove(&shell, name, x, y);
  if (call == "drop") return web::Drop(&shell, name, x, y);
  if (call == "down") return web::MouseDown(&shell, name, x != 0 ? 1 : 0, y != 0 ? 1 : 0);
}

}  // namespace

void Try(std::string_view input) {
  page = {};
  const ScreenSize screen = {160 * UnitsPerPixel, 160 * UnitsPerPixel};
  web::PageShell shell(screen, ZERIMO_FONT, Folders(".", Disk::Confined("/there is no such folder", ZERIMO_SAMPLES)));
  web::Load(&shell);
  std::istringstream lines{std::string(input)};
  for (std::string line; std::getline(lines, line);) Call(shell, line);
}

}  // namespace fuzz

}  // namespace zerimo
