#pragma once

#include <QFileDialog>

namespace zerimo {

/// The toolkit's file dialog, the same on every desktop. A file to open is found in whatever case its name is typed,
/// and a program without its ending, as `LOAD` finds it.
class FileDialog : public QFileDialog {
 public:
  FileDialog(QWidget& parent, AcceptMode mode, const QString& title, const QString& folder, const QString& filter);

 protected:
  void accept() override;
};

}  // namespace zerimo
