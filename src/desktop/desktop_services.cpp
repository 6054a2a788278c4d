#include "desktop/desktop_services.h"

#include <QApplication>
#include <QInputDialog>
#include <QLocale>
#include <QThread>
#include <QTime>
#include <algorithm>
#include <chrono>
#include <utility>

#include "desktop/desktop_text.h"
#include "desktop/dialogs.h"
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

DesktopServices::DesktopServices(Stage& stage, QString dialogFolder)
    : stage_(stage), folder_(std::move(dialogFolder)) {}

Answer DesktopServices::MessageBox(const std::string& text, int style, const std::string& title) {
  stage_.ShowState();
  MessageDialog dialog(stage_.Window(), WithLineEnds(text), style, TitleOr(title));
  stage_.Stay(dialog);
  return dialog.Chosen();
}

std::string DesktopServices::InputBox(const std::string& prompt, const std::string& title,
                                      const std::string& defaultAnswer) {
  stage_.ShowState();
  QInputDialog dialog(&stage_.Window());
  dialog.setWindowTitle(TitleOr(title));
  dialog.setLabelText(WithLineEnds(prompt));
  dialog.setTextValue(ToQString(defaultAnswer));
  dialog.setOkButtonText(QStringLiteral("&OK"));
  dialog.setCancelButtonText(QStringLiteral("&Cancel"));
  dialog.resize(InputWidth, dialog.sizeHint().height());
  return stage_.Stay(dialog) == QDialog::Accepted ? ToSystemText(dialog.textValue()) : std::string();
}

std::string DesktopServices::ShowOpen() {
  if (!offeredFile_.empty()) return std::exchange(offeredFile_, {});
  return AskForFile(false, QStringLiteral("Zerimo files and pictures (*.zrm *.jpg *.bmp *.gif);;All files (*)"));
}

std::string DesktopServices::ShowSave(const std::string& text) {
  return AskForFile(true, ToQString(text) + QStringLiteral(" (*.zrm);;All files (*)"));
}

std::string DesktopServices::AskForFile(bool save, const QString& filter) {
  stage_.ShowState();
  FileDialog dialog(stage_.Window(), save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen,
                    save ? QStringLiteral("Save As") : QStringLiteral("Open"), folder_, filter);
  // The system overwrites files without asking.
  dialog.setOption(QFileDialog::DontConfirmOverwrite);
  if (stage_.Stay(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  folder_ = dialog.directory().absolutePath();
  return Folders::ToSystem(dialog.selectedFiles().constFirst().toStdU16String());
}

void DesktopServices::Sleep(std::int32_t length) {
  if (length < 0) return;
  const auto end = Clock::now() + milliseconds(length);
  stage_.ShowState();
  for (auto now = Clock::now(); now < end; now = Clock::now()) {
    const auto rest = std::chrono::ceil<std::chrono::microseconds>(end - now);
    QThread::usleep(static_cast<unsigned long>(std::min<std::chrono::microseconds>(rest, SleepSlice).count()));
    stage_.AnswerDesktop();
  }
}

void DesktopServices::Beep() { QApplication::beep(); }

std::string DesktopServices::TimeOfDay() {
  return ToSystemText(QLocale::system().toString(QTime::currentTime(), QLocale::ShortFormat));
}

}  // namespace zerimo
