#pragma once

#include <QObject>
#include <memory>
#include <string>
#include <vector>

class QDialog;
class QKeyEvent;

namespace zerimo {

/// How a session came to its end.
enum class SessionEnd { ByWord, ByClosing, ByFailure };

/// Something that works beside the system: it is told what happens in the window and may act on the window, but changes
/// nothing that the system itself has or shows. Without any of them, the program is the classic one.
class Extension {
 public:
  virtual ~Extension() = default;

  /// A key press, before the window or a box gets it. Returns whether the extension has used it.
  virtual bool PressKey(const QKeyEvent&) { return false; }

  /// A handler of the system begins or has ended.
  virtual void RunBegins() {}
  virtual void RunEnds() {}

  /// A box of the system is about to open, or has been answered.
  virtual void BoxOpens(QDialog&) {}
  virtual void BoxCloses() {}

  /// The user closes the window during a run. Returns whether the extension deals with it.
  virtual bool ClosesDuringRun() { return false; }

  /// The user closes the window with nothing running. Returns whether the text of the editor is kept or need not be.
  virtual bool KeepsText() { return true; }

  /// Keeps the text of the editor because the session has to end. Returns a text that says where, or the empty text.
  virtual std::string Rescue() { return {}; }

  virtual void SessionEnds(SessionEnd) {}
};

/// The extensions of a session, in the order in which they are asked.
class Extensions : public QObject {
 public:
  ~Extensions() override;

  /// Must be called once the window is open: what is added sees a key before the window's own filters do.
  void Add(std::unique_ptr<Extension> extension);

  /// Calls `visit(extension)` for each.
  template <typename Visitor>
  void ForEach(Visitor&& visit) const {
    for (const auto& extension : all_) visit(*extension);
  }

  bool CloseDuringRun() const;
  bool KeepText() const;
  std::string Rescue() const;

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  std::vector<std::unique_ptr<Extension>> all_;
};

}  // namespace zerimo
