#include "desktop/message_dialog.h"

#include <QGridLayout>
#include <QPlainTextEdit>
#include <QPushButton>
#include <algorithm>
#include <array>

namespace zerimo {

namespace {

constexpr int LongestText = 1500;
constexpr int MostLines = 24;
constexpr QSize ScrolledSize(520, 360);
constexpr int IconMask = box::Critical | box::Information;

/// In pixels; makes room for the title above a short text.
constexpr int LeastWidth = 200;

struct ButtonFacts {
  /// The button set that it belongs to.
  int Style;
  Answer Chosen;
  const char* Text;
  /// Whether closing the box means this button.
  bool IsEscape;
};

constexpr std::array<ButtonFacts, 6> Buttons = {{
    {box::Plain, Answer::OK, "&OK", true},
    {box::AbortRetryIgnore, Answer::Abort, "&Abort", false},
    {box::AbortRetryIgnore, Answer::Retry, "&Retry", false},
    {box::AbortRetryIgnore, Answer::Ignore, "&Ignore", true},
    {box::YesNo, Answer::Yes, "&Yes", false},
    {box::YesNo, Answer::No, "&No", true},
}};

QMessageBox::Icon IconOf(int style) {
  if ((style & box::Critical) != 0) return QMessageBox::Critical;
  return (style & box::Information) != 0 ? QMessageBox::Information : QMessageBox::NoIcon;
}

}  // namespace

MessageDialog::MessageDialog(QWidget& parent, const QString& text, int style, const QString& title)
    : QMessageBox(&parent) {
  setWindowTitle(title);
  setIcon(IconOf(style));
  setTextFormat(Qt::PlainText);
  ShowText(text);
  AddButtons(style & ~IconMask);
  auto& grid = static_cast<QGridLayout&>(*layout());
  grid.setColumnMinimumWidth(grid.columnCount() - 1, LeastWidth);
}

void MessageDialog::AddButtons(int style) {
  for (const ButtonFacts& facts : Buttons) {
    if (facts.Style != style) continue;
    // Buttons that share a role keep the order in which they are added.
    QPushButton* button = addButton(QLatin1String(facts.Text), QMessageBox::ActionRole);
    answers_.emplace_back(button, facts.Chosen);
    if (defaultButton() == nullptr) setDefaultButton(button);
    if (!facts.IsEscape) continue;
    setEscapeButton(button);
    closed_ = facts.Chosen;
  }
}

void MessageDialog::ShowText(const QString& text) {
  if (text.size() <= LongestText && text.count(QLatin1Char('\n')) < MostLines) return setText(text);
  auto* area = new QPlainTextEdit(text, this);
  area->setReadOnly(true);
  area->setMinimumSize(ScrolledSize);
  area->setTabChangesFocus(true);
  // Between the label and the buttons.
  auto* grid = static_cast<QGridLayout*>(layout());
  grid->addWidget(area, 1, 0, 1, grid->columnCount());
}

Answer MessageDialog::Chosen() const {
  for (const auto& [button, answer] : answers_) {
    if (button == clickedButton()) return answer;
  }
  return closed_;
}

}  // namespace zerimo
