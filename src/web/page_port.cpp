#include "web/page_port.h"

#include <emscripten.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

// clang-format off
EM_JS(void, PortTell, (const char* message), { Module.port.tell(UTF8ToString(message)); });
EM_JS(void, PortShow, (const void* pixels, int left, int top, int columns, int rows, int width, int height), {
  const bytes = new Uint8ClampedArray(HEAPU8.slice(pixels, pixels + 4 * columns * rows).buffer);
  Module.port.show({pixels: bytes, left, top, columns, width, height});
});
EM_JS(char*, PortAsk, (const char* question), { return allocateUTF8(Module.port.ask(UTF8ToString(question))); });
EM_JS(void, PortHold, (double milliseconds), { Module.port.hold(milliseconds); });
EM_JS(int, PortTakeFrame, (), { return Module.port.takeFrame(); });
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

/// With red in the first byte, as a canvas of the browser has it.
Pixel ForCanvas(Pixel pixel) { return (pixel & 0xFF00FF00U) | (pixel & 0xFFU) << 16U | (pixel >> 16U & 0xFFU); }

}  // namespace

void TellPage(const std::string& message) { PortTell(message.c_str()); }

void ShowPart(const PixelBuffer& pixels, const PixelRect& part) {
  std::vector<Pixel> shown(static_cast<std::size_t>(part.Columns()) * static_cast<std::size_t>(part.Rows()));
  Pixel* to = shown.data();
  for (int row = part.Top; row <= part.Bottom; ++row) {
    to = std::transform(pixels.Row(row) + part.Left, pixels.Row(row) + part.Right + 1, to, ForCanvas);
  }
  PortShow(shown.data(), part.Left, part.Top, part.Columns(), part.Rows(), pixels.Columns(), pixels.Rows());
}

std::string AskPage(const std::string& question) { return Taken(PortAsk(question.c_str())); }

void HoldFor(double milliseconds) { PortHold(milliseconds); }

bool TakeFrame() { return PortTakeFrame() != 0; }

double PageClock() { return emscripten_get_now(); }

bool TakeStop() { return PortTakeStop() != 0; }

double ChosenPause() { return PortChosenPause(); }

void HoldLine(double pause) { PortHoldLine(pause); }

std::string PageTimeOfDay() { return Taken(PortTimeOfDay()); }

}  // namespace zerimo::web
