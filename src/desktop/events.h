#pragma once

#include <functional>

#include "console/form1.h"

namespace zerimo {

/// Where the widgets bring what the user did.
class Events {
 public:
  virtual ~Events() = default;

  /// Runs handlers of the system, with what the widgets hold put into the controls before, and the controls shown
  /// again afterwards. Does nothing while another event runs.
  virtual void Deliver(const std::function<void(Form1& form1)>& event) = 0;

  /// The user wants to close the window. Tells whether it may close now.
  virtual bool Close() = 0;
};

}  // namespace zerimo
