#pragma once

#include <QString>

#include "core/services.h"
#include "desktop/stage.h"

namespace zerimo {

/// The boxes, dialogs, waits and sounds of the desktop. Before each of them the state is on the screen.
class DesktopServices : public Services {
 public:
  /// `dialogFolder` is where the file dialogs begin.
  DesktopServices(Stage& theStage, QString dialogFolder);

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
};

}  // namespace zerimo
