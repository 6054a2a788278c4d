#pragma once

#include <functional>

#include "console/form1.h"

namespace zerimo {

/// Where widgets report what the user did.
class Events {
 public:
  virtual ~Events() = default;

  /// Runs handlers of the system: collects what the widgets hold first, and shows the controls again afterwards. Does
  /// nothing while another event runs.
  virtual void Deliver(const std::function<void(Form1& form1)>& event) = 0;

  /// Must be called when the user asks to close the window. Returns whether it may close now.
  virtual bool Close() = 0;
};

}  // namespace zerimo
