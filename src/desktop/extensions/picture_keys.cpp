#include "desktop/extensions/picture_keys.h"

#include <QClipboard>
#include <QDate>
#include <QDir>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <utility>

#include "base/failure.h"
#include "desktop/desktop_text.h"
#include "desktop/dialogs.h"

namespace zerimo {

namespace {

const char* const Kinds =
    "PNG picture (*.png);;JPEG picture (*.jpg);;SVG drawing, sharp at any size (*.svg);;BMP picture (*.bmp)";

/// "png" for "PNG picture (*.png)".
QString EndingIn(const QString& kind) { return kind.section(QLatin1String("*."), 1).chopped(1); }

constexpr double WordPoints = 12;

QString WordsBelow(const std::string& name) {
  return ToQString(name) + QStringLiteral(", ") + QLocale().toString(QDate::currentDate(), QLocale::ShortFormat);
}

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

PrintPicture::PrintPicture(Session& session) : session_(session), name_(ToSystemText(QDir::home().dirName())) {}

bool PrintPicture::PressKey(const QKeyEvent& press) {
  // During a run, the window keeps the key for later.
  if (press.key() != Qt::Key_P || press.modifiers() != Qt::ControlModifier || session_.stage.IsRunning()) return false;
  session_.Deliver([this](Form1&) { Print(); });
  return true;
}

void PrintPicture::Print() {
  std::string name = session_.services.InputBox("Whose picture is it? The name is printed below it.", "Print", name_);
  if (name.empty()) return;
  name_ = std::move(name);
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(ToQString(ProgramName));
  printer.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog dialog(&printer, &session_.window);
  dialog.setOptions(QAbstractPrintDialog::PrintToFile);
  if (session_.stage.Stay(dialog) != QDialog::Accepted) return;
  QPainter painter;
  const QImage picture = session_.canvas.Image().copy(QRect(QPoint(), InPixels(session_.form1.Picture1).size()));
  const bool hasBegun = painter.begin(&printer);
  if (hasBegun) PaintPage(painter, painter.viewport(), picture, WordsBelow(name_));
  if (hasBegun && painter.end()) return;
  session_.services.MessageBox("The picture could not be printed.", box::Critical, ProgramName);
}

void PaintPage(QPainter& painter, const QRect& page, const QImage& picture, const QString& words) {
  QFont font = ControlFont(WordPoints);
  font.setPointSizeF(WordPoints);
  painter.setFont(font);
  const int line = painter.fontMetrics().lineSpacing();
  const QRect room = page.adjusted(0, 0, 0, -2 * line);
  QRect place(QPoint(), picture.size().scaled(room.size(), Qt::KeepAspectRatio));
  place.moveCenter(room.center());
  place.moveTop(room.top());
  painter.drawImage(place, picture);
  painter.drawText(QRect(page.left(), place.bottom() + line / 2, page.width(), line), Qt::AlignCenter, words);
}

}  // namespace zerimo
