#include "web/page_port.h"

#include <emscripten.h>

#include <cstdlib>
#include <memory>

// clang-format off
EM_JS(void, PortTell, (const char* message), { Module.port.tell(UTF8ToString(message)); });
EM_JS(void, PortShow, (const void* pixels, int columns, int first, int rows), {
  Module.port.show(HEAPU8.slice(pixels, pixels + 4 * columns * rows), columns, first, rows);
});
EM_JS(char*, PortAsk, (const char* question), { return allocateUTF8(Module.port.ask(UTF8ToString(question))); });
EM_JS(void, PortHold, (double milliseconds), { Module.port.hold(milliseconds); });
EM_JS(int, PortTakeStop, (), { return Module.port.takeStop(); });
EM_JS(double, PortChosenPause, (), { return Module.port.chosenPause(); });
EM_JS(void, PortHoldLine, (double pause), { Module.port.holdLine(pause); });
EM_JS(char*, PortTimeOfDay, (), { return allocateUTF8(Module.port.timeOfDay()); });
// clang-format on

namespace zerimo::web {

namespace {

struct FreeText {
  void operator()(char* text) const { std::free(text); }
};

/// Text that the page has made.
std::string Taken(char* text) { return std::unique_ptr<char, FreeText>(text).get(); }

}  // namespace

void TellPage(const std::string& message) { PortTell(message.c_str()); }

void ShowRows(const PixelBuffer& pixels, int first, int last) {
  PortShow(pixels.Row(first), pixels.Columns(), first, last - first + 1);
}

std::string AskPage(const std::string& question) { return Taken(PortAsk(question.c_str())); }

void HoldFor(double milliseconds) { PortHold(milliseconds); }

double PageClock() { return emscripten_get_now(); }

bool TakeStop() { return PortTakeStop() != 0; }

double ChosenPause() { return PortChosenPause(); }

void HoldLine(double pause) { PortHoldLine(pause); }

std::string PageTimeOfDay() { return Taken(PortTimeOfDay()); }

}  // namespace zerimo::web
