#include "desktop/label_views.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "console/control_words.h"
#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr double CaptionPoints = 18;
constexpr double LabelPoints = 9.75;

/// Letters with a shadow, so that they can be read on any picture.
class CaptionText final : public QLabel {
 public:
  CaptionText(QWidget& parent, const Label& control) : QLabel(&parent), label_(control) {
    setTextFormat(Qt::PlainText);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect place = rect().adjusted(12, 0, 0, 0);
    painter.setPen(QColor(0, 0, 0, 150));
    painter.drawText(place.translated(2, 2), Qt::AlignVCenter, text());
    painter.setPen(ToQColor(label_.ForeColor));
    painter.drawText(place, Qt::AlignVCenter, text());
  }

 private:
  const Label& label_;
};

MouseButton ToMouseButton(Qt::MouseButton button) {
  if (button == Qt::LeftButton) return MouseButton::Left;
  if (button == Qt::RightButton) return MouseButton::Right;
  return button == Qt::MiddleButton ? MouseButton::Middle : MouseButton::None;
}

}  // namespace

LabelView::LabelView(Label& control, QWidget& parent, Events&)
    : ControlView(control, *new QLabel(&parent)),
      label_(control),
      text_(static_cast<QLabel&>(Widget())),
      words_(FindControlWords(control.Name())) {
  text_.setTextFormat(Qt::PlainText);
  text_.setAutoFillBackground(true);
  text_.setMouseTracking(true);
}

void LabelView::SyncLook() {
  ShowLetters(text_, LabelPoints);
  const QString caption = ToQString(label_.Caption);
  if (text_.text() != caption) ShowText(caption);
  ShowColours(text_, label_.BackColor, label_.ForeColor);
}

void LabelView::ShowText(const QString& caption) {
  text_.setText(caption);
  // Of a control string that is wider than its label, the end is shown: where the program is.
  const bool isWide = text_.sizeHint().width() > text_.width();
  text_.setAlignment(Qt::AlignVCenter | (isWide ? Qt::AlignRight : Qt::AlignLeft));
  text_.setToolTip(isWide ? caption : QString());
  if (words_ != nullptr) text_.setAccessibleName(QLatin1String(words_->Name) + QStringLiteral(": ") + caption);
}

CaptionView::CaptionView(Label& control, QWidget& parent, Events&)
    : ControlView(control, *new CaptionText(parent, control)), label_(control), text_(static_cast<QLabel&>(Widget())) {}

void CaptionView::SyncLook() {
  ShowLetters(text_, CaptionPoints, true);
  const QString caption = ToQString(label_.Caption);
  if (text_.text() != caption) text_.setText(caption);
}

PressLabel::PressLabel(QWidget& parent, Label& control, Events& events)
    : QAbstractButton(&parent), label_(control), events_(events) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  // For screen readers; mouse and keys have their own handlers below.
  QObject::connect(this, &QAbstractButton::clicked, this, [this] { PressWithKey(false, false); });
}

void PressLabel::Sync() {
  ShowLetters(*this, LabelPoints, true);
  const auto sameLook = [](const Label& one, const Label& other) {
    return one.BackColor == other.BackColor && one.ForeColor == other.ForeColor &&
           one.BorderStyle == other.BorderStyle && one.Caption == other.Caption;
  };
  if (sameLook(shown_, label_)) return;
  shown_.BackColor = label_.BackColor;
  shown_.ForeColor = label_.ForeColor;
  shown_.BorderStyle = label_.BorderStyle;
  shown_.Caption = label_.Caption;
  update();
}

void PressLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QColor back = ToQColor(label_.BackColor);
  painter.fillRect(rect(), back);
  const QRect edge = rect().adjusted(0, 0, -1, -1);
  if (label_.BorderStyle == Border::Single) {
    painter.setPen(QColor(64, 64, 64));
    painter.drawRect(edge);
  }
  if (hasFocus()) {
    painter.setPen(QPen(ReadableOn(back), 1, Qt::DotLine));
    painter.drawRect(edge.adjusted(5, 5, -5, -5));
  }
  painter.setPen(ToQColor(label_.ForeColor));
  painter.drawText(rect(), Qt::AlignCenter, ToQString(label_.Caption));
}

void PressLabel::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  events_.Deliver([&](Form1& form1) { form1.MouseMove(label_, Units(*this, at.x()), Units(*this, at.y())); });
}

void PressLabel::mousePressEvent(QMouseEvent* event) {
  const bool shift = event->modifiers().testFlag(Qt::ShiftModifier);
  // With any other key beside it, a button chooses nothing.
  const bool isCombined = event->modifiers().testAnyFlags(Qt::ControlModifier | Qt::AltModifier);
  const MouseButton button = isCombined ? MouseButton::None : ToMouseButton(event->button());
  Press(button, shift, event->position().toPoint());
}

void PressLabel::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !rect().contains(event->position().toPoint())) return;
  events_.Deliver([this](Form1& form1) { form1.Click(label_); });
}

void PressLabel::Press(MouseButton button, bool shift, QPoint at) {
  events_.Deliver(
      [&](Form1& form1) { form1.MouseDown(label_, button, shift, Units(*this, at.x()), Units(*this, at.y())); });
}

void PressLabel::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  const bool forward = key == Qt::Key_Right || key == Qt::Key_Down;
  if (forward || key == Qt::Key_Left || key == Qt::Key_Up) {
    focusNextPrevChild(forward);
    return;
  }
  if (key != Qt::Key_Space && key != Qt::Key_Return && key != Qt::Key_Enter) return event->ignore();
  // With Ctrl, the key stands for the right button.
  PressWithKey(event->modifiers().testFlag(Qt::ControlModifier), event->modifiers().testFlag(Qt::ShiftModifier));
}

void PressLabel::PressWithKey(bool right, bool shift) {
  Press(right ? MouseButton::Right : MouseButton::Left, shift, rect().center());
  if (!right && !shift) events_.Deliver([this](Form1& form1) { form1.Click(label_); });
}

}  // namespace zerimo
