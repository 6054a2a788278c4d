#include <QLabel>

#include "console/control_words.h"
#include "console/status_line.h"
#include "desktop/action_views.h"
#include "desktop/desktop_text.h"
#include "desktop/help_views.h"
#include "desktop/label_views.h"
#include "desktop/list_view.h"
#include "desktop/main_window.h"
#include "desktop/surface_view.h"
#include "desktop/text_views.h"

namespace zerimo {

/// Controls added later are above earlier ones.
void MainWindow::Build(ImageCanvas& canvas) {
  viewOf_.reserve(128);
  BuildSurface(canvas);
  BuildTextScreens();
  BuildDiagnosis();
  BuildRows();
  BuildPalette();
  SetTabOrder();
}

template <typename View, typename Source>
void MainWindow::Add(Source& control) {
  QWidget& parent = control.Panel() == nullptr ? static_cast<QWidget&>(*this) : WidgetOf(*control.Panel());
  Register(std::make_unique<View>(control, parent, events_));
}

template <typename View, typename... Arrays>
void MainWindow::AddAll(Arrays&... arrays) {
  const auto each = [this](auto& array) {
    for (int index = 0; index < array.Size; ++index) this->Add<View>(array[index]);
  };
  (each(arrays), ...);
}

void MainWindow::Register(std::unique_ptr<ControlView> view) {
  view->Widget().installEventFilter(this);
  Describe(*view);
  viewOf_[&view->Source()] = view.get();
  viewOfWidget_[&view->Widget()] = view.get();
  views_.push_back(std::move(view));
}

void MainWindow::Describe(const ControlView& view) {
  const std::string& name = view.Source().Name();
  QWidget& widget = view.Widget();
  widget.setObjectName(ToQString(name));
  const ControlWords* words = FindControlWords(name);
  if (words == nullptr) return;
  QString title = QString::fromLatin1(words->Name);
  const int index = IndexInName(name);
  // The colours are known by their codes, which count from 0.
  if (words->Control == "Label13") title = QStringLiteral("%1 %2").arg(index).arg(ToQString(ColourName(index)));
  if (title.contains(QLatin1String("%1"))) title = title.arg(index + 1);
  widget.setAccessibleName(title);
  widget.setAccessibleDescription(QLatin1String(words->Description));
  widget.setToolTip(QLatin1String(words->ToolTip));
}

void MainWindow::BuildSurface(ImageCanvas& canvas) {
  Register(std::make_unique<SurfaceView>(form1_, *this, canvas, events_));
  AddAll<CaptionView>(form1_.controls.Label20);
}

void MainWindow::BuildTextScreens() {
  Add<ListBoxView>(form1_.controls.List4);
  Add<FileListView>(form1_.controls.File1);
  Add<PageView>(form1_.controls.RichTextBox1);
}

void MainWindow::BuildDiagnosis() {
  Controls& controls = form1_.controls;
  Add<FramePanelView>(controls.Frame1);
  AddAll<LabelView>(controls.Label12);
  for (ListBox* list : {&controls.List1, &controls.List2, &controls.List3}) Add<ListBoxView>(*list);
  for (Label* label : {&controls.Label19, &controls.Label17, &controls.Label18, &controls.Label10, &controls.Label9,
                       &controls.Label11, &controls.Label8}) {
    Add<LabelView>(*label);
  }
  for (TextBox* field : {&controls.Text3, &controls.Text4}) Add<FieldView>(*field);
  Add<CheckView>(controls.Check1);
  Add<ButtonView>(controls.Command2);
  AddAll<BarView>(controls.HScroll1, controls.HScroll2);
  Add<ButtonView>(controls.Command1);
}

void MainWindow::BuildRows() {
  Controls& controls = form1_.controls;
  Add<RowsPanelView>(controls.Picture3);
  Add<PromptView>(controls.Prompt);
  AddAll<RowView>(controls.Text1);
  // Above the rows, since the editor covers nearly the whole window.
  Add<EditorView>(controls.Text2);
}

void MainWindow::BuildPalette() {
  Controls& controls = form1_.controls;
  Add<PaletteView>(controls.Picture2);
  Add<LabelView>(controls.Label16);
  AddAll<PressView>(controls.Label13);
  Add<LabelView>(controls.Label15);
  Add<PressView>(controls.Label14);
  for (Button* button : {&controls.Command4, &controls.Command5, &controls.Command3}) Add<ButtonView>(*button);
  paletteShapes_ = new PaletteShapes(WidgetOf(controls.Picture2), controls);
}

void MainWindow::SetTabOrder() {
  Controls& controls = form1_.controls;
  const auto follow = [&](const Control& control) {
    QWidget& stop = WidgetOf(control);
    if (stop.focusPolicy() == Qt::NoFocus) return;
    if (!tabStops_.empty()) QWidget::setTabOrder(tabStops_.back(), &stop);
    tabStops_.push_back(&stop);
  };
  // The rows come first, then the panels and screens above the surface, then the surface.
  for (int row = 0; row < controls.Text1.Size; ++row) follow(controls.Text1[row]);
  for (const auto& view : views_) {
    const bool isRow = view->Source().Panel() == &controls.Picture3;
    if (!isRow && &view->Source() != &form1_.Picture1) follow(view->Source());
  }
  follow(form1_.Picture1);
}

}  // namespace zerimo
