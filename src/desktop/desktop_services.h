#pragma once

#include <QString>
#include <string>
#include <utility>

#include "base/services.h"
#include "desktop/stage.h"

namespace zerimo {

/// The boxes, dialogs, waits and sounds of the desktop. The screen is brought up to date before each of them.
class DesktopServices : public Services {
 public:
  /// `dialogFolder` is where the file dialogs open first.
  DesktopServices(Stage& stage, QString dialogFolder);

  /// Answers the next dialog that opens a file with this name, in the system's notation, without showing the dialog.
  void OfferFile(std::string name) { offeredFile_ = std::move(name); }

  Answer MessageBox(const std::string& text, int style, const std::string& title) override;
  std::string InputBox(const std::string& prompt, const std::string& title, const std::string& defaultAnswer) override;
  std::string ShowOpen() override;
  std::string ShowSave(const std::string& text) override;
  void Sleep(std::int32_t milliseconds) override;
  void Beep() override;
  std::string TimeOfDay() override;

 private:
  std::string AskForFile(bool save, const QString& filter);

  Stage& stage_;
  QString folder_;
  std::string offeredFile_;
};

}  // namespace zerimo
