#include "desktop/extensions/stop.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

/// A box that comes sooner than this after an answer may be one of many, in milliseconds.
constexpr qint64 AtOnce = 1000;

/// The display's own symbol of Break, which the toolkit does not know.
constexpr quint32 BreakSymbol = 0xFF6B;

bool MeansStop(const QKeyEvent& press) {
  if (!press.modifiers().testFlag(Qt::ControlModifier)) return false;
  const bool isBreak = press.key() == Qt::Key_Pause || press.key() == Qt::Key_Cancel;
  return isBreak || press.nativeVirtualKey() == BreakSymbol || press.key() == Qt::Key_Period;
}

}  // namespace

bool Stop::PressKey(const QKeyEvent& press) {
  if (!MeansStop(press)) return false;
  if (session_.stage.IsRunning()) {
    session_.stage.RequestStop();
  } else if (!session_.form1.controls.Timer3.Enabled) {
    return true;
  }
  // Also one that the stopped line has begun.
  session_.WhenStarted([](Form1& form1) {
    if (form1.controls.Timer3.Enabled) form1.files.pictures.EndSlideShow();
  });
  return true;
}

void Stop::BoxOpens(QDialog& dialog) {
  auto* box = qobject_cast<QMessageBox*>(&dialog);
  if (box == nullptr || !IsProgramRunning() || !sinceAnswer_.isValid() || sinceAnswer_.elapsed() > AtOnce) return;
  const QPushButton* button = box->addButton(QStringLiteral("&Stop the program"), QMessageBox::ActionRole);
  QObject::connect(button, &QPushButton::clicked, box, [this] { session_.stage.RequestStop(); });
}

bool Stop::IsProgramRunning() const { return session_.form1.interpreter.controlPath.CtrlStr() != "."; }

bool Stop::ClosesDuringRun() {
  // The system's own questions close with the window.
  if (!IsProgramRunning()) return false;
  // Closing the window a second time is clear enough.
  if (asking_) return false;
  asking_ = true;
  // Not from here: the toolkit would ignore a second closing.
  QTimer::singleShot(0, &session_.window, [this] { AskToLeave(); });
  return true;
}

void Stop::AskToLeave() {
  if (!session_.stage.IsRunning()) {
    asking_ = false;
    session_.window.close();
    return;
  }
  QMessageBox box(QMessageBox::Question, QLatin1String(ProgramName), QStringLiteral("A program is running."),
                  QMessageBox::NoButton, &session_.window);
  box.setInformativeText(QStringLiteral("Stop it and keep the drawing, close Zerimo, or let it go on?"));
  QPushButton* stop = box.addButton(QStringLiteral("&Stop the program"), QMessageBox::ActionRole);
  const QPushButton* close = box.addButton(QStringLiteral("&Close Zerimo"), QMessageBox::ActionRole);
  QPushButton* goOn = box.addButton(QStringLiteral("&Go on"), QMessageBox::ActionRole);
  box.setDefaultButton(stop);
  box.setEscapeButton(goOn);
  session_.stage.Ask(box);
  asking_ = false;
  if (box.clickedButton() == stop) session_.stage.RequestStop();
  if (box.clickedButton() == close) session_.stage.RequestClose();
}

}  // namespace zerimo
