#include "desktop/extensions/look_back.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <algorithm>
#include <string_view>
#include <utility>
#include <variant>

#include "desktop/desktop_text.h"
#include "desktop/surface_view.h"
#include "graphics/surface_replay.h"

namespace zerimo {

namespace {

constexpr int EdgeDistance = 8;
constexpr double WordPoints = 10.5;
constexpr Colour WordGround = 0x303030;
constexpr Colour WordLetters = 0xFFFFFF;

bool IsModifier(int key) {
  return key == Qt::Key_Alt || key == Qt::Key_AltGr || key == Qt::Key_Shift || key == Qt::Key_Control ||
         key == Qt::Key_Meta;
}

/// A new background colour clears it.
bool ChangesThePicture(const SurfaceOperation& operation) {
  const auto* const set = std::get_if<surface_operation::Set>(&operation);
  return set == nullptr || std::string_view(set->Property) == "BackColor";
}

}  // namespace

class LookBack::Sheet : public QWidget {
 public:
  explicit Sheet(QWidget& surface) : QWidget(&surface), words_(*new QLabel(this)) {
    setObjectName(QStringLiteral("LookBack"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    words_.setAutoFillBackground(true);
    words_.setMargin(6);
    ShowColours(words_, WordGround, WordLetters);
    surface.installEventFilter(this);
    Fit();
    show();
  }

  void Show(const Scene& from, const std::vector<SurfaceOperation>& operations, std::size_t count,
            const QString& words) {
    // The background colour clears the picture, so the pixels come last.
    for (const surface_operation::Set& set : from.State) Repeat(set, drawn_);
    canvas_.PutPixels(from.Pixels);
    for (std::size_t i = 0; i < count; ++i) Repeat(operations[i], drawn_);
    words_.setText(words);
    Fit();
    update();
  }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move) Fit();
    return QWidget::eventFilter(watched, event);
  }

  void paintEvent(QPaintEvent* event) override {
    QPainter painter(this);
    painter.scale(ZoomOf(*this), ZoomOf(*this));
    DrawPicture(painter, canvas_.Image(), event->region());
  }

 private:
  void Fit() {
    resize(parentWidget()->size());
    ShowLetters(words_, WordPoints, true);
    words_.adjustSize();
    // The corner of an enlarged picture may be out of sight.
    words_.move(mapFrom(window(), QPoint(EdgeDistance, EdgeDistance)));
  }

  ImageCanvas canvas_;
  Surface drawn_{"Picture1", canvas_};
  QLabel& words_;
};

LookBack::LookBack(Session& session) : session_(session), after_(session.canvas.Pixels()) {
  // The session ends before its extensions do.
  session.form1.Picture1.AddRecorder(*this);
}

LookBack::~LookBack() = default;

LookBack::Scene LookBack::SceneNow() const { return {session_.canvas.Pixels(), DrawingState(session_.form1.Picture1)}; }

void LookBack::Record(const Surface& surface, const SurfaceOperation& operation) {
  if (!isDrawing_) {
    if (!ChangesThePicture(operation)) return;
    Begin({std::exchange(after_, {}), DrawingState(surface)});
  }
  // What a loaded picture replaces is not looked at.
  if (std::holds_alternative<surface_operation::Picture>(operation)) return Begin(SceneNow());
  if (!IsCut()) Keep(operation);
}

void LookBack::Begin(Scene from) {
  Leave();
  isDrawing_ = true;
  before_ = std::move(from);
  operations_.clear();
  steps_.clear();
  work_ = 0;
}

void LookBack::Keep(const SurfaceOperation& operation) {
  work_ += std::holds_alternative<surface_operation::FloodFill>(operation) ? WorkOfFlood : 1;
  operations_.push_back(operation);
  if (!std::holds_alternative<surface_operation::Set>(operation)) steps_.push_back(operations_.size());
}

void LookBack::RunEnds() {
  if (!isDrawing_) return;
  isDrawing_ = false;
  after_ = session_.canvas.Pixels();
}

bool LookBack::PressKey(const QKeyEvent& press) {
  const bool isArrow = press.key() == Qt::Key_Left || press.key() == Qt::Key_Right;
  if (!isArrow || (press.modifiers() & ~Qt::KeypadModifier) != Qt::AltModifier) {
    if (!IsModifier(press.key())) Leave();
    return false;
  }
  if (session_.stage.IsRunning() || steps_.empty()) return false;
  // The picture itself is the last step, unless there were more than are kept.
  const std::size_t end = steps_.size() + (IsCut() ? 1 : 0);
  const std::size_t at = sheet_ ? step_ : end;
  const std::size_t next = press.key() == Qt::Key_Right ? at + 1 : std::max<std::size_t>(at, 1) - 1;
  if (next >= end) {
    Leave();
  } else {
    ShowStep(next);
  }
  return true;
}

void LookBack::ShowStep(std::size_t step) {
  step_ = step;
  if (!sheet_) sheet_ = new Sheet(session_.window.WidgetOf(session_.form1.Picture1));
  QString words = QStringLiteral("Looking back: step %1 of %2").arg(step).arg(steps_.size());
  if (IsCut()) words += QStringLiteral("; later steps are not kept");
  sheet_->Show(before_, operations_, step == 0 ? 0 : steps_[step - 1], words);
}

void LookBack::Leave() { delete sheet_; }

}  // namespace zerimo
