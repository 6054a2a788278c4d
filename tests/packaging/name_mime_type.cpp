/// Prints the MIME type and the icon that the desktop's data name for a file: name_mime_type FILE.
#include <QCoreApplication>
#include <QMimeDatabase>
#include <cstdio>

int main(int argc, char** argv) {
  const QCoreApplication application(argc, argv);
  if (argc != 2) return 1;
  const QMimeType type = QMimeDatabase().mimeTypeForFile(QCoreApplication::arguments().at(1));
  std::printf("%s %s\n", qPrintable(type.name()), qPrintable(type.iconName()));
  return 0;
}
