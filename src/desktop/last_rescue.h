#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "console/form1.h"
#include "desktop/extension.h"
#include "desktop/stage.h"

namespace zerimo {

/// Keeps the text of the editor when the session has to end.
class LastRescue {
 public:
  /// `places` are folders for a text that neither an extension nor `AppFolder` takes.
  LastRescue(const Form1& form1, const Extensions& extensions, Stage& stage, std::vector<std::filesystem::path> places);

  /// Returns words that say where the text is, empty if there is no text. While nothing takes the text, a box that
  /// begins with `reason` offers to copy it and to try again; returns nothing if the user gives it up there.
  std::optional<std::string> Keep(const std::string& reason);

 private:
  enum class Choice { Copy, TryAgain, GiveUp };

  std::optional<std::string> Try() const;
  Choice Ask(const std::string& reason, bool isCopied);

  const Form1& form1_;
  const Extensions& extensions_;
  Stage& stage_;
  std::vector<std::filesystem::path> places_;
};

}  // namespace zerimo
