#include "classroom/progress.h"

#include <cstdio>

#include "classroom/readable.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace zerimo::classroom {

namespace {

/// Columns that every terminal has, without the last, which may begin a new line.
constexpr int Columns = 79;

}  // namespace

void Progress::Tell(std::size_t done, std::size_t all, const QString& words) {
  const QString line = QStringLiteral("%1/%2 %3").arg(done).arg(all).arg(Readable(words));
  if (terminal) {
    WriteOver(line);
  } else {
    output << line.toStdString() << '\n' << std::flush;
  }
}

void Progress::Close(const QString& words) {
  if (terminal) WriteOver({});
  output << (terminal ? "\r" : "") << "zerimo-batch: " << Readable(words).toStdString() << '\n' << std::flush;
}

void Progress::WriteOver(QString line) {
  line.truncate(Columns);
  output << '\r' << line.leftJustified(Columns).toStdString() << std::flush;
}

bool Progress::StandardErrorIsTerminal() {
#ifdef _WIN32
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace zerimo::classroom
