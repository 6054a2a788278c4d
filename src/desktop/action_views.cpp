#include "desktop/action_views.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalBlocker>

#include "console/control_words.h"
#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr double ButtonPoints = 9.75;
constexpr int LargeStep = 16;
/// The three bars of an array stand for red, green and blue.
constexpr QRgb BarColours[] = {qRgb(240, 120, 120), qRgb(120, 210, 120), qRgb(130, 150, 250)};

}  // namespace

ButtonView::ButtonView(Button& control, QWidget& parent, Events& events)
    : ControlView(control, *new QPushButton(&parent)), button_(control), shown_(static_cast<QPushButton&>(Widget())) {
  // Only Tab moves the focus here: a click leaves it where the learner types.
  shown_.setFocusPolicy(Qt::TabFocus);
  QObject::connect(&shown_, &QAbstractButton::clicked, &shown_,
                   [this, &events] { events.Deliver([this](Form1& form1) { form1.Click(button_); }); });
}

void ButtonView::SyncLook() {
  ShowLetters(shown_, ButtonPoints);
  const QString caption = ToQString(button_.Caption);
  if (shown_.text() != caption) shown_.setText(caption);
}

CheckView::CheckView(CheckBox& control, QWidget& parent, Events& events)
    : ControlView(control, *new QCheckBox(&parent)), box_(control), shown_(static_cast<QCheckBox&>(Widget())) {
  // Only Tab moves the focus here: a click leaves it where the learner types.
  shown_.setFocusPolicy(Qt::TabFocus);
  QObject::connect(&shown_, &QAbstractButton::clicked, &shown_,
                   [this, &events] { events.Deliver([this](Form1& form1) { form1.Click(box_); }); });
}

void CheckView::SyncLook() {
  ShowLetters(shown_, ButtonPoints);
  const QString caption = ToQString(box_.Caption);
  if (shown_.text() != caption) shown_.setText(caption);
  if (shown_.isChecked() != box_.Value) shown_.setChecked(box_.Value);
}

BarView::BarView(ScrollBar& control, QWidget& parent, Events& events)
    : ControlView(control, *new QScrollBar(Qt::Horizontal, &parent)),
      bar_(control),
      shown_(static_cast<QScrollBar&>(Widget())) {
  shown_.setFocusPolicy(Qt::TabFocus);
  shown_.setRange(ScrollBar::Least, ScrollBar::Greatest);
  shown_.setPageStep(LargeStep);
  QPalette palette = shown_.palette();
  palette.setColor(QPalette::Button, BarColours[static_cast<std::size_t>(IndexInName(control.Name())) % 3]);
  shown_.setPalette(palette);
  QObject::connect(&shown_, &QScrollBar::valueChanged, &shown_, [this, &events](int value) {
    events.Deliver([this, value](Form1& form1) {
      bar_.Value = value;
      form1.Change(bar_);
    });
  });
}

void BarView::SyncLook() {
  if (shown_.value() == bar_.Value) return;
  const QSignalBlocker silent(shown_);
  shown_.setValue(bar_.Value);
}

}  // namespace zerimo
