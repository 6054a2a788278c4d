#include <QApplication>
#include <QDir>
#include <QScreen>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <exception>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

#include "desktop/desktop_style.h"
#include "desktop/desktop_text.h"
#include "desktop/extensions/extensions.h"
#include "desktop/extensions/zoom.h"
#include "desktop/session.h"
#include "desktop/window_options.h"
#include "files/disk_files.h"
#include "files/folders.h"

namespace zerimo {

namespace {

namespace fs = std::filesystem;

/// The exit status for arguments that the program does not accept.
constexpr int Refused = 1;

constexpr const char* Version = "zerimo " ZERIMO_VERSION "\n";
constexpr const char* Help =
    "Usage: zerimo [options] [FILE]\n"
    "FILE is a program (.ZRM) or a picture to open.\n\n"
    "  --classic          leaves out all that goes beyond the classic system\n"
    "  --scale PERCENT    shows everything in this size, from 50 to 400\n"
    "  --help             shows this and ends\n"
    "  --version          shows the version and ends\n";

fs::path DiskPath(const QString& path) { return path.toStdU16String(); }

Surroundings LookAround() {
  Surroundings surroundings;
  const QString programFolder = QCoreApplication::applicationDirPath();
  surroundings.ProgramFolder = DiskPath(programFolder);
  surroundings.CanWriteIntoProgramFolder = CanWriteInto(surroundings.ProgramFolder);
  surroundings.ShareFolder = DiskPath(QDir::cleanPath(programFolder + QStringLiteral("/" ZERIMO_SHARE_FOLDER)));
  surroundings.DocumentsFolder = DiskPath(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
  return surroundings;
}

std::string WordsAbout(const StartFolder& start) {
  if (start.Unusable.empty()) return {};
  return "Your folder " + Folders::ToSystem(start.Unusable) + " can't be written.\rZerimo works in " +
         Folders::ToSystem(start.Folder) +
         ".\rWhat you save there may be lost: save with SHOW SAVEAS, in another folder.";
}

/// The absolute path of the file to open, or the empty path.
fs::path FileToOpen(const WindowOptions& options) {
  if (!options.File) return {};
  const auto place = static_cast<qsizetype>(*options.File) + 1;
  return fs::absolute(DiskPath(QCoreApplication::arguments().at(place)));
}

void SetScale(int percent) { qputenv("QT_SCALE_FACTOR", QByteArray::number(percent / 100.0)); }

/// The toolkit connected with the desktop, at the scale asked for or at one that fits the screen.
std::unique_ptr<QApplication> Connect(const WindowOptions& options, int& argc, char** argv) {
  if (options.Scale != 0) SetScale(options.Scale);
  auto application = std::make_unique<QApplication>(argc, argv);
  if (options.Scale != 0 || options.Classic) return application;
  const QScreen& screen = *QApplication::primaryScreen();
  const int scale = ScaleForScreen(screen.size().width(), screen.devicePixelRatio());
  if (scale == 100) return application;
  // The toolkit reads the scale when it starts.
  application.reset();
  SetScale(scale);
  return std::make_unique<QApplication>(argc, argv);
}

int RunInWindow(const WindowOptions& options, int argc, char** argv) {
  const std::unique_ptr<QApplication> application = Connect(options, argc, argv);
  QApplication::setApplicationName(QString::fromLatin1(ProgramName));
  QApplication::setApplicationVersion(QStringLiteral(ZERIMO_VERSION));
  QApplication::setDesktopFileName(QStringLiteral(ZERIMO_ID));
  QApplication::setQuitOnLastWindowClosed(false);
  // Where the toolkit may keep how its dialogs were left, for as long as the program runs.
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
  SetDesktopStyle();
  const fs::path file = FileToOpen(options);
  const StartFolder start = PrepareStartFolder(LookAround());
  const Disk disk(start.IsCurrentFolder ? start.Folder : fs::path());
  const fs::path state = DiskPath(QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation));
  const fs::path temporary = DiskPath(QStandardPaths::writableLocation(QStandardPaths::TempLocation));
  Session session(QApplication::primaryScreen()->availableGeometry(), Folders(AppFolderName(start.Folder, disk), disk),
                  FoldersForRescue(state, temporary));
  if (!options.Classic) AddExtensions(session, state);
  session.Start();
  session.Greet(WordsAbout(start), file);
  if (!session.HasEnded()) QApplication::exec();
  return session.ExitStatus();
}

int Main(int argc, char** argv) {
  const WindowOptions options = ReadWindowOptions({argv + 1, argv + argc});
  if (!options.Refusal.empty()) {
    std::cerr << "zerimo: " << options.Refusal << '\n';
    return Refused;
  }
  if (!options.Help && !options.Version) return RunInWindow(options, argc, argv);
  std::cout << (options.Help ? Help : Version) << std::flush;
  return std::cout ? 0 : Refused;
}

}  // namespace

}  // namespace zerimo

int main(int argc, char** argv) {
  zerimo::LetLargeWritesFail();
  try {
    return zerimo::Main(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "zerimo: " << error.what() << '\n';
    return zerimo::Session::EndedByFailure;
  }
}
