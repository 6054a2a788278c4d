#pragma once

#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/session.h"

namespace zerimo {

/// A session in a window of its own on a screen of 1024x768, with an empty folder as `AppFolder` and as the current
/// folder, after the start.
class DesktopTest : public testing::Test {
 protected:
  explicit DesktopTest(const QRect& available = {0, 0, 1024, 768});
  ~DesktopTest() override;

  Controls& FormControls() { return session->form1.controls; }
  MainWindow& Window() { return session->window; }
  QWidget& WidgetOf(const Control& control) { return Window().WidgetOf(control); }
  template <typename Widget>
  Widget& WidgetAs(const Control& control) {
    return dynamic_cast<Widget&>(WidgetOf(control));
  }
  QLineEdit& Row(int index) { return WidgetAs<QLineEdit>(FormControls().Text1[index]); }
  QPlainTextEdit& Editor() { return WidgetAs<QPlainTextEdit>(FormControls().Text2); }

  /// The widget that keys go to.
  QWidget* Focused() const { return session->window.focusWidget(); }
  /// A key on the widget that has the focus.
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Real key events for each character.
  void Type(const char* text);
  /// Types a line on the row that has the focus, and Enter.
  void Enter(const char* line);

  /// From the editor to row 0 without the fold.
  void LeaveEditor();

  /// Runs the event loop until a condition is true, for a few seconds at most. Returns whether it is true.
  static bool Until(const std::function<bool()>& condition);
  /// Does something once a condition holds, while the next line runs.
  void When(std::function<bool()> condition, std::function<void()> action);
  /// Does something `after` milliseconds of the next line's run.
  void During(int after, std::function<void()> action);

  /// Lets the one-shot timer that gives the focus to row 0 fire.
  void Settle();

  /// A box as it was on the screen.
  struct SeenBox {
    std::string Text;
    std::string Title;
    std::vector<std::string> Buttons;
    QPixmap Icon;
  };
  /// Presses keys in the next box that opens, and records the box. May be called several times, for one box each.
  void AnswerNextBox(std::vector<Qt::Key> keys, const char* typed = "");
  /// Looks around while the next box is open, and then closes it.
  void WhileABoxStands(std::function<void()> look, Qt::Key close = Qt::Key_Return);
  std::vector<SeenBox> Boxes;

  void WriteFile(const char* name, const std::string& bytes) const;
  std::string ReadFile(const char* name) const;
  bool HasFile(const char* name) const;

  /// Where relative paths start, and the program's folder: `folder`.
  Folders OwnFolders() const;

  QTemporaryDir folder;
  std::unique_ptr<Session> session;

 private:
  struct Waiting {
    std::vector<Qt::Key> Keys;
    const char* Typed;
    std::function<void()> Look;
  };
  void AnswerBox();
  void GiveUp(QDialog& dialog);

  std::vector<Waiting> answers_;
  QTimer answering_;
  /// The owner of what looks while a line runs.
  QObject looks_;
  int rounds_ = 0;
};

}  // namespace zerimo
