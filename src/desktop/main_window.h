#pragma once

#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "desktop/control_view.h"
#include "desktop/panel_views.h"
#include "pictures/image_canvas.h"

namespace zerimo {

/// The window: one widget for each control, showing what the control says.
class MainWindow : public QWidget {
 public:
  /// `available` is the part of the screen that the desktop leaves free; the window with its frame fills it.
  MainWindow(Form1& form1, ImageCanvas& canvas, Events& events, const QRect& available);

  /// Copies what has changed from the controls, and the focus, to the widgets.
  void Sync();
  /// Copies what the user changed from the widgets to the controls.
  void Collect();

  Room RoomNow() const;

  /// Tells a screen reader where the turtle is, and what the lists on the screen hold.
  void Describe();

  /// The view of a control, or null.
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

  void SyncPlace();
  void SyncFocus();
  void FillAvailableArea();
  /// If no control has the focus, gives it to the one that the learner is looking at, and sends the key there. A letter
  /// for the text screen goes to the row. Returns whether the key has gone elsewhere.
  bool HandOn(QKeyEvent& press);
  /// The first of these that is on the screen: the editor, the row that had the focus last, the help page, the text
  /// screen, the surface.
  Control& KeyReceiver() const;
  bool PressKey(QObject* widget, int keyCode);
  void TakeFocus(QObject* widget, Qt::FocusReason reason);
  ControlView* ViewOfWidget(QObject* widget) const;

  Form1& form1_;
  Events& events_;
  const QRect available_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::unordered_map<const Control*, ControlView*> viewOf_;
  std::unordered_map<const QObject*, ControlView*> viewOfWidget_;
  /// The stops of the Tab key, in order.
  std::vector<QWidget*> tabStops_;
  PaletteShapes* paletteShapes_ = nullptr;
  /// The place in the data that the window was last moved to, in surface units.
  QPointF shownPlace_;
  /// The row that had the focus last.
  Control* lastRow_;
  /// Set while an arrow key moves the focus from row to row, so that the line reached is not selected.
  bool walking_ = false;
  bool syncing_ = false;
  bool fitted_ = false;
};

}  // namespace zerimo
