#pragma once

#include <QTimer>
#include <chrono>

#include "desktop/extensions/line_journal.h"
#include "desktop/extensions/rescue_folder.h"
#include "desktop/session.h"

namespace zerimo {

class EditorArea;

/// Keeps the text of the editor in a file while it is neither saved nor taken over, and offers at the next start what a
/// window left behind. Losing power, the display or the process costs at most two seconds of typing.
class Recovery : public Extension {
 public:
  /// `folder` is where the texts are kept; `delay` passes from a change to the file, and from a write that failed to
  /// the next.
  Recovery(Session& session, LineJournal& lineJournal, const std::filesystem::path& folder,
           std::chrono::milliseconds delay);

  bool PressKey(const QKeyEvent& press) override;
  void BoxOpens(QDialog& dialog) override;
  void RunEnds() override;
  bool KeepsText() override;
  std::string Rescue() override;
  void SessionEnds(SessionEnd end) override;

 private:
  void Change();
  /// Returns whether the text is kept.
  bool Write();
  void Forget();
  std::string Text() const;
  bool IsSaved() const;

  void OfferAll(Form1& form1);
  void Offer(Form1& form1, RescuedText& rescued);
  void Open(Form1& form1, RescuedText& rescued);

  Session& session_;
  LineJournal& lineJournal_;
  RescueFolder folder_;
  EditorArea& editor_;
  QTimer delay_;
  /// Whether the user has changed the text since it was last saved.
  bool typed_ = false;
  /// The same, since it was last saved or taken over.
  bool unsaved_ = false;
  /// The key that takes the text over has been pressed in the editor.
  bool folding_ = false;
  /// The answer to a question for a name to save under, in the system's notation.
  std::string name_;
};

}  // namespace zerimo
