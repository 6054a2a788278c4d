#include "desktop/extensions/projector.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

#include "desktop/text_views.h"

namespace zerimo {

namespace {

constexpr int ThickCaret = 6;
constexpr int FrameWidth = 3;

/// Two lines, a light one around a dark one, can be seen on any ground.
class ThickFrame final : public QFocusFrame {
 public:
  explicit ThickFrame(QWidget& window) : QFocusFrame(&window) { setObjectName(QStringLiteral("FocusFrame")); }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect place = rect().adjusted(1, 1, -2, -2);
    painter.setPen(QPen(Qt::yellow, FrameWidth, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(place);
    painter.setPen(Qt::black);
    painter.drawRect(place.adjusted(2, 2, -2, -2));
  }
};

}  // namespace

bool Projector::PressKey(const QKeyEvent& press) {
  if (press.key() != Qt::Key_L || press.modifiers() != (Qt::ControlModifier | Qt::ShiftModifier)) return false;
  Switch(frame_ == nullptr);
  return true;
}

void Projector::Switch(bool on) {
  MainWindow& window = session_.window;
  window.setProperty(EasyToRead, on);
  auto& editor = static_cast<EditorArea&>(window.WidgetOf(session_.form1.controls.Text2));
  editor.setCursorWidth(on ? ThickCaret : EditorArea::CaretWidth);
  if (on) {
    auto* frame = new ThickFrame(window);
    frame->setWidget(window.focusWidget());
    QObject::connect(qApp, &QApplication::focusChanged, frame, [frame, &window](QWidget*, QWidget* now) {
      if (now != nullptr && now->window() == &window && now != &window) frame->setWidget(now);
    });
    frame_ = frame;
  } else {
    delete frame_;
  }
  window.Sync();
}

}  // namespace zerimo
