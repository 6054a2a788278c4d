#include "desktop/desktop_style.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QPalette>
#include <QProxyStyle>
#include <memory>

#include "desktop/desktop_text.h"

namespace zerimo {

namespace {

constexpr int CaretWidth = 3;
constexpr double DialogPoints = 10.5;

class DesktopStyle final : public QProxyStyle {
 public:
  DesktopStyle() : QProxyStyle(QStringLiteral("Fusion")) {}
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override {
    if (hint == SH_DialogButtonLayout) return QDialogButtonBox::WinLayout;
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    if (hint == SH_FocusFrame_AboveWidget) return 1;
    return QProxyStyle::styleHint(hint, option, widget, returned);
  }
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    return metric == PM_TextCursorWidth ? CaretWidth : QProxyStyle::pixelMetric(metric, option, widget);
  }
};

}  // namespace

void SetDesktopStyle() {
  QApplication::setStyle(std::make_unique<DesktopStyle>().release());
  QPalette palette(QColor(0xD4, 0xD0, 0xC8));
  palette.setColor(QPalette::Window, QColor(0xEC, 0xEA, 0xE6));
  palette.setColor(QPalette::Highlight, QColor(255, 200, 0));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  QApplication::setPalette(palette);
  QApplication::setFont(ControlFont(DialogPoints));
  QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
}

}  // namespace zerimo
