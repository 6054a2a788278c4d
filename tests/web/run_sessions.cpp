#include <cstdint>
#include <iostream>
#include <memory>
#include <stdexcept>
#include <string>

#include "batch/batch_session.h"
#include "pixels/pixel_canvas.h"

namespace zerimo {

namespace {

/// The generated sessions print no letters on the picture.
class NoText final : public TextDrawer {
 public:
  PixelRect Print(PixelBuffer&, std::string_view, PixelPoint, double, Pixel) override { return {}; }
};

std::uint64_t Checksum(const PixelBuffer& pixels) {
  std::uint64_t sum = 14695981039346656037U;
  for (int row = 0; row < pixels.Rows(); ++row) {
    for (int column = 0; column < pixels.Columns(); ++column) sum = (sum ^ pixels.Row(row)[column]) * 1099511628211U;
  }
  return sum;
}

void RunSession(const std::string& session) {
  batch::Settings settings;
  settings.Steps = 1000;
  // Some evaluations never end and take no step.
  settings.Seconds = 0.5;
  PixelCanvas canvas(std::make_unique<NoText>(), nullptr);
  batch::Journal journal(&std::cout, nullptr);
  const batch::Outcome outcome = batch::BatchSession(settings, canvas, journal).Run(session);
  if (outcome.How == batch::Ending::Refused) throw std::invalid_argument(outcome.Message);
  std::cout << "{\"pixels\":\"" << Checksum(canvas.Pixels()) << "\"}\n\f";
}

}  // namespace

}  // namespace zerimo

/// Runs the sessions that it reads, each with a form feed after it, and writes each transcript with the sum of its
/// pixels, and a form feed.
int main() {
  std::ios::sync_with_stdio(false);
  for (std::string session; std::getline(std::cin, session, '\f');) zerimo::RunSession(session);
}
