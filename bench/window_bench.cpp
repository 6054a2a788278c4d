#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
#include <functional>
#include <iostream>
#include <string>

#include "desktop/extensions/extensions.h"
#include "desktop/session.h"

namespace zerimo {

namespace {

/// Counts how often a widget is painted.
class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
  int Paintings = 0;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++Paintings;
    return false;
  }
};

double SecondsOf(const QElapsedTimer& clock) { return static_cast<double>(clock.nsecsElapsed()) * 1e-9; }

/// Enters a line on the row that has the focus, as the learner does.
void Enter(QWidget& window, const QString& line) {
  auto& row = static_cast<QLineEdit&>(*window.focusWidget());
  row.setText(line);
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&row, &enter);
}

/// Calls `work` in a window that fills the screen, as soon as the first row has the focus, and ends the program.
void InWindow(bool withExtensions, const std::function<void(Session& session, const PaintCount& pictures)>& work) {
  const QTemporaryDir folder;
  const std::string path = folder.path().toStdString();
  Session session(QApplication::primaryScreen()->availableGeometry(), Folders(path, Disk(path)));
  if (withExtensions) AddExtensions(session, path);
  session.Start();
  const PaintCount pictures(session.window.WidgetOf(session.form1.Picture1));
  const auto begin = [&] {
    work(session, pictures);
    QApplication::quit();
  };
  session.WhenStarted([&](Form1&) { QTimer::singleShot(0, qApp, begin); });
  QApplication::exec();
}

/// Runs a line, and prints the pictures of the surface and the seconds of the clock.
void RunInWindow(const QString& line) {
  InWindow(false, [&](Session& session, const PaintCount& pictures) {
    const int before = pictures.Paintings;
    QElapsedTimer clock;
    clock.start();
    Enter(session.window, line);
    std::cout << pictures.Paintings - before << ' ' << SecondsOf(clock) << '\n';
  });
}

/// Returns the seconds from Enter until the display shows what a line has drawn.
double SecondsToPicture(QWidget& window, const PaintCount& pictures, const QString& line) {
  QGuiApplication::sync();
  const int before = pictures.Paintings;
  QElapsedTimer clock;
  clock.start();
  Enter(window, line);
  while (pictures.Paintings == before) {
    QApplication::processEvents();
    // This runs in a posted event, where the desktop's turn leaves requests to paint waiting.
    QApplication::sendPostedEvents();
  }
  QGuiApplication::sync();
  return SecondsOf(clock);
}

/// Starts the window with all that it has, and enters a line some times. Prints when the first row had the focus, in
/// seconds of the clock that all processes share, and the seconds that each line took.
void AnswerInWindow(const QString& line, int rounds) {
  InWindow(true, [&](Session& session, const PaintCount& pictures) {
    QGuiApplication::sync();
    std::cout.precision(12);
    std::cout << std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count() << '\n';
    for (int i = 0; i < rounds; ++i) std::cout << SecondsToPicture(session.window, pictures, line) << '\n';
  });
}

}  // namespace

}  // namespace zerimo

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc == 2) {
    zerimo::RunInWindow(QString::fromLocal8Bit(argv[1]));
  } else if (argc == 3) {
    zerimo::AnswerInWindow(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]).toInt());
  } else {
    std::cerr << "usage: zerimo_window_bench LINE [ROUNDS]\n";
    return 2;
  }
  return 0;
}
