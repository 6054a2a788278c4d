#include "classroom/progress.h"

#include <QList>
#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "classroom/readable.h"

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace zerimo::classroom {

namespace {

/// Columns that every terminal has, minus the last, which may cause a line break.
constexpr int Columns = 79;

/// The common characters that take two columns.
constexpr std::array<std::pair<char32_t, char32_t>, 8> Wide = {{{0x1100, 0x115F},
                                                                {0x2E80, 0xA4CF},
                                                                {0xAC00, 0xD7A3},
                                                                {0xF900, 0xFAFF},
                                                                {0xFE30, 0xFE6F},
                                                                {0xFF00, 0xFF60},
                                                                {0x1F300, 0x1FAFF},
                                                                {0x20000, 0x3FFFD}}};

int ColumnsOf(char32_t character) {
  const QChar::Category category = QChar::category(character);
  if (category == QChar::Mark_NonSpacing || category == QChar::Mark_Enclosing) return 0;
  const bool isWide = std::ranges::any_of(
      Wide, [character](const auto& range) { return range.first <= character && character <= range.second; });
  return isWide ? 2 : 1;
}

/// A text that takes exactly the columns of a line.
QString InColumns(const QString& text) {
  QString line;
  int used = 0;
  for (const uint code : text.toUcs4()) {
    const char32_t character = code;
    if (used + ColumnsOf(character) > Columns) break;
    used += ColumnsOf(character);
    line += QString::fromUcs4(&character, 1);
  }
  return line + QString(Columns - used, u' ');
}

}  // namespace

void Progress::Tell(std::size_t done, std::size_t all, const QString& words) {
  const QString line = QStringLiteral("%1/%2 %3").arg(done).arg(all).arg(Readable(words));
  if (terminal_) {
    WriteOver(line);
  } else {
    output_ << line.toStdString() << '\n' << std::flush;
  }
}

void Progress::Close(const QString& words) {
  if (terminal_) WriteOver({});
  output_ << (terminal_ ? "\r" : "") << "zerimo-batch: " << Readable(words).toStdString() << '\n' << std::flush;
}

void Progress::WriteOver(const QString& line) { output_ << '\r' << InColumns(line).toStdString() << std::flush; }

bool Progress::StandardErrorIsTerminal() {
#ifdef _WIN32
  return _isatty(_fileno(stderr)) != 0;
#else
  return isatty(STDERR_FILENO) != 0;
#endif
}

}  // namespace zerimo::classroom
