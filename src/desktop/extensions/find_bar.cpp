#include "desktop/extensions/find_bar.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QTextCursor>
#include <algorithm>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr double Points = 10.5;
constexpr double MostOfWidth = 0.95;

}  // namespace

FindBar::FindBar(EditorArea& editor) : QWidget(&editor), editor_(editor) {
  setObjectName(QStringLiteral("FindBar"));
  setAutoFillBackground(true);
  setPalette(QPalette(QColor(0xEC, 0xEA, 0xE6)));
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(8, 4, 8, 4);
  const auto addField = [&](const QString& label, QLineEdit& field) {
    auto* words = new QLabel(label, this);
    words->setBuddy(&field);
    field.setAccessibleName(words->text().remove(QLatin1Char('&')));
    row->addWidget(words);
    row->addWidget(&field, 1);
  };
  const auto addButton = [&](const QString& label, void (FindBar::*press)()) {
    auto* button = new QPushButton(label, this);
    connect(button, &QPushButton::clicked, this, press);
    row->addWidget(button);
  };
  addField(QStringLiteral("F&ind"), wanted_);
  addField(QStringLiteral("Replace &with"), replacement_);
  addButton(QStringLiteral("&Replace"), &FindBar::ReplaceOne);
  addButton(QStringLiteral("Replace &all"), &FindBar::ReplaceAll);
  row->addWidget(&outcome_);
  addButton(QStringLiteral("&Close"), &FindBar::Close);
  editor.installEventFilter(this);
  hide();
}

void FindBar::Open() {
  const QString selected = editor_.textCursor().selectedText();
  if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) wanted_.setText(selected);
  outcome_.clear();
  show();
  raise();
  Fit();
  wanted_.selectAll();
  wanted_.setFocus(Qt::ShortcutFocusReason);
}

void FindBar::Close() {
  hide();
  Fit();
  editor_.setFocus(Qt::ShortcutFocusReason);
}

void FindBar::TakeLetters(double points) {
  setFont(ControlFont(points));
  outcome_.setMinimumWidth(QFontMetrics(font()).horizontalAdvance(QStringLiteral("00000 replaced")));
}

void FindBar::Fit() {
  const double zoom = ZoomOf(*this);
  TakeLetters(Points * zoom);
  // The margins do not grow with the letters.
  const double fitting = MostOfWidth * editor_.width() / minimumSizeHint().width();
  if (fitting < 1) TakeLetters(Points * std::max(std::min(zoom, 1.0), zoom * fitting));
  const int height = isHidden() ? 0 : sizeHint().height();
  QMargins margins = editor_.viewportMargins();
  margins.setBottom(height);
  editor_.setViewportMargins(margins);
  setGeometry(0, editor_.height() - height, editor_.width(), height);
}

bool FindBar::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange) Fit();
  return QWidget::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent* press) {
  const bool isBackward = press->modifiers().testFlag(Qt::ShiftModifier);
  switch (press->key()) {
    case Qt::Key_Escape:
      return Close();
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (auto* button = qobject_cast<QPushButton*>(focusWidget())) return button->click();
      if (replacement_.hasFocus()) return ReplaceOne();
      return Find(isBackward ? QTextDocument::FindBackward : QTextDocument::FindFlags());
    default:
      // Function keys go on to the editor, which acts on them. Any other key would type in it.
      press->setAccepted(press->key() < Qt::Key_F1 || press->key() > Qt::Key_F12);
  }
}

bool FindBar::focusNextPrevChild(bool next) {
  QWidget* const from = focusWidget();
  QWidget* to = from;
  do {
    to = next ? to->nextInFocusChain() : to->previousInFocusChain();
  } while (to != from && (!isAncestorOf(to) || (to->focusPolicy() & Qt::TabFocus) == 0));
  to->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

bool FindBar::IsFound() const {
  const QString selected = editor_.textCursor().selectedText();
  return !selected.isEmpty() && selected.compare(wanted_.text(), Qt::CaseInsensitive) == 0;
}

void FindBar::Find(QTextDocument::FindFlags direction) {
  outcome_.clear();
  if (wanted_.text().isEmpty() || editor_.find(wanted_.text(), direction)) return;
  // There is none up to this end of the text: search on from the other end.
  const QTextCursor before = editor_.textCursor();
  editor_.moveCursor(direction == QTextDocument::FindBackward ? QTextCursor::End : QTextCursor::Start);
  if (editor_.find(wanted_.text(), direction)) return;
  editor_.setTextCursor(before);
  outcome_.setText(QStringLiteral("Not found"));
}

void FindBar::ReplaceOne() {
  if (IsFound()) editor_.textCursor().insertText(OnlyKnownCharacters(replacement_.text()));
  Find({});
}

void FindBar::ReplaceAll() {
  if (wanted_.text().isEmpty()) return;
  const QString replacement = OnlyKnownCharacters(replacement_.text());
  QTextCursor edit(editor_.document());
  edit.beginEditBlock();
  int count = 0;
  for (QTextCursor found = editor_.document()->find(wanted_.text(), edit); !found.isNull();
       found = editor_.document()->find(wanted_.text(), edit)) {
    edit.setPosition(found.anchor());
    edit.setPosition(found.position(), QTextCursor::KeepAnchor);
    edit.insertText(replacement);
    ++count;
  }
  edit.endEditBlock();
  outcome_.setText(QStringLiteral("%1 replaced").arg(count));
}

}  // namespace zerimo
