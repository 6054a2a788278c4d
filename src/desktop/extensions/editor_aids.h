#pragma once

#include "desktop/extensions/editor_marks.h"
#include "desktop/extensions/find_bar.h"
#include "desktop/session.h"

namespace zerimo {

/// Help with writing a program: colours, line numbers, brackets that belong together, the line that opened the last
/// box, Ctrl+F to find and replace, and in an empty editor the keys that leave it.
class EditorAids : public Extension {
 public:
  explicit EditorAids(Session& session);

  bool PressKey(const QKeyEvent& press) override;
  void BoxOpens(QDialog& dialog) override;

 private:
  Session& session_;
  // These belong to the editor.
  EditorArea& editor_;
  EditorMarks& marks_;
  FindBar& bar_;
};

}  // namespace zerimo
