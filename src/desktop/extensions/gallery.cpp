#include "desktop/extensions/gallery.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr QSize PictureSize(176, 132);
/// Room for the name and for the frame around the chosen sample.
constexpr QSize EntrySize(200, 172);
constexpr QSize DialogSize(880, 620);

QListWidget* MakeList(QDialog& dialog) {
  auto* list = new QListWidget(&dialog);
  list->setViewMode(QListView::IconMode);
  list->setIconSize(PictureSize);
  list->setGridSize(EntrySize);
  list->setUniformItemSizes(true);
  list->setMovement(QListView::Static);
  list->setResizeMode(QListView::Adjust);
  list->setAccessibleName(QStringLiteral("Samples"));
  const QDir pictures(QStringLiteral(":/gallery"));
  for (const QFileInfo& picture : pictures.entryInfoList(QDir::Files, QDir::Name))
    new QListWidgetItem(QIcon(picture.filePath()), picture.completeBaseName(), list);
  list->setCurrentRow(0);
  QObject::connect(list, &QListWidget::itemActivated, &dialog, &QDialog::accept);
  return list;
}

}  // namespace

bool Gallery::PressKey(const QKeyEvent& press) {
  const bool isGallery = press.key() == Qt::Key_G && press.modifiers() == Qt::ControlModifier;
  // During a run, the window keeps the key for later.
  if (!isGallery || session_.stage.IsRunning()) return false;
  session_.Deliver([this](Form1& form1) {
    const QString name = Choose();
    if (!name.isEmpty()) form1.interpreter.dispatch.Execute("LOAD " + ToSystemText(name));
  });
  return true;
}

QString Gallery::Choose() {
  QDialog dialog(&session_.window);
  dialog.setWindowTitle(QStringLiteral("Samples"));
  auto* column = new QVBoxLayout(&dialog);
  column->addWidget(new QLabel(QStringLiteral("Enter loads a sample. Then type its name on a row."), &dialog));
  QListWidget* list = MakeList(dialog);
  column->addWidget(list, 1);
  auto* buttons = new QDialogButtonBox(&dialog);
  buttons->addButton(QStringLiteral("&Load"), QDialogButtonBox::AcceptRole);
  buttons->addButton(QStringLiteral("&Cancel"), QDialogButtonBox::RejectRole);
  column->addWidget(buttons);
  QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  dialog.resize(DialogSize.boundedTo(session_.window.size()));
  list->setFocus();
  if (session_.stage.Stay(dialog) != QDialog::Accepted || list->currentItem() == nullptr) return {};
  return list->currentItem()->text();
}

}  // namespace zerimo
