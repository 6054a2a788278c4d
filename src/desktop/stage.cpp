#include "desktop/stage.h"

#include <QCoreApplication>
#include <QDialog>
#include <QEventLoop>
#include <QWidget>
#include <utility>

#include "base/failure.h"

namespace zerimo {

void Stage::Open(QWidget& mainWindow, std::function<void()> showState) {
  window = &mainWindow;
  hold = std::make_unique<InputHold>(mainWindow);
  show = std::move(showState);
}

void Stage::BeginRun() {
  running = true;
  hold->Begin();
}

void Stage::EndRun() {
  running = false;
  hold->End();
}

void Stage::ShowState() {
  show();
  AnswerDesktop();
}

void Stage::AnswerDesktop() {
  QCoreApplication::processEvents(QEventLoop::AllEvents);
  // One pass may leave the request to paint for the next one.
  QCoreApplication::sendPostedEvents();
  if (closeRequested) throw Ended{"close"};
}

int Stage::Stay(QDialog& dialog) {
  // Not modal in the toolkit's own way: that would drop the user's wish to close the window, and a program that shows
  // box after box could not be left.
  dialog.setModal(false);
  dialog.setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                        Qt::WindowCloseButtonHint);
  QDialog* const below = hold->Box();
  hold->SetBox(&dialog);
  QEventLoop loop;
  QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
  dialog.show();
  dialog.raise();
  dialog.activateWindow();
  loop.exec();
  hold->SetBox(below);
  window->activateWindow();
  if (closeRequested) throw Ended{"close"};
  return dialog.result();
}

void Stage::RequestClose() {
  closeRequested = true;
  if (hold->Box() != nullptr) hold->Box()->reject();
}

}  // namespace zerimo
