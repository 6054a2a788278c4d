#include "desktop/extensions/letter_size.h"

#include <QTest>
#include <QWheelEvent>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class LetterSizeTest : public ExtensionsTest {
 protected:
  int EditorSize() { return Editor().font().pixelSize(); }
  void Turn(QWidget& widget, int delta) {
    const QPointF at(20, 20);
    QWheelEvent wheel(at, widget.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&widget, &wheel);
  }
};

TEST_F(LetterSizeTest, KeysEnlargeAndReduceTheLetters) {
  const int usual = EditorSize();
  Press(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_NEAR(EditorSize(), usual * 1.25, 1);
  Press(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_NEAR(EditorSize(), usual * 1.5, 1);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_NEAR(EditorSize(), usual * 1.25, 1);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(EditorSize(), usual);
}

TEST_F(LetterSizeTest, TheyStayBetweenHalfAndFourTimes) {
  const int usual = EditorSize();
  for (int i = 0; i < 30; ++i) Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_NEAR(EditorSize(), usual * 4, 2);
  for (int i = 0; i < 30; ++i) Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_GE(EditorSize(), 13);
  EXPECT_LT(EditorSize(), usual);
}

TEST_F(LetterSizeTest, TheWheelWithCtrlDoesTheSame) {
  Press(Qt::Key_F1);
  const int usual = EditorSize();
  Turn(*Editor().viewport(), 120);
  EXPECT_GT(EditorSize(), usual);
  Turn(*Editor().viewport(), -120);
  EXPECT_EQ(EditorSize(), usual);
}

TEST_F(LetterSizeTest, TheSizesOfTheControlsAndTheRowsStay) {
  const double editor = FormControls().Text2.FontSize;
  const QFont row = Row(0).font();
  const QFont history = WidgetOf(FormControls().List4).font();
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(FormControls().Text2.FontSize, editor);
  EXPECT_EQ(Row(0).font(), row);
  EXPECT_GT(WidgetOf(FormControls().List4).font().pixelSize(), history.pixelSize());
}

TEST_F(LetterSizeTest, OnARowTheKeysTypeNothing) {
  Press(Qt::Key_Plus, Qt::ControlModifier);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Row(0).text(), "");
}

}  // namespace
}  // namespace zerimo
