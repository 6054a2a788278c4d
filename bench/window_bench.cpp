#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <chrono>
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

/// Runs a line in a window that fills the screen, and prints the pictures of the surface and the seconds of the clock.
void RunInWindow(const std::string& line) {
  const QTemporaryDir folder;
  const std::string path = folder.path().toStdString();
  Session session(QApplication::primaryScreen()->availableGeometry(), Folders(path, Disk(path)));
  session.Start();
  PaintCount pictures(session.Shown().WidgetOf(session.form1.Picture1));
  QElapsedTimer clock;
  session.WhenStarted([&](Form1& form1) {
    std::string typed = line;
    clock.start();
    form1.interpreter.typedLines.ComplexExecutor(typed);
    std::cout << pictures.Paintings << ' ' << SecondsOf(clock) << '\n';
    QApplication::quit();
  });
  QApplication::exec();
}

/// Enters a line on the row that has the focus, and returns the seconds until the display shows what it has drawn.
double SecondsToPicture(QWidget& window, const PaintCount& pictures, const QString& line) {
  auto& row = static_cast<QLineEdit&>(*window.focusWidget());
  row.setText(line);
  QGuiApplication::sync();
  const int before = pictures.Paintings;
  QElapsedTimer clock;
  clock.start();
  QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QApplication::sendEvent(&row, &enter);
  while (pictures.Paintings == before) QApplication::processEvents();
  QGuiApplication::sync();
  return SecondsOf(clock);
}

/// Starts the window with all that it has, and enters a line some times. Prints when the first row had the focus, in
/// seconds of the clock that all processes share, and the seconds that each line took.
void AnswerInWindow(const QString& line, int rounds) {
  const QTemporaryDir folder;
  const std::string path = folder.path().toStdString();
  Session session(QApplication::primaryScreen()->availableGeometry(), Folders(path, Disk(path)));
  AddExtensions(session, path);
  session.Start();
  const PaintCount pictures(session.Shown().WidgetOf(session.form1.Picture1));
  const auto answer = [&] {
    QGuiApplication::sync();
    std::cout.precision(12);
    std::cout << std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count() << '\n';
    for (int i = 0; i < rounds; ++i) std::cout << SecondsToPicture(session.Shown(), pictures, line) << '\n';
    QApplication::quit();
  };
  session.WhenStarted([&](Form1&) { QTimer::singleShot(0, qApp, answer); });
  QApplication::exec();
}

}  // namespace

}  // namespace zerimo

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc == 2) {
    zerimo::RunInWindow(argv[1]);
  } else if (argc == 3) {
    zerimo::AnswerInWindow(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]).toInt());
  } else {
    std::cerr << "usage: zerimo_window_bench LINE [ROUNDS]\n";
    return 2;
  }
  return 0;
}
