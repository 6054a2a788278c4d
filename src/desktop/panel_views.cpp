#include "desktop/panel_views.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

#include "desktop/desktop_text.h"
#include "graphics/surface.h"

namespace zerimo {

namespace {

constexpr double PanelPoints = 9.75;
/// As the title of the palette.
constexpr int CaptionBar = 20;
constexpr Colour CaptionGround = 0xFF0000;
constexpr Colour CaptionLetters = 0x00FFFF;

float Units(int pixels) { return static_cast<float>(pixels * UnitsPerPixel); }

/// Moves a place into the window as far as it fits, its upper left corner first.
QRect WithinReach(QRect place, const QRect& client) {
  place.moveLeft(std::max(0, std::min(place.left(), client.width() - place.width())));
  place.moveTop(std::max(0, std::min(place.top(), client.height() - place.height())));
  return place;
}

}  // namespace

RowsPanelView::RowsPanelView(PanelBox& control, QWidget& parent, Events&)
    : ControlView(control, *new QFrame(&parent)), panel(control) {
  Widget().setAutoFillBackground(true);
}

QRect RowsPanelView::PlaceIn(const Control& panel, const QRect& client) {
  QRect place = InPixels(panel);
  if (place.bottom() > client.bottom()) place.moveBottom(client.bottom());
  return place;
}

void RowsPanelView::SyncLook() { ShowColours(Widget(), panel.BackColor, 0); }

CaptionFrame::CaptionFrame(QWidget& parent, const PanelBox& control) : QFrame(&parent), panel(control) {
  setFrameShape(StyledPanel);
  setFrameShadow(Raised);
  setAutoFillBackground(true);
  setFont(ControlFont(PanelPoints, true));
  ShowColours(*this, panel.BackColor, 0);
}

void CaptionFrame::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  const QRect bar(0, 0, width(), CaptionBar);
  painter.fillRect(bar, ToQColor(CaptionGround));
  painter.setPen(ToQColor(CaptionLetters));
  painter.drawText(bar.adjusted(10, 0, 0, 0), Qt::AlignVCenter, ToQString(panel.Caption));
}

QRect FramePanelView::Place(const Room& room) const { return WithinReach(InPixels(Source()), room.Client); }

PaletteFrame::PaletteFrame(QWidget& parent, PanelBox& control, Events& theEvents)
    : QFrame(&parent), panel(control), events(theEvents) {
  setFrameShape(StyledPanel);
  setFrameShadow(Raised);
  setAutoFillBackground(true);
  setMouseTracking(true);
  ShowColours(*this, panel.BackColor, 0);
}

void PaletteFrame::mousePressEvent(QMouseEvent* event) {
  grab = event->position().toPoint();
  // Under a finger nothing has moved over the panel before.
  events.Deliver([this](Form1& form1) { form1.MouseMove(panel, Units(grab.x()), Units(grab.y())); });
}

void PaletteFrame::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    return events.Deliver([&](Form1& form1) { form1.MouseMove(panel, Units(at.x()), Units(at.y())); });
  }
  dragged = dragged || (at - grab).manhattanLength() >= QApplication::startDragDistance();
  if (dragged) DragTo(mapToParent(at));
}

void PaletteFrame::DragTo(QPoint inWindow) {
  move(inWindow - grab);
  events.Deliver([&](Form1& form1) {
    const bool overForm =
        !InPixels(form1.Picture1).contains(inWindow) && !InPixels(form1.controls.Picture3).contains(inWindow);
    if (overForm) form1.DragOver();
  });
}

void PaletteFrame::mouseReleaseEvent(QMouseEvent* event) {
  if (!dragged || event->button() != Qt::LeftButton) return;
  dragged = false;
  DropAt(mapToParent(event->position().toPoint()));
}

void PaletteFrame::DropAt(QPoint inWindow) {
  events.Deliver([&](Form1& form1) {
    // Dropped elsewhere, the panel goes back to its place.
    if (!InPixels(form1.Picture1).contains(inWindow)) return;
    form1.DragDrop(panel, Units(inWindow.x()), Units(inWindow.y()));
  });
}

QRect PaletteView::Place(const Room& room) const { return WithinReach(InPixels(Source()), room.Client); }

PaletteShapes::PaletteShapes(QWidget& parent, const Controls& formControls) : QWidget(&parent), controls(formControls) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PaletteShapes::Sync() {
  const QRect wanted = InPixels(controls.Shape5);
  if (geometry() != parentWidget()->rect()) setGeometry(parentWidget()->rect());
  if (shown == wanted) return;
  shown = wanted;
  update();
}

void PaletteShapes::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (const Shape* shape : {&controls.Shape5, &controls.Shape7}) {
    if (!shape->Visible()) continue;
    painter.setPen(QPen(ToQColor(shape->BorderColor), shape->BorderWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawRect(InPixels(*shape).adjusted(0, 0, -1, -1));
  }
}

}  // namespace zerimo
