#include "desktop/last_rescue.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMessageBox>
#include <QPushButton>
#include <utility>

#include "desktop/desktop_text.h"
#include "files/folders.h"

namespace zerimo {

namespace {

/// Some desktops forget what was copied as soon as its program ends.
constexpr const char* Copied =
    "The text of the editor has been copied. Before you end Zerimo, insert it in another program and save it there.";
constexpr const char* NotKept =
    "The text of the editor could not be kept: no folder takes it. Is the disk full? "
    "Make room and try again, or copy the text into another program.";

}  // namespace

LastRescue::LastRescue(const Form1& form1, const Extensions& extensions, Stage& stage,
                       std::vector<std::filesystem::path> places)
    : form1_(form1), extensions_(extensions), stage_(stage), places_(std::move(places)) {}

std::optional<std::string> LastRescue::Keep(const std::string& reason) {
  for (bool isCopied = false;;) {
    if (auto words = Try()) return words;
    const Choice choice = Ask(reason, isCopied);
    if (choice == Choice::GiveUp) return std::nullopt;
    if (choice == Choice::TryAgain) continue;
    QGuiApplication::clipboard()->setText(WithLineEnds(form1_.controls.Text2.Text));
    isCopied = true;
  }
}

std::optional<std::string> LastRescue::Try() const {
  if (std::string words = extensions_.Rescue(); !words.empty()) return words;
  if (form1_.controls.Text2.Text.empty()) return std::string();
  const auto file = form1_.RescueEditorText(places_);
  if (!file) return std::nullopt;
  return "The text of the editor has been saved in " + Folders::ToSystem(*file);
}

LastRescue::Choice LastRescue::Ask(const std::string& reason, bool isCopied) {
  const std::string text = (reason.empty() ? "" : reason + "\r\r") + (isCopied ? Copied : NotKept);
  QMessageBox box(QMessageBox::Critical, QLatin1String(ProgramName), WithLineEnds(text), QMessageBox::NoButton,
                  &stage_.Window());
  QPushButton* again = box.addButton(QStringLiteral("&Try again"), QMessageBox::ActionRole);
  const QPushButton* copy = box.addButton(QStringLiteral("&Copy the text"), QMessageBox::ActionRole);
  QPushButton* end = box.addButton(QStringLiteral("&End Zerimo"), QMessageBox::ActionRole);
  box.setDefaultButton(again);
  box.setEscapeButton(end);
  stage_.Ask(box);
  if (box.clickedButton() == copy) return Choice::Copy;
  return box.clickedButton() == again ? Choice::TryAgain : Choice::GiveUp;
}

}  // namespace zerimo
