#include "desktop/main_window.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <numbers>

#include "console/keys.h"
#include "desktop/desktop_text.h"
#include "desktop/key_codes.h"
#include "desktop/text_views.h"
#include "desktop/title_picture.h"
#include "graphics/surface.h"

namespace zerimo {

namespace {

/// How long after its appearance the window takes care to fill the area: window managers add the frame late.
constexpr int FittingTimes[] = {0, 50, 150, 400, 1000};
constexpr QSize SmallestWindow(320, 240);
/// What shows where no control lies.
constexpr QColor Ground(0, 0, 80);

/// Not a key that only changes others, nor one that moves the focus itself.
bool CallsForFocus(const QKeyEvent& press) {
  switch (press.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return false;
    default:
      return KeyCode(press) != 0 || !press.text().isEmpty();
  }
}

}  // namespace

MainWindow::MainWindow(Form1& form, ImageCanvas& canvas, Events& theEvents, const QRect& availableArea)
    : form1(form), events(theEvents), available(availableArea), lastRow(&form.controls.Text1[0]) {
  setWindowIcon(ProgramIcon());
  setMinimumSize(SmallestWindow);
  installEventFilter(this);
  setGeometry(available);
  Build(canvas);
}

void MainWindow::Sync() {
  if (syncing) return;
  syncing = true;
  const QString caption = ToQString(form1.controls.Form1.Caption());
  if (windowTitle() != caption) setWindowTitle(caption);
  SyncPlace();
  const Room room = RoomNow();
  for (const auto& view : views) view->Sync(room);
  paletteShapes->Sync();
  SyncFocus();
  syncing = false;
}

void MainWindow::Collect() {
  for (const auto& view : views) view->Collect();
}

ControlView* MainWindow::FindView(const Control& control) const {
  const auto found = viewOf.find(&control);
  return found == viewOf.end() ? nullptr : found->second;
}

Room MainWindow::RoomNow() const {
  Room room{rect(), rect()};
  const Control& rows = form1.controls.Picture3;
  if (rows.Visible()) room.AboveRows.setBottom(RowsPanelView::PlaceIn(rows, rect()).top() - 1);
  return room;
}

void MainWindow::SyncPlace() {
  const QPointF wanted(static_cast<double>(form1.controls.Form1.Left), static_cast<double>(form1.controls.Form1.Top));
  if (wanted == shownPlace) return;
  shownPlace = wanted;
  move(available.topLeft() + (wanted / UnitsPerPixel).toPoint());
}

void MainWindow::SyncFocus() {
  Control* holder = form1.controls.Focus.Focus();
  const ControlView* view = holder == nullptr ? nullptr : FindView(*holder);
  if (holder != nullptr && holder->Panel() == &form1.controls.Picture3) lastRow = holder;
  QWidget& wanted = view == nullptr ? static_cast<QWidget&>(*this) : view->Widget();
  if (focusWidget() == &wanted) return;
  wanted.setFocus(Qt::OtherFocusReason);
  // Where the learner did not go himself, what he types takes the place of the old line.
  auto* row = dynamic_cast<RowEdit*>(&wanted);
  if (row != nullptr && !walking) row->selectAll();
}

void MainWindow::DescribeTurtle() {
  const Turtle& turtle = form1.turtle;
  const Control& form = form1.controls.Form1;
  const auto steps = [&](double units) {
    return QString::number(turtle.Resolution == 0 ? 0 : units / turtle.Resolution, 'f', 1);
  };
  const QString words = QStringLiteral("Turtle %1 across, %2 up, heading %3 degrees.")
                            .arg(steps(turtle.TurtleX - static_cast<double>(form.Width) / 2),
                                 steps(static_cast<double>(form.Height()) / 2 - turtle.TurtleY),
                                 QString::number(turtle.TurtleDir * 180 / std::numbers::pi, 'f', 0));
  QWidget& surface = WidgetOf(form1.Picture1);
  if (surface.accessibleDescription() != words) surface.setAccessibleDescription(words);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress) {
    auto& press = static_cast<QKeyEvent&>(*event);
    return HandOn(press) || PressKey(watched, KeyCode(press));
  }
  if (event->type() == QEvent::FocusIn) TakeFocus(watched, static_cast<QFocusEvent*>(event)->reason());
  return QWidget::eventFilter(watched, event);
}

bool MainWindow::focusNextPrevChild(bool next) {
  if (focusWidget() != this) return QWidget::focusNextPrevChild(next);
  // From nothing to the first that can be seen.
  const auto first = std::find_if(tabStops.begin(), tabStops.end(), [](QWidget* stop) { return stop->isVisible(); });
  if (first == tabStops.end()) return false;
  (*first)->setFocus(Qt::TabFocusReason);
  return true;
}

bool MainWindow::HandOn(QKeyEvent& press) {
  if (focusWidget() != this || !CallsForFocus(press)) return false;
  Control& receiver = KeyReceiver();
  events.Deliver([&](Form1& form) { form.controls.Focus.SetFocus(receiver); });
  if (focusWidget() == this) return false;
  QCoreApplication::sendEvent(focusWidget(), &press);
  return true;
}

Control& MainWindow::KeyReceiver() const {
  Controls& controls = form1.controls;
  // From the top down.
  for (Control* control : {static_cast<Control*>(&controls.Text2), static_cast<Control*>(lastRow),
                           static_cast<Control*>(&controls.RichTextBox1), static_cast<Control*>(&controls.List4)}) {
    if (control->IsOnScreen()) return *control;
  }
  return form1.Picture1;
}

bool MainWindow::PressKey(QObject* widget, int keyCode) {
  ControlView* view = ViewOfWidget(widget);
  // A key that a control leaves over comes up here once more.
  if (keyCode == 0 || (view == nullptr && focusWidget() != this)) return false;
  walking = keyCode == key::Up || keyCode == key::Down;
  events.Deliver([&](Form1& form) {
    form.KeyDown(form.controls.Form1, keyCode);
    if (view != nullptr) form.KeyDown(view->Source(), keyCode);
  });
  walking = false;
  if (keyCode >= key::F1 || keyCode == key::Esc || view == nullptr) return true;
  auto* button = qobject_cast<QPushButton*>(widget);
  if (button != nullptr && keyCode == key::Enter) button->click();
  // What the keys of the table mean on a row, no row does itself; in lists and in the editor they move on. A key that
  // took the focus away is not for what is below.
  return qobject_cast<QLineEdit*>(widget) != nullptr || focusWidget() != widget;
}

void MainWindow::TakeFocus(QObject* widget, Qt::FocusReason reason) {
  // When the window or a box comes and goes, the focus stays where it was.
  const bool isOfUser = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
  ControlView* view = ViewOfWidget(widget);
  if (syncing || !isOfUser || view == nullptr || !view->Source().IsOnScreen()) return;
  if (form1.controls.Focus.Focus() == &view->Source()) return;
  events.Deliver([&](Form1& form) { form.controls.Focus.SetFocus(view->Source()); });
}

ControlView* MainWindow::ViewOfWidget(QObject* widget) const {
  const auto found = viewOfWidget.find(widget);
  return found == viewOfWidget.end() ? nullptr : found->second;
}

void MainWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  for (const int time : FittingTimes) QTimer::singleShot(time, this, [this] { FillAvailableArea(); });
  QTimer::singleShot(FittingTimes[std::size(FittingTimes) - 1] + 1, this, [this] { fitted = true; });
}

void MainWindow::FillAvailableArea() {
  if (fitted || windowHandle() == nullptr || isMaximized() || isFullScreen()) return;
  const QMargins frame = windowHandle()->frameMargins();
  const QRect client = available.marginsRemoved(frame);
  if (size() != client.size()) resize(client.size());
  if (frameGeometry().topLeft() != available.topLeft()) move(available.topLeft());
}

void MainWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (!fitted || syncing) return;
  const QPoint moved = frameGeometry().topLeft() - available.topLeft();
  form1.controls.Form1.Left = static_cast<float>(moved.x() * UnitsPerPixel);
  form1.controls.Form1.Top = static_cast<float>(moved.y() * UnitsPerPixel);
  shownPlace = QPointF(static_cast<double>(form1.controls.Form1.Left), static_cast<double>(form1.controls.Form1.Top));
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Sync();
}

void MainWindow::paintEvent(QPaintEvent* event) { QPainter(this).fillRect(event->rect(), Ground); }

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(events.Close()); }

}  // namespace zerimo
