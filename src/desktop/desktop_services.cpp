#include "desktop/desktop_services.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QLocale>
#include <QThread>
#include <QTime>
#include <algorithm>
#include <chrono>
#include <utility>

#include "desktop/desktop_text.h"
#include "desktop/message_dialog.h"
#include "files/folders.h"

namespace zerimo {

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr milliseconds SleepSlice{16};
constexpr int InputWidth = 420;

QString TitleOr(const std::string& title) {
  return title.empty() ? QString::fromLatin1(ProgramName) : ToQString(title);
}

}  // namespace

DesktopServices::DesktopServices(Stage& theStage, QString dialogFolder)
    : stage(theStage), folder(std::move(dialogFolder)) {}

Answer DesktopServices::MessageBox(const std::string& text, int style, const std::string& title) {
  stage.ShowState();
  MessageDialog dialog(stage.Window(), WithLineEnds(text), style, TitleOr(title));
  stage.Stay(dialog);
  return dialog.Chosen();
}

std::string DesktopServices::InputBox(const std::string& prompt, const std::string& title,
                                      const std::string& defaultAnswer) {
  stage.ShowState();
  QInputDialog dialog(&stage.Window());
  dialog.setWindowTitle(TitleOr(title));
  dialog.setLabelText(WithLineEnds(prompt));
  dialog.setTextValue(ToQString(defaultAnswer));
  dialog.setOkButtonText(QStringLiteral("&OK"));
  dialog.setCancelButtonText(QStringLiteral("&Cancel"));
  dialog.resize(InputWidth, dialog.sizeHint().height());
  return stage.Stay(dialog) == QDialog::Accepted ? ToSystemText(dialog.textValue()) : std::string();
}

std::string DesktopServices::ShowOpen() {
  if (!offeredFile.empty()) return std::exchange(offeredFile, {});
  return AskForFile(false, QStringLiteral("Zerimo files and pictures (*.zrm *.jpg *.bmp *.gif);;All files (*)"));
}

std::string DesktopServices::ShowSave(const std::string& text) {
  return AskForFile(true, ToQString(text) + QStringLiteral(" (*.zrm);;All files (*)"));
}

std::string DesktopServices::AskForFile(bool save, const QString& filter) {
  stage.ShowState();
  QFileDialog dialog(&stage.Window(), save ? QStringLiteral("Save As") : QStringLiteral("Open"), folder, filter);
  dialog.setOption(QFileDialog::DontUseNativeDialog);
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  // The system itself writes over a file without a question.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (stage.Stay(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  folder = dialog.directory().absolutePath();
  return Folders::ToSystem(dialog.selectedFiles().constFirst().toStdU16String());
}

void DesktopServices::Sleep(std::int32_t length) {
  if (length < 0) return;
  const auto end = Clock::now() + milliseconds(length);
  stage.ShowState();
  for (auto now = Clock::now(); now < end; now = Clock::now()) {
    const auto rest = std::chrono::ceil<std::chrono::microseconds>(end - now);
    QThread::usleep(static_cast<unsigned long>(std::min<std::chrono::microseconds>(rest, SleepSlice).count()));
    stage.AnswerDesktop();
  }
}

void DesktopServices::Beep() { QApplication::beep(); }

std::string DesktopServices::TimeOfDay() {
  return ToSystemText(QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat));
}

}  // namespace zerimo
