#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <optional>

#include "support/failure_of.h"

namespace zerimo {

/// The kind of failure with which a statement fails where files can't grow beyond a size, as on a full disk, or nothing
/// if it succeeds. It runs in a process of its own.
template <typename Statement>
std::optional<FailureKind> FailureOnFullDisk(rlim_t size, Statement&& statement) {
  const pid_t child = fork();
  if (child == 0) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    limit.rlim_cur = size;
    setrlimit(RLIMIT_FSIZE, &limit);
    const std::optional<FailureKind> failure = FailureOf(statement);
    _exit(failure ? 1 + static_cast<int>(*failure) : 0);
  }
  int status = 0;
  EXPECT_EQ(waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFEXITED(status));
  const int told = WEXITSTATUS(status);
  return told == 0 ? std::nullopt : std::optional(static_cast<FailureKind>(told - 1));
}

}  // namespace zerimo
