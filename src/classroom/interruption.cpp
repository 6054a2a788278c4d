#include "classroom/interruption.h"

#include <csignal>

namespace zerimo::classroom {

namespace {

volatile std::sig_atomic_t came = 0;

void Note(int) { came = 1; }

void HandleAll(void (*handler)(int)) {
  std::signal(SIGINT, handler);
  std::signal(SIGTERM, handler);
#ifdef SIGHUP
  std::signal(SIGHUP, handler);
#endif
}

}  // namespace

Interruption::Interruption() {
  came = 0;
  HandleAll(Note);
}

Interruption::~Interruption() { HandleAll(SIG_DFL); }

bool Interruption::Came() { return came != 0; }

}  // namespace zerimo::classroom
