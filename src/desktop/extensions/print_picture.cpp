#include "desktop/extensions/print_picture.h"

#include <QDate>
#include <QDir>
#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <utility>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr double WordPoints = 12;

QString WordsBelow(const std::string& name) {
  return ToQString(name) + QStringLiteral(", ") + QLocale().toString(QDate::currentDate(), QLocale::ShortFormat);
}

}  // namespace

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
