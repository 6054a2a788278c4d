#pragma once

#include <stdexcept>
#include <string>

namespace zerimo::batch {

/// The command line can't be understood; the message is one line for the user.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The session is wrong at a line, counted from 1.
class SessionError : public std::runtime_error {
 public:
  SessionError(int line, const std::string& message) : std::runtime_error(message), Line(line) {}
  int Line;
};

}  // namespace zerimo::batch
