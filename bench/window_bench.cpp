#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QScreen>
#include <QTemporaryDir>
#include <QWidget>
#include <iostream>
#include <string>

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
    std::cout << pictures.Paintings << ' ' << static_cast<double>(clock.nsecsElapsed()) * 1e-9 << '\n';
    QApplication::quit();
  });
  QApplication::exec();
}

}  // namespace

}  // namespace zerimo

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: zerimo_window_bench LINE\n";
    return 2;
  }
  zerimo::RunInWindow(argv[1]);
  return 0;
}
