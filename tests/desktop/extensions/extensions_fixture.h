#pragma once

#include <QLabel>

#include "desktop/desktop_fixture.h"
#include "desktop/extensions/extensions.h"

namespace zerimo {

/// A session with all extensions.
class ExtensionsTest : public DesktopTest {
 protected:
  /// A text of the editor is kept `keepAfter` its change.
  explicit ExtensionsTest(std::chrono::milliseconds keepAfter = std::chrono::seconds(1)) : KeepAfter(keepAfter) {
    AddExtensions(*session, State(), KeepAfter);
  }

  /// The folder for what the user types.
  std::filesystem::path State() const { return folder.filePath("state").toStdString(); }

  /// Opens the editor and types lines.
  void TypeInEditor(const char* lines) {
    Press(Qt::Key_F1);
    for (const QString& line : QString::fromLatin1(lines).split('\n')) {
      if (!Editor().toPlainText().isEmpty()) Press(Qt::Key_Return);
      Type(line.toLatin1());
    }
  }

  const std::chrono::milliseconds KeepAfter;

  QLabel& Chip() { return *Window().findChild<QLabel*>("RunChip"); }
};

}  // namespace zerimo
