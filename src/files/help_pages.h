#pragma once

#include <functional>
#include <string>

#include "files/files_context.h"

namespace zerimo {

/// The help view: a list of pages and a page. The pages are in the folder ZMHELP in the current folder.
class HelpPages {
 public:
  explicit HelpPages(const FilesContext& context) : context_(context) {}

  /// Binds `HELP` to its action.
  void Bind();

  /// Loads the page selected in the list. Fails (file).
  void File1MouseDown();

  /// F11 on the page: asks for a name and saves the page as rich text. Fails (file).
  void SavePage();

  /// Hides the page and the list.
  void CloseView() noexcept;

 private:
  void Open(PrimitiveCall& call);
  void SetFolder();
  void LoadPage(const std::string& file);

  FilesContext context_;
  std::string wanted_;
  const std::function<void()> sayNotAvailable_ = [this] {
    context_.services.MessageBox("Help is not available for " + wanted_);
  };
};

}  // namespace zerimo
