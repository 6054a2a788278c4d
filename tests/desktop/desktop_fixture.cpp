#include "desktop/desktop_fixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTest>

namespace zerimo {

namespace {

constexpr int LongestWait = 30000;
/// How often an unanswered box is looked at before the test gives up.
constexpr int MostRounds = 500;

QDialog* StandingBox() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* dialog = qobject_cast<QDialog*>(widget);
    if (dialog != nullptr && dialog->isVisible()) return dialog;
  }
  return nullptr;
}

/// The end of an earlier session in this process would end the boxes of this one.
void ForgetFormerEnd() {
  QTimer::singleShot(0, qApp, &QCoreApplication::quit);
  QApplication::exec();
}

std::string WithoutMark(QString text) { return text.remove(QLatin1Char('&')).toStdString(); }

}  // namespace

DesktopTest::DesktopTest(const QRect& available) {
  ForgetFormerEnd();
  session = std::make_unique<Session>(available, OwnFolders());
  session->Start();
  // Without a screen, the toolkit gives the window a frame that takes some of the area.
  Window().setFixedSize(available.size());
  Settle();
  QObject::connect(&answering_, &QTimer::timeout, &answering_, [this] { AnswerBox(); });
  answering_.start(2);
}

DesktopTest::~DesktopTest() { session.reset(); }

Folders DesktopTest::OwnFolders() const {
  const std::string path = folder.path().toStdString();
  return Folders(path, Disk(path));
}

void DesktopTest::Press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  ASSERT_NE(Focused(), nullptr);
  QTest::keyClick(Focused(), key, modifiers);
}

void DesktopTest::Type(const char* text) {
  for (const QChar character : QString::fromUtf8(text)) {
    if (character.unicode() < 128) {
      QTest::keyClick(Focused(), character.toLatin1());
    } else {
      QTest::sendKeyEvent(QTest::Click, Focused(), Qt::Key_unknown, QString(character), Qt::NoModifier);
    }
  }
}

void DesktopTest::Enter(const char* line) {
  auto* row = qobject_cast<QLineEdit*>(Focused());
  ASSERT_NE(row, nullptr) << "no row has the focus for " << line;
  row->selectAll();
  if (*line == '\0') QTest::keyClick(row, Qt::Key_Delete);
  Type(line);
  Press(Qt::Key_Return);
}

void DesktopTest::LeaveEditor() {
  Press(Qt::Key_F3);
  QTest::keyClick(&Window(), Qt::Key_F2);
  ASSERT_EQ(Focused(), &Row(0));
}

bool DesktopTest::Until(const std::function<bool()>& condition) {
  QElapsedTimer clock;
  for (clock.start(); !condition() && clock.elapsed() < LongestWait;) QTest::qWait(1);
  return condition();
}

void DesktopTest::When(std::function<bool()> condition, std::function<void()> action) {
  auto* look = new QTimer(&looks_);
  QObject::connect(look, &QTimer::timeout, look, [look, condition = std::move(condition), action = std::move(action)] {
    if (!condition()) return;
    look->stop();
    action();
  });
  look->start(1);
}

void DesktopTest::During(int after, std::function<void()> action) {
  const auto runs = [this] {
    return session->stage.IsRunning() && !session->form1.interpreter.controlPath.NothingRuns();
  };
  When(runs, [after, action = std::move(action)] { QTimer::singleShot(after, qApp, action); });
}

void DesktopTest::Settle() {
  Until([this] { return !FormControls().Timer2.Enabled; });
}

void DesktopTest::AnswerNextBox(std::vector<Qt::Key> keys, const char* typed) {
  answers_.push_back({std::move(keys), typed, {}});
}

void DesktopTest::WhileABoxStands(std::function<void()> look, Qt::Key close) {
  answers_.push_back({{close}, "", std::move(look)});
}

void DesktopTest::AnswerBox() {
  QDialog* dialog = StandingBox();
  if (dialog == nullptr) return;
  if (answers_.empty()) return GiveUp(*dialog);
  const Waiting answer = answers_.front();
  answers_.erase(answers_.begin());
  rounds_ = 0;
  SeenBox seen;
  seen.Title = dialog->windowTitle().toStdString();
  if (auto* box = qobject_cast<QMessageBox*>(dialog)) {
    seen.Text = box->text().toStdString();
    seen.Icon = box->iconPixmap();
    for (QAbstractButton* button : box->buttons()) seen.Buttons.push_back(WithoutMark(button->text()));
  }
  if (auto* input = qobject_cast<QInputDialog*>(dialog)) seen.Text = input->labelText().toStdString();
  Boxes.push_back(seen);
  if (answer.Look) answer.Look();
  auto* fileName = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (fileName != nullptr) {
    fileName->setText(QLatin1String(answer.Typed));
  } else if (*answer.Typed != '\0') {
    QTest::keyClicks(dialog->focusWidget(), QLatin1String(answer.Typed));
  }
  for (const Qt::Key key : answer.Keys) QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, key);
}

void DesktopTest::GiveUp(QDialog& dialog) {
  if (++rounds_ < MostRounds) return;
  rounds_ = 0;
  ADD_FAILURE() << "nothing answers the box " << dialog.windowTitle().toStdString();
  dialog.reject();
}

void DesktopTest::WriteFile(const char* name, const std::string& bytes) const {
  const QString path = folder.filePath(QLatin1String(name));
  QDir().mkpath(QFileInfo(path).path());
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

std::string DesktopTest::ReadFile(const char* name) const {
  QFile file(folder.filePath(QLatin1String(name)));
  return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string("(no file)");
}

bool DesktopTest::HasFile(const char* name) const { return QFile::exists(folder.filePath(QLatin1String(name))); }

}  // namespace zerimo
