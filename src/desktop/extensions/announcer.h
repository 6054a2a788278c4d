#pragma once

#include <cstddef>

#include "desktop/session.h"

namespace zerimo {

/// Tells screen readers what the history has gained once a line has run: the line itself and what it printed. Nothing
/// can be seen of it.
class Announcer : public Extension {
 public:
  explicit Announcer(Session& session);

  void RunEnds() override;

  /// How many of the last entries are read out, at most.
  static constexpr std::size_t MostEntries = 20;

 private:
  class Voice;

  const ListBox& history_;
  /// Belongs to the window.
  Voice& voice_;
  std::size_t told_ = 0;
};

}  // namespace zerimo
