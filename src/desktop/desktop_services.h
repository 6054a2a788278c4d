#pragma once

#include <QString>
#include <string>
#include <utility>

#include "base/services.h"
#include "desktop/stage.h"

namespace zerimo {

/// The boxes, dialogs, waits and sounds of the desktop. Before each of them the state is on the screen.
class DesktopServices : public Services {
 public:
  /// `dialogFolder` is where the file dialogs begin.
  DesktopServices(Stage& theStage, QString dialogFolder);

  /// The next file dialog to open a file is answered with this name (as the system writes it) and does not stand.
  void OfferFile(std::string name) { offeredFile = std::move(name); }

  Answer MessageBox(const std::string& text, int style, const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultAnswer) override;
  std::string ShowOpen() override;
  std::string ShowSave(const std::string& text) override;
  void Sleep(std::int32_t milliseconds) override;
  void Beep() override;
  std::string TimeOfDay() override;

 private:
  std::string AskForFile(bool save, const QString& filter);

  Stage& stage;
  QString folder;
  std::string offeredFile;
};

}  // namespace zerimo
