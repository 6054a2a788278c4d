#include "desktop/panel_views.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr double PanelPoints = 9.75;
constexpr int UsualBarHeight = 20;
constexpr Colour CaptionGround = 0xFF0000;
constexpr Colour CaptionLetters = 0x00FFFF;

/// Moves a place into the window; if it does not fit, its upper left corner takes precedence.
QRect WithinReach(QRect place, const QRect& client) {
  place.moveLeft(std::max(0, std::min(place.left(), client.width() - place.width())));
  place.moveTop(std::max(0, std::min(place.top(), client.height() - place.height())));
  return place;
}

}  // namespace

RowsPanelView::RowsPanelView(PanelBox& control, QWidget& parent, Events&)
    : ControlView(control, *new QFrame(&parent)), panel_(control) {
  Widget().setAutoFillBackground(true);
}

QRect RowsPanelView::PlaceIn(const Control& panel, const QRect& client, double zoom) {
  QRect place = InPixels(panel, zoom);
  if (place.bottom() > client.bottom()) place.moveBottom(client.bottom());
  return place;
}

void RowsPanelView::SyncLook() { ShowColours(Widget(), panel_.BackColor, 0); }

CaptionFrame::CaptionFrame(QWidget& parent, const PanelBox& control) : QFrame(&parent), panel_(control) {
  setFrameShape(StyledPanel);
  setFrameShadow(Raised);
  setAutoFillBackground(true);
  ShowColours(*this, panel_.BackColor, 0);
}

int CaptionFrame::BarHeight() const { return static_cast<int>(std::lround(UsualBarHeight * ZoomOf(*this))); }

void CaptionFrame::paintEvent(QPaintEvent* event) {
  QFrame::paintEvent(event);
  QPainter painter(this);
  const QRect bar(0, 0, width(), BarHeight());
  painter.fillRect(bar, ToQColor(CaptionGround));
  painter.setPen(ToQColor(CaptionLetters));
  painter.drawText(bar.adjusted(10, 0, 0, 0), Qt::AlignVCenter, ToQString(panel_.Caption));
}

QRect FramePanelView::Place(const Room& room) const {
  QRect place = PlaceInData().translated(static_cast<CaptionFrame&>(Widget()).Shift());
  const QRect& area = place.height() <= room.AboveRows.height() ? room.AboveRows : room.Client;
  place = WithinReach(place, area);
  if (place.right() > area.right()) place.moveRight(area.right());
  return place;
}

void FramePanelView::SyncLook() { ShowLetters(Widget(), PanelPoints, true); }

PaletteFrame::PaletteFrame(QWidget& parent, PanelBox& control, Events& events)
    : QFrame(&parent), panel_(control), events_(events) {
  setFrameShape(StyledPanel);
  setFrameShadow(Raised);
  setAutoFillBackground(true);
  setMouseTracking(true);
  ShowColours(*this, panel_.BackColor, 0);
}

void PaletteFrame::mousePressEvent(QMouseEvent* event) {
  grab_ = event->position().toPoint();
  // A touch is not preceded by mouse moves.
  events_.Deliver([this](Form1& form1) { form1.MouseMove(panel_, Units(*this, grab_.x()), Units(*this, grab_.y())); });
}

void PaletteFrame::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    return events_.Deliver([&](Form1& form1) { form1.MouseMove(panel_, Units(*this, at.x()), Units(*this, at.y())); });
  }
  dragged_ = dragged_ || (at - grab_).manhattanLength() >= QApplication::startDragDistance();
  if (dragged_) DragTo(mapToParent(at));
}

void PaletteFrame::DragTo(QPoint inWindow) {
  move(inWindow - grab_);
  events_.Deliver([&](Form1& form1) {
    const auto isOver = [&](const Control& control) { return InPixels(control, ZoomOf(*this)).contains(inWindow); };
    if (!isOver(form1.Picture1) && !isOver(form1.controls.Picture3)) form1.DragOver();
  });
}

void PaletteFrame::mouseReleaseEvent(QMouseEvent* event) {
  if (!dragged_ || event->button() != Qt::LeftButton) return;
  dragged_ = false;
  DropAt(mapToParent(event->position().toPoint()));
}

void PaletteFrame::DropAt(QPoint inWindow) {
  events_.Deliver([&](Form1& form1) {
    // Dropped anywhere else, the panel returns to its place.
    if (!InPixels(form1.Picture1, ZoomOf(*this)).contains(inWindow)) return;
    form1.DragDrop(panel_, Units(*this, inWindow.x()), Units(*this, inWindow.y()));
  });
}

QRect PaletteView::Place(const Room& room) const { return WithinReach(PlaceInData(), room.Client); }

PaletteShapes::PaletteShapes(QWidget& parent, const Controls& controls) : QWidget(&parent), controls_(controls) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
}

void PaletteShapes::Sync() {
  const QRect wanted = InPixels(controls_.Shape5, ZoomOf(*this));
  if (geometry() != parentWidget()->rect()) setGeometry(parentWidget()->rect());
  if (shown_ == wanted) return;
  shown_ = wanted;
  update();
}

void PaletteShapes::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  for (const Shape* shape : {&controls_.Shape5, &controls_.Shape7}) {
    if (!shape->Visible()) continue;
    painter.setPen(QPen(ToQColor(shape->BorderColor), shape->BorderWidth, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
    painter.drawRect(InPixels(*shape, ZoomOf(*this)).adjusted(0, 0, -1, -1));
  }
}

}  // namespace zerimo
