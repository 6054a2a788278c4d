#include "desktop/extensions/line_journal.h"

#include <QCoreApplication>
#include <QDateTime>
#include <algorithm>
#include <fstream>
#include <system_error>
#include <vector>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace fs = std::filesystem;

LineJournal::LineJournal(Form1& form1, fs::path folder) : folder_(std::move(folder)) {
  // The history also gets what a program prints.
  form1.controls.List4.OnChange = [this, &form1](const std::string* item) {
    if (item != nullptr && *item == "?" + form1.interpreter.typedLines.LastTypedLine)
      Note(form1.interpreter.typedLines.LastTypedLine);
  };
}

void LineJournal::Note(const std::string& text) {
  if (file_.empty()) Begin();
  // Opened for each line, so that a disk that was full for one can take the next.
  std::ofstream file(file_, std::ios::binary | std::ios::ate | std::ios::app);
  const QByteArray line = (WithLineEnds(text) + QLatin1Char('\n')).toUtf8();
  if (file.tellp() + static_cast<std::streamoff>(line.size()) <= MostBytes) file << line.toStdString();
}

void LineJournal::Begin() {
  std::error_code ignored;
  fs::create_directories(folder_, ignored);
  MakeRoom();
  const QString name = QStringLiteral("%1 %2.txt")
                           .arg(QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh.mm.ss")))
                           .arg(QCoreApplication::applicationPid());
  file_ = folder_ / name.toStdU16String();
}

void LineJournal::MakeRoom() const {
  std::vector<fs::path> files;
  std::error_code error;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder_, error)) files.push_back(entry.path());
  if (files.size() < MostFiles) return;
  // Their names begin with their time.
  std::sort(files.begin(), files.end());
  files.resize(files.size() - (MostFiles - 1));
  for (const fs::path& old : files) fs::remove(old, error);
}

}  // namespace zerimo
