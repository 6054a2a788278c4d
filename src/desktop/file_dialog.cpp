#include "desktop/file_dialog.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>
#include <algorithm>

namespace zerimo {

namespace {

/// The file of a name in any case, or the name if there is none.
QString InItsOwnCase(const QFileInfo& typed) {
  const QStringList names = typed.dir().entryList(QDir::Files);
  const auto found = std::find_if(names.begin(), names.end(), [&](const QString& name) {
    return name.compare(typed.fileName(), Qt::CaseInsensitive) == 0;
  });
  return found == names.end() ? typed.filePath() : typed.dir().filePath(*found);
}

}  // namespace

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
    if (!typed.exists()) name->setText(InItsOwnCase(typed));
  }
  QFileDialog::accept();
}

}  // namespace zerimo
