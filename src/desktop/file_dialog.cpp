#include "desktop/file_dialog.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QTreeView>
#include <algorithm>

namespace zerimo {

namespace {

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
