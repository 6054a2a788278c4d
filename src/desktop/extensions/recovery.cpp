#include "desktop/extensions/recovery.h"

#include <QFileDialog>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

#include "base/failure.h"
#include "desktop/desktop_text.h"
#include "desktop/text_views.h"
#include "files/disk_files.h"
#include "files/saving.h"
#include "interpreter/line_entry.h"

namespace zerimo {

namespace fs = std::filesystem;

namespace {

constexpr int MostCharactersShown = 60;

/// The first name among Rescued.ZRM, Rescued2.ZRM, ... that is free in a folder.
fs::path FreeName(const fs::path& folder) {
  const fs::path first = folder / RescuedName;
  fs::path file = first;
  for (int number = 2; fs::exists(file); ++number) {
    file = folder / (first.stem().string() + std::to_string(number) + first.extension().string());
  }
  return file;
}

/// "BOX, STAR": the procedures that a text defines; a dash if there are none.
QString ProceduresIn(const QStringList& lines) {
  QStringList names;
  for (const QString& line : lines) {
    const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
    if (words.size() > 1 && words.first().compare(u"TO", Qt::CaseInsensitive) == 0) names.append(words[1].toUpper());
  }
  return names.isEmpty() ? QStringLiteral("-") : names.join(u", ");
}

QString WordsAbout(const RescuedText& rescued) {
  const QStringList lines = WithLineEnds(rescued.Text).split(QLatin1Char('\n'));
  return QStringLiteral(
             "A text in the editor was not saved.\n\nProcedures: %1\nLast change: %2\nLines: %3\nFirst line: %4")
      .arg(ProceduresIn(lines).left(MostCharactersShown),
           QLocale::system().toString(rescued.When, QLocale::ShortFormat), QString::number(lines.size()),
           lines.first().left(MostCharactersShown));
}

}  // namespace

Recovery::Recovery(Session& session, LineJournal& lineJournal, const fs::path& folder, std::chrono::milliseconds delay)
    : session_(session),
      lineJournal_(lineJournal),
      folder_(folder),
      editor_(static_cast<EditorArea&>(session.window.WidgetOf(session.form1.controls.Text2))) {
  delay_.setSingleShot(true);
  delay_.setInterval(delay);
  QObject::connect(&delay_, &QTimer::timeout, &delay_, [this] {
    if (!Write()) delay_.start();
  });
  QObject::connect(&editor_, &QPlainTextEdit::textChanged, &delay_, [this] { Change(); });
  if (!folder_.Left().empty()) session_.WhenStarted([this](Form1& form1) { OfferAll(form1); });
}

std::string Recovery::Text() const { return WithCarriageReturns(editor_.Text()); }

void Recovery::Change() {
  // What the system writes itself, as when it loads a program, is in the control already.
  const bool byUser = Text() != session_.form1.controls.Text2.Text;
  typed_ = typed_ || byUser;
  unsaved_ = unsaved_ || byUser;
  if (unsaved_ && !delay_.isActive()) delay_.start();
}

bool Recovery::Write() {
  const std::string text = Text();
  if (!text.empty()) return folder_.Write(text);
  Forget();
  return true;
}

void Recovery::Forget() {
  unsaved_ = false;
  delay_.stop();
  folder_.Remove();
}

bool Recovery::PressKey(const QKeyEvent& press) {
  if (press.key() == Qt::Key_F2 && editor_.HasKeys() && !session_.stage.IsRunning()) folding_ = true;
  return false;
}

void Recovery::BoxOpens(QDialog& dialog) {
  if (auto* input = qobject_cast<QInputDialog*>(&dialog); input != nullptr && input->windowTitle() == u"Save As") {
    QObject::connect(input, &QDialog::accepted, &delay_, [this, input] { name_ = ToSystemText(input->textValue()); });
  }
  auto* files = qobject_cast<QFileDialog*>(&dialog);
  if (files == nullptr || files->acceptMode() != QFileDialog::AcceptSave) return;
  QObject::connect(files, &QFileDialog::fileSelected, &delay_,
                   [this](const QString& file) { name_ = Folders::ToSystem(file.toStdU16String()); });
}

void Recovery::RunEnds() {
  const bool folded = std::exchange(folding_, false);
  if (folded) lineJournal_.Note(Text());
  const bool saved = IsSaved();
  if (saved) typed_ = false;
  if (unsaved_ && (folded || saved)) Forget();
  name_.clear();
}

bool Recovery::IsSaved() const {
  if (name_.empty()) return false;
  std::string text = Text();
  const std::string saved = SpaceFilter(text) + "\r\n";
  for (const char* ending : {"", ".ZRM"}) {
    if (BytesOf(session_.form1.folders.ToRead(name_ + ending)) == saved) return true;
  }
  return false;
}

bool Recovery::KeepsText() { return !unsaved_ || Write(); }

std::string Recovery::Rescue() {
  const std::string text = Text();
  if (text.empty()) return {};
  if (!typed_) return "The text of the editor has not been changed since it was loaded or saved.";
  if (!folder_.Write(text)) return {};
  // If F2 is what failed, the text has not been taken over.
  folding_ = false;
  return "The text of the editor is safe. Zerimo offers it at the next start.";
}

void Recovery::SessionEnds(SessionEnd end) {
  if (end == SessionEnd::ByWord) Forget();
}

void Recovery::OfferAll(Form1& form1) {
  for (RescuedText& rescued : folder_.Left()) Offer(form1, rescued);
}

void Recovery::Offer(Form1& form1, RescuedText& rescued) {
  const fs::path file = FreeName(form1.folders.ToRead(form1.folders.AppFolder));
  QMessageBox box(QMessageBox::Information, QLatin1String(ProgramName), WordsAbout(rescued), QMessageBox::NoButton,
                  &session_.window);
  QPushButton* open = box.addButton(QStringLiteral("&Open it in the editor"), QMessageBox::ActionRole);
  const QString name = QString::fromStdString(file.filename().string());
  const QPushButton* keep = box.addButton(QStringLiteral("&Keep it as ") + name, QMessageBox::ActionRole);
  const QPushButton* drop = box.addButton(QStringLiteral("&Drop it"), QMessageBox::ActionRole);
  QPushButton* later = box.addButton(QStringLiteral("Ask &later"), QMessageBox::ActionRole);
  box.setDefaultButton(open);
  box.setEscapeButton(later);
  session_.stage.Stay(box);
  if (box.clickedButton() == open) Open(form1, rescued);
  const bool kept = box.clickedButton() == keep && SkipOnFailure([&] { WriteBeside(file, rescued.Text); });
  if (kept || box.clickedButton() == drop) RescueFolder::Drop(rescued);
}

void Recovery::Open(Form1& form1, RescuedText& rescued) {
  std::string& text = form1.controls.Text2.Text;
  text += (text.empty() ? "" : "\r\n") + rescued.Text;
  form1.interpreter.dispatch.Execute("EDIT");
  unsaved_ = typed_ = true;
  if (folder_.Write(text)) RescueFolder::Drop(rescued);
}

}  // namespace zerimo
