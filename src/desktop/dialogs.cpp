#include "desktop/dialogs.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeView>
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

/// The file of a name in any case, with or without the ending of a program; the empty text if there is none.
QString FileOf(const QFileInfo& typed) {
  const QStringList names = typed.dir().entryList(QDir::Files);
  for (const QString& wanted : {typed.fileName(), typed.fileName() + QStringLiteral(".ZRM")}) {
    const auto found = std::find_if(names.begin(), names.end(), [&wanted](const QString& name) {
      return name.compare(wanted, Qt::CaseInsensitive) == 0;
    });
    if (found != names.end()) return typed.dir().filePath(*found);
  }
  return {};
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

FileDialog::FileDialog(QWidget& parent, AcceptMode mode, const QString& title, const QString& folder,
                       const QString& filter)
    : QFileDialog(&parent, title, folder, filter) {
  setOption(DontUseNativeDialog);
  setAcceptMode(mode);
  setFileMode(mode == AcceptSave ? AnyFile : ExistingFile);
  // A date would be cut off.
  auto* files = findChild<QTreeView*>(QStringLiteral("treeView"));
  if (files != nullptr) files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void FileDialog::accept() {
  auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (name != nullptr && acceptMode() == AcceptOpen) {
    const QFileInfo typed(directory(), name->text());
    const QString file = typed.exists() ? QString() : FileOf(typed);
    if (!file.isEmpty()) name->setText(file);
  }
  QFileDialog::accept();
}

}  // namespace zerimo
