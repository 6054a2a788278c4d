#include <QApplication>
#include <QScreen>
#include <exception>
#include <iostream>

#include "desktop/desktop_style.h"
#include "desktop/desktop_text.h"
#include "desktop/session.h"
#include "files/folders.h"

namespace zerimo {

namespace {

int RunInWindow(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(ProgramName));
  QApplication::setQuitOnLastWindowClosed(false);
  SetDesktopStyle();
  const std::filesystem::path folder = QCoreApplication::applicationDirPath().toStdU16String();
  Session session(QApplication::primaryScreen()->availableGeometry(), Folders::ToSystem(folder));
  session.Start();
  if (!session.HasEnded()) QApplication::exec();
  return session.ExitStatus();
}

}  // namespace

}  // namespace zerimo

int main(int argc, char** argv) {
  try {
    return zerimo::RunInWindow(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "zerimo: " << error.what() << '\n';
    return zerimo::Session::EndedByFailure;
  }
}
