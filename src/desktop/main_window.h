#pragma once

#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/panel_views.h"
#include "pictures/image_canvas.h"

namespace zerimo {

/// The window: one widget for each control, and nothing that the controls do not say.
class MainWindow : public QWidget {
 public:
  /// `availableArea` is what the desktop leaves free of the screen; the window's frame fills it.
  MainWindow(Form1& form, ImageCanvas& canvas, Events& theEvents, const QRect& availableArea);

  /// Copies what has changed from the controls to the widgets; at most one widget has the focus, as the data says.
  void Sync();
  /// Copies what the user changed from the widgets to the controls.
  void Collect();

  /// Tells a screen reader where the turtle is.
  void DescribeTurtle();

  /// The view of a control, or nothing.
  ControlView* FindView(const Control& control) const;
  QWidget& WidgetOf(const Control& control) const { return FindView(control)->Widget(); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  bool focusNextPrevChild(bool next) override;
  void showEvent(QShowEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void Build(ImageCanvas& canvas);
  template <typename View, typename Source>
  void Add(Source& control);
  template <typename View, typename... Arrays>
  void AddAll(Arrays&... arrays);
  void Register(std::unique_ptr<ControlView> view);
  void BuildSurface(ImageCanvas& canvas);
  void BuildTextScreens();
  void BuildDiagnosis();
  void BuildRows();
  void BuildPalette();
  void SetTabOrder();
  void Describe(const ControlView& view);

  Room RoomNow() const;
  void SyncPlace();
  void SyncFocus();
  void FillAvailableArea();
  /// Where nothing has the focus, a key gives it to what the learner looks at, and goes there. Tells whether it did.
  bool HandOn(QKeyEvent& press);
  /// The uppermost of the big controls: the editor, the row that had the focus last, the help page, the text screen,
  /// the surface.
  Control& KeyReceiver() const;
  bool PressKey(QObject* widget, int keyCode);
  void TakeFocus(QObject* widget, Qt::FocusReason reason);
  ControlView* ViewOfWidget(QObject* widget) const;

  Form1& form1;
  Events& events;
  const QRect available;
  std::vector<std::unique_ptr<ControlView>> views;
  std::unordered_map<const Control*, ControlView*> viewOf;
  std::unordered_map<const QObject*, ControlView*> viewOfWidget;
  /// Where the Tab key goes, in order.
  std::vector<QWidget*> tabStops;
  PaletteShapes* paletteShapes = nullptr;
  /// Where the window's data was when the window last stood there.
  QPointF shownPlace;
  /// The row that had the focus last.
  Control* lastRow;
  /// While an arrow key moves the focus from row to row: a line that is to be changed keeps its caret.
  bool walking = false;
  bool syncing = false;
  bool fitted = false;
};

}  // namespace zerimo
