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

#include "console/control_words.h"
#include "console/keys.h"
#include "desktop/desktop_text.h"
#include "desktop/text_views.h"
#include "desktop/title_picture.h"
#include "graphics/surface.h"

namespace zerimo {

namespace {

/// When the window checks that it fills the area, in milliseconds after it appears: window managers add the frame late.
constexpr int FittingTimes[] = {0, 50, 150, 400, 1000};
constexpr QSize SmallestWindow(320, 240);
/// The colour where there is no control.
constexpr QColor Ground(0, 0, 80);

QString WordsAboutTurtle(const Turtle& turtle, const Control& form) {
  const auto steps = [&](double units) {
    return QString::number(turtle.Resolution == 0 ? 0 : units / turtle.Resolution, 'f', 1);
  };
  return QStringLiteral("Turtle %1 across, %2 up, heading %3 degrees.")
      .arg(steps(turtle.TurtleX - static_cast<double>(form.Width) / 2),
           steps(static_cast<double>(form.Height()) / 2 - turtle.TurtleY),
           QString::number(turtle.TurtleDir * 180 / std::numbers::pi, 'f', 0));
}

QString WordsAboutList(const ListBox& list) {
  const QString what = QLatin1String(FindControlWords(list.Name())->Description);
  const std::vector<std::string>& entries = list.Items();
  if (entries.empty()) return what + QStringLiteral(" Empty.");
  return what + QStringLiteral(" Entries: %1. Last: %2").arg(entries.size()).arg(ToQString(entries.back()).trimmed());
}

/// Modifier keys do not call for the focus, nor do keys that move it themselves.
bool CallsForFocus(const QKeyEvent& press) {
  switch (press.key()) {
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return false;
    default:
      return KeyCode(press) != 0 || !press.text().isEmpty();
  }
}

/// Whether a key puts a character on a row.
bool Writes(const QKeyEvent& press) {
  const bool isAlone = (press.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == Qt::NoModifier;
  return isAlone && !press.text().isEmpty() && press.text().front().isPrint();
}

}  // namespace

MainWindow::MainWindow(Form1& form1, ImageCanvas& canvas, Events& events, const QRect& available)
    : form1_(form1), events_(events), available_(available), lastRow_(&form1.controls.Text1[0]) {
  setWindowIcon(ProgramIcon());
  setMinimumSize(SmallestWindow);
  installEventFilter(this);
  setGeometry(available_);
  Build(canvas);
}

void MainWindow::Sync() {
  if (syncing_) return;
  syncing_ = true;
  const QString caption = ToQString(form1_.controls.Form1.Caption());
  if (windowTitle() != caption) setWindowTitle(caption);
  SyncPlace();
  const Room room = RoomNow();
  for (const auto& view : views_) view->Sync(room);
  paletteShapes_->Sync();
  SyncFocus();
  syncing_ = false;
}

void MainWindow::Collect() {
  for (const auto& view : views_) view->Collect();
}

ControlView* MainWindow::FindView(const Control& control) const {
  const auto found = viewOf_.find(&control);
  return found == viewOf_.end() ? nullptr : found->second;
}

Room MainWindow::RoomNow() const {
  Room room{rect(), rect()};
  const Control& rows = form1_.controls.Picture3;
  if (rows.Visible()) room.AboveRows.setBottom(RowsPanelView::PlaceIn(rows, rect(), ZoomOf(*this)).top() - 1);
  return room;
}

void MainWindow::SyncPlace() {
  const QPointF wanted(static_cast<double>(form1_.controls.Form1.Left), static_cast<double>(form1_.controls.Form1.Top));
  if (wanted == shownPlace_) return;
  shownPlace_ = wanted;
  move(available_.topLeft() + (wanted / UnitsPerPixel).toPoint());
}

void MainWindow::SyncFocus() {
  Control* holder = form1_.controls.Focus.Focus();
  const ControlView* view = holder == nullptr ? nullptr : FindView(*holder);
  if (holder != nullptr && holder->Panel() == &form1_.controls.Picture3) lastRow_ = holder;
  QWidget& wanted = view == nullptr ? static_cast<QWidget&>(*this) : view->Widget();
  // If a part of the editor, such as the find bar, has the focus, the editor counts as having it.
  if (focusWidget() == &wanted || (view != nullptr && wanted.isAncestorOf(focusWidget()))) return;
  wanted.setFocus(Qt::OtherFocusReason);
  // Unless an arrow key led here, typing replaces the old line.
  auto* row = dynamic_cast<RowEdit*>(&wanted);
  if (row != nullptr && !walking_) row->selectAll();
}

void MainWindow::Describe() {
  // A screen reader announces each description that is set, even one that has not changed.
  const auto describe = [this](const Control& control, const QString& words) {
    QWidget& widget = WidgetOf(control);
    if (widget.accessibleDescription() != words) widget.setAccessibleDescription(words);
  };
  Controls& controls = form1_.controls;
  describe(form1_.Picture1, WordsAboutTurtle(form1_.turtle, controls.Form1));
  for (const ListBox* list : {&controls.List1, &controls.List2, &controls.List3, &controls.List4}) {
    if (list->IsOnScreen()) describe(*list, WordsAboutList(*list));
  }
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
  // With nothing focused, Tab goes to the first visible stop.
  const auto first = std::find_if(tabStops_.begin(), tabStops_.end(), [](QWidget* stop) { return stop->isVisible(); });
  if (first == tabStops_.end()) return false;
  (*first)->setFocus(Qt::TabFocusReason);
  return true;
}

bool MainWindow::HandOn(QKeyEvent& press) {
  QWidget* const before = focusWidget();
  const bool isForNobody = before == this && CallsForFocus(press);
  // The text screen has no use for letters.
  const bool isForRow = before == &WidgetOf(form1_.controls.List4) && Writes(press) && lastRow_->IsOnScreen();
  if (!isForNobody && !isForRow) return false;
  Control& receiver = isForRow ? *lastRow_ : KeyReceiver();
  events_.Deliver([&](Form1& form1) { form1.controls.Focus.SetFocus(receiver); });
  if (focusWidget() == before) return false;
  QCoreApplication::sendEvent(focusWidget(), &press);
  return true;
}

Control& MainWindow::KeyReceiver() const {
  Controls& controls = form1_.controls;
  // In stacking order, topmost first.
  for (Control* control : {static_cast<Control*>(&controls.Text2), static_cast<Control*>(lastRow_),
                           static_cast<Control*>(&controls.RichTextBox1), static_cast<Control*>(&controls.List4)}) {
    if (control->IsOnScreen()) return *control;
  }
  return form1_.Picture1;
}

bool MainWindow::PressKey(QObject* widget, int keyCode) {
  ControlView* view = ViewOfWidget(widget);
  // A key that a widget ignores arrives here again from the window; it has been handled already.
  if (keyCode == 0 || (view == nullptr && focusWidget() != this)) return false;
  walking_ = keyCode == key::Up || keyCode == key::Down;
  events_.Deliver([&](Form1& form1) {
    form1.KeyDown(form1.controls.Form1, keyCode);
    if (view != nullptr) form1.KeyDown(view->Source(), keyCode);
  });
  walking_ = false;
  if (keyCode >= key::F1 || keyCode == key::Esc || view == nullptr) return true;
  auto* button = qobject_cast<QPushButton*>(widget);
  if (button != nullptr && keyCode == key::Enter) button->click();
  // On a row, the line edit must not handle Up, Down and Enter as well; lists and the editor may. If the key has moved
  // the focus, the widget that had it must not see the key.
  return qobject_cast<QLineEdit*>(widget) != nullptr || focusWidget() != widget;
}

void MainWindow::TakeFocus(QObject* widget, Qt::FocusReason reason) {
  // Opening and closing windows and boxes must not move the system's focus.
  const bool isOfUser = reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason;
  ControlView* view = ViewOfWidget(widget);
  if (syncing_ || !isOfUser || view == nullptr || !view->Source().IsOnScreen()) return;
  if (form1_.controls.Focus.Focus() == &view->Source()) return;
  events_.Deliver([&](Form1& form1) { form1.controls.Focus.SetFocus(view->Source()); });
}

ControlView* MainWindow::ViewOfWidget(QObject* widget) const {
  const auto found = viewOfWidget_.find(widget);
  return found == viewOfWidget_.end() ? nullptr : found->second;
}

void MainWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  for (const int time : FittingTimes) QTimer::singleShot(time, this, [this] { FillAvailableArea(); });
  QTimer::singleShot(FittingTimes[std::size(FittingTimes) - 1] + 1, this, [this] { fitted_ = true; });
}

void MainWindow::FillAvailableArea() {
  if (fitted_ || windowHandle() == nullptr || isMaximized() || isFullScreen()) return;
  const QMargins frame = windowHandle()->frameMargins();
  const QRect client = available_.marginsRemoved(frame);
  if (size() != client.size()) resize(client.size());
  if (frameGeometry().topLeft() != available_.topLeft()) move(available_.topLeft());
}

void MainWindow::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (!fitted_ || syncing_) return;
  const QPoint moved = frameGeometry().topLeft() - available_.topLeft();
  form1_.controls.Form1.Left = static_cast<float>(moved.x() * UnitsPerPixel);
  form1_.controls.Form1.Top = static_cast<float>(moved.y() * UnitsPerPixel);
  shownPlace_ =
      QPointF(static_cast<double>(form1_.controls.Form1.Left), static_cast<double>(form1_.controls.Form1.Top));
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Sync();
}

void MainWindow::paintEvent(QPaintEvent* event) { QPainter(this).fillRect(event->rect(), Ground); }

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(events_.Close()); }

}  // namespace zerimo
