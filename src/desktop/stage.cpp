#include "desktop/stage.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEventLoop>
#include <QWidget>
#include <utility>

#include "base/failure.h"
#include "base/stop_run.h"

namespace zerimo {

void Stage::Open(QWidget& window, std::function<void()> showState) {
  window_ = &window;
  hold_ = std::make_unique<InputHold>(window);
  show_ = std::move(showState);
}

void Stage::BeginRun() {
  running_ = true;
  stopRequested_ = false;
  hold_->Begin();
  extensions_.ForEach([](Extension& extension) { extension.RunBegins(); });
}

void Stage::EndRun() {
  running_ = false;
  hold_->End();
  extensions_.ForEach([](Extension& extension) { extension.RunEnds(); });
}

void Stage::ShowState() {
  show_();
  AnswerDesktop();
}

void Stage::AnswerDesktop() {
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  // Events may have posted paint requests.
  QCoreApplication::sendPostedEvents();
  LeaveIfAsked();
}

int Stage::Stay(QDialog& dialog) {
  extensions_.ForEach([&](Extension& extension) { extension.BoxOpens(dialog); });
  const int result = Ask(dialog);
  extensions_.ForEach([](Extension& extension) { extension.BoxCloses(); });
  LeaveIfAsked();
  return result;
}

int Stage::Ask(QDialog& dialog) {
  // The toolkit's modality would swallow attempts to close the window, and a program that shows box after box could not
  // be left.
  dialog.setModal(false);
  dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                        Qt::WindowCloseButtonHint);
  QDialog* const below = hold_->Box();
  hold_->SetBox(&dialog);
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
  loop.exec();
  hold_->SetBox(below);
  window_->activateWindow();
  return dialog.result();
}

void Stage::RequestClose() {
  closeRequested_ = true;
  CloseBox();
}

void Stage::RequestStop() {
  stopRequested_ = true;
  CloseBox();
}

void Stage::CloseBox() {
  if (hold_->Box() != nullptr) hold_->Box()->reject();
}

void Stage::LeaveIfAsked() {
  if (closeRequested_) throw Ended{"close"};
  if (std::exchange(stopRequested_, false)) throw StopRun();
}

}  // namespace zerimo
