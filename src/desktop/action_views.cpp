#include "desktop/action_views.h"

#include <QCheckBox>
#include <QPushButton>
#include <QSignalBlocker>

#include "desktop/control_words.h"
#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr double ButtonPoints = 9.75;
constexpr int LargeStep = 16;
/// The bars of an array stand for red, green and blue.
constexpr QRgb BarColours[] = {qRgb(240, 120, 120), qRgb(120, 210, 120), qRgb(130, 150, 250)};

/// A click leaves the focus where the learner types.
void SetUp(QWidget& widget) {
  widget.setFocusPolicy(Qt::TabFocus);
  widget.setFont(ControlFont(ButtonPoints));
}

}  // namespace

ButtonView::ButtonView(Button& control, QWidget& parent, Events& theEvents)
    : ControlView(control, *new QPushButton(&parent)), button(control), shown(static_cast<QPushButton&>(Widget())) {
  SetUp(shown);
  QObject::connect(&shown, &QAbstractButton::clicked, &shown,
                   [this, &theEvents] { theEvents.Deliver([this](Form1& form1) { form1.Click(button); }); });
}

void ButtonView::SyncLook() {
  const QString caption = ToQString(button.Caption);
  if (shown.text() != caption) shown.setText(caption);
}

CheckView::CheckView(CheckBox& control, QWidget& parent, Events& theEvents)
    : ControlView(control, *new QCheckBox(&parent)), box(control), shown(static_cast<QCheckBox&>(Widget())) {
  SetUp(shown);
  QObject::connect(&shown, &QAbstractButton::clicked, &shown,
                   [this, &theEvents] { theEvents.Deliver([this](Form1& form1) { form1.Click(box); }); });
}

void CheckView::SyncLook() {
  const QString caption = ToQString(box.Caption);
  if (shown.text() != caption) shown.setText(caption);
  if (shown.isChecked() != (box.Value != 0)) shown.setChecked(box.Value != 0);
}

BarView::BarView(ScrollBar& control, QWidget& parent, Events& theEvents)
    : ControlView(control, *new QScrollBar(Qt::Horizontal, &parent)),
      bar(control),
      shown(static_cast<QScrollBar&>(Widget())) {
  shown.setFocusPolicy(Qt::TabFocus);
  shown.setRange(ScrollBar::Least, ScrollBar::Greatest);
  shown.setPageStep(LargeStep);
  QPalette palette = shown.palette();
  palette.setColor(QPalette::Button, BarColours[static_cast<std::size_t>(IndexInName(control.Name())) % 3]);
  shown.setPalette(palette);
  QObject::connect(&shown, &QScrollBar::valueChanged, &shown, [this, &theEvents](int value) {
    theEvents.Deliver([this, value](Form1& form1) {
      bar.Value = value;
      form1.Change(bar);
    });
  });
}

void BarView::SyncLook() {
  if (shown.value() == bar.Value) return;
  const QSignalBlocker silent(shown);
  shown.setValue(bar.Value);
}

}  // namespace zerimo
