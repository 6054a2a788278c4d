#include "desktop/extensions/editor_aids.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include "base/failure.h"
#include "base/text.h"
#include "desktop/extensions/line_numbers.h"
#include "desktop/extensions/program_colours.h"

namespace zerimo {

EditorAids::EditorAids(Session& session)
    : session_(session),
      editor_(static_cast<EditorArea&>(session.window.WidgetOf(session.form1.controls.Text2))),
      marks_(*new EditorMarks(editor_)),
      bar_(*new FindBar(editor_)) {
  new LineNumbers(editor_);
  auto* colours = new ProgramColours(*editor_.document());
  // Their first look at the text counts as a change of it: it must not come when a text is already there.
  QCoreApplication::sendPostedEvents(colours, QEvent::MetaCall);
  QPalette palette = editor_.palette();
  palette.setColor(QPalette::PlaceholderText, QColor(0xEE, 0xEE, 0xFF));
  editor_.setPalette(palette);
  editor_.setPlaceholderText(
      QStringLiteral("Write a program here.\n\nF2: done, Zerimo learns it\nF10: save\nF9: load\nF3: leave; Zerimo "
                     "learns nothing, the text stays here\nEsc: nothing\nCtrl+F: find and replace"));
}

bool EditorAids::PressKey(const QKeyEvent& press) {
  const bool isFind = press.key() == Qt::Key_F && press.modifiers() == Qt::ControlModifier;
  if (!isFind || session_.stage.IsRunning() || !editor_.isVisible()) return false;
  bar_.Open();
  return true;
}

void EditorAids::BoxOpens(QDialog&) {
  const Store& store = session_.form1.interpreter.store;
  const int line = session_.form1.interpreter.runner.LineNow();
  if (line < 1) return;
  // While it runs, a line may have a blank at its end.
  const auto textOf = [&](int number) { return std::string(Trimmed(store.Line(number))); };
  SkipOnFailure([&] { marks_.MarkStatement(textOf(store.HeaderOf(line)), textOf(line)); });
}

}  // namespace zerimo
