#include "classroom/interruption.h"

#include <array>
#include <csignal>

namespace zerimo::classroom {

namespace {

constexpr std::array Noted = {
    SIGINT,
    SIGTERM,
#ifdef SIGHUP
    SIGHUP,
#endif
#ifdef SIGQUIT
    SIGQUIT,
#endif
};

// A handler gets no object.
volatile std::sig_atomic_t came = 0;

void Note(int) { came = 1; }

void HandleBrokenPipe([[maybe_unused]] void (*handler)(int)) {
#ifdef SIGPIPE
  std::signal(SIGPIPE, handler);
#endif
}

}  // namespace

Interruption::Interruption() {
  came = 0;
  for (std::size_t i = 0; i < Noted.size(); ++i) {
    formerHandlers_.push_back(std::signal(Noted[i], Note));
    // Whoever started the run wants it to go on, as under nohup.
    if (formerHandlers_.back() == SIG_IGN) std::signal(Noted[i], SIG_IGN);
  }
  HandleBrokenPipe(SIG_IGN);
}

Interruption::~Interruption() {
  for (std::size_t i = 0; i < Noted.size(); ++i) std::signal(Noted[i], formerHandlers_[i]);
  HandleBrokenPipe(SIG_DFL);
}

bool Interruption::Came() { return came != 0; }

}  // namespace zerimo::classroom
