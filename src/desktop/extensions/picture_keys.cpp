#include "desktop/extensions/picture_keys.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>

#include "base/failure.h"
#include "desktop/desktop_text.h"
#include "desktop/file_dialog.h"

namespace zerimo {

namespace {

const char* const Kinds =
    "PNG picture (*.png);;JPEG picture (*.jpg);;SVG drawing, sharp at any size (*.svg);;BMP picture (*.bmp)";

/// "png" for "PNG picture (*.png)".
QString EndingIn(const QString& kind) { return kind.section(QLatin1String("*."), 1).chopped(1); }

}  // namespace

PictureKeys::PictureKeys(Session& session)
    : session_(session),
      svgRecorder_(session.canvas),
      folder_(QString::fromStdU16String(session.form1.folders.ToRead(session.form1.folders.AppFolder).u16string())) {
  // The session ends before its extensions do.
  session.form1.Picture1.AddRecorder(svgRecorder_);
}

bool PictureKeys::PressKey(const QKeyEvent& press) {
  if (press.modifiers() != (Qt::ControlModifier | Qt::ShiftModifier)) return false;
  // During a run, the window keeps the key for later.
  if (press.key() == Qt::Key_S && !session_.stage.IsRunning()) {
    session_.Deliver([this](Form1&) { Save(); });
    return true;
  }
  if (press.key() != Qt::Key_C) return false;
  QGuiApplication::clipboard()->setImage(session_.canvas.Image().copy(QRect(QPoint(), Size())));
  return true;
}

QSize PictureKeys::Size() const { return InPixels(session_.form1.Picture1).size(); }

void PictureKeys::Save() {
  FileDialog dialog(session_.window, QFileDialog::AcceptSave, QStringLiteral("Save the Picture"), folder_,
                    QLatin1String(Kinds));
  dialog.setDefaultSuffix(EndingIn(dialog.selectedNameFilter()));
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                   [&dialog](const QString& kind) { dialog.setDefaultSuffix(EndingIn(kind)); });
  if (session_.stage.Stay(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return;
  folder_ = dialog.directory().absolutePath();
  Write(dialog.selectedFiles().constFirst());
}

void PictureKeys::Write(const QString& file) {
  const Colour background = session_.form1.Picture1.BackColor();
  const bool isWritten = SkipOnFailure([&] {
    WriteSurface(session_.canvas, svgRecorder_, file.toStdU16String(), Size().width(), Size().height(), background);
  });
  if (isWritten) return;
  session_.services.MessageBox(
      "The picture was not saved in " + ToSystemText(file) +
          ".\r\rThe name may end with .png, .jpg, .svg or .bmp, and the folder must be one that you may write to.",
      box::Critical, ProgramName);
}

}  // namespace zerimo
