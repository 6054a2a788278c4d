#include "desktop/extensions/zoom.h"

#include <QTest>
#include <QTextEdit>
#include <QWheelEvent>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class ZoomTest : public ExtensionsTest {
 protected:
  void Enlarge(int times = 1) {
    for (int i = 0; i < times; ++i) Press(Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier);
  }
  void Reduce(int times = 1) {
    for (int i = 0; i < times; ++i) Press(Qt::Key_Minus, Qt::ControlModifier);
  }
  /// From the usual size to 200 percent.
  void Double() { Enlarge(3); }

  static void Turn(QWidget& widget, int delta, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    const QPointF at(20, 20);
    QWheelEvent wheel(at, widget.mapToGlobal(at), {}, {0, delta}, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
  }

  QWidget& SurfaceShown() { return WidgetOf(session->form1.Picture1); }
  QWidget& Rows() { return WidgetOf(FormControls().Picture3); }
  static int LettersOf(const QWidget& widget) { return widget.font().pixelSize(); }
  QColor ColourAt(QPoint inSurface) { return SurfaceShown().grab().toImage().pixelColor(inSurface); }
};

TEST_F(ZoomTest, KeysEnlargeAndReduceRowsAndPicture) {
  const int letters = LettersOf(Row(0));
  const QRect picture = SurfaceShown().geometry();
  Enlarge();
  EXPECT_NEAR(LettersOf(Row(0)), letters * 1.25, 1);
  EXPECT_EQ(SurfaceShown().width(), 1280);
  Press(Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_EQ(SurfaceShown().width(), 1536);
  Reduce();
  EXPECT_EQ(SurfaceShown().width(), 1280);
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(LettersOf(Row(0)), letters);
  EXPECT_EQ(SurfaceShown().geometry(), picture);
}

TEST_F(ZoomTest, ItStaysBetweenHalfAndFourTimes) {
  Enlarge(30);
  EXPECT_EQ(SurfaceShown().width(), 4096);
  Reduce(30);
  EXPECT_EQ(SurfaceShown().width(), 512);
}

TEST_F(ZoomTest, TheWheelWithCtrlDoesTheSameAnywhere) {
  Turn(Row(0), 120);
  EXPECT_EQ(SurfaceShown().width(), 1280);
  Turn(SurfaceShown(), -120);
  EXPECT_EQ(SurfaceShown().width(), 1024);
  Press(Qt::Key_F1);
  const int letters = LettersOf(Editor());
  Turn(*Editor().viewport(), 120);
  EXPECT_GT(LettersOf(Editor()), letters);
}

TEST_F(ZoomTest, TheRowsStayAtTheBottomAndWhole) {
  const int height = Rows().height();
  Double();
  EXPECT_EQ(Rows().geometry().bottom(), Window().rect().bottom());
  EXPECT_EQ(Rows().height(), 2 * height);
  EXPECT_EQ(Row(4).width(), Row(0).width());
  EXPECT_LE(Row(0).geometry().right(), Window().rect().right());
}

TEST_F(ZoomTest, PixelsOfThePictureBecomeSquares) {
  Enter("cs");
  Enter("ht");
  Enter("fd 10");
  const QPoint point(512, 370);
  const QColor line = ColourAt(point);
  ASSERT_NE(line, ColourAt({100, 100}));
  Double();
  for (const QPoint corner : {QPoint(0, 0), QPoint(1, 0), QPoint(0, 1), QPoint(1, 1)}) {
    EXPECT_EQ(ColourAt(2 * point + corner), line);
  }
  EXPECT_EQ(ColourAt({200, 200}), QColor(128, 0, 128));
}

TEST_F(ZoomTest, WhatIsDrawnWhileEnlargedIsSeen) {
  Enter("cs");
  Enter("ht");
  Double();
  Enter("fd 10");
  EXPECT_EQ(ColourAt({1024, 740}), QColor(Qt::white));
}

TEST_F(ZoomTest, TheTurtleIsInSight) {
  const auto seen = [this](QPoint point) {
    return Window().RoomNow().AboveRows.contains(SurfaceShown().mapToParent(point));
  };
  Double();
  EXPECT_TRUE(seen({1024, 768}));
  Enter("cs");
  Enter("setxy 90 70");
  EXPECT_TRUE(seen({1624, 301}));
}

TEST_F(ZoomTest, TheTurtleStaysInSightWhileItsLinesRunOneByOne) {
  Enter("cs");
  Enlarge(30);
  QTest::keyClick(&Row(0), Qt::Key_4, Qt::ControlModifier);
  std::string told;
  std::vector<bool> inSight;
  QTimer stepper;
  QObject::connect(&stepper, &QTimer::timeout, [&] {
    // Until the next line is reported, the one before it is still on its way.
    if (!session->stage.IsRunning() || Chip().text().toStdString() == told) return;
    told = Chip().text().toStdString();
    const Turtle& turtle = session->form1.turtle;
    const QPointF place = QPointF(turtle.TurtleX, turtle.TurtleY) / UnitsPerPixel * 4;
    inSight.push_back(Window().RoomNow().AboveRows.contains(SurfaceShown().mapToParent(place.toPoint())));
    QTest::keyClick(&Row(0), Qt::Key_Space);
  });
  stepper.start(20);
  Enter("setxy 90 70 setxy (-90) (-70) setxy 90 (-70) rt 1");
  EXPECT_EQ(inSight, std::vector<bool>(4, true));
}

TEST_F(ZoomTest, TheWheelMovesAnEnlargedPictureToItsEdges) {
  Turn(SurfaceShown(), 120, Qt::NoModifier);
  EXPECT_EQ(SurfaceShown().pos(), QPoint(0, 0));
  Double();
  const QPoint before = SurfaceShown().pos();
  Turn(SurfaceShown(), 120, Qt::NoModifier);
  EXPECT_EQ(SurfaceShown().pos(), before + QPoint(0, 60));
  Turn(SurfaceShown(), -120, Qt::ShiftModifier);
  EXPECT_EQ(SurfaceShown().pos(), before + QPoint(-60, 60));
  for (int i = 0; i < 40; ++i) Turn(SurfaceShown(), 120, Qt::NoModifier);
  EXPECT_EQ(SurfaceShown().pos().y(), 0);
  Turn(SurfaceShown(), -120, Qt::NoModifier);
  EXPECT_EQ(SurfaceShown().pos().y(), -60);
}

TEST_F(ZoomTest, ThePlaceUnderThePointerIsThatOfThePicture) {
  Double();
  QTest::mouseMove(&SurfaceShown(), QPoint(1024 + 100, 768));
  const std::string right = session->form1.Picture1.ToolTipText;
  Press(Qt::Key_0, Qt::ControlModifier);
  QTest::mouseMove(&SurfaceShown(), QPoint(512 + 50, 384));
  EXPECT_EQ(session->form1.Picture1.ToolTipText, right);
}

TEST_F(ZoomTest, TheControlsAndASavedPictureStayWhatTheyAre) {
  Enter("repeat 4 [fd 60 rt 90]");
  Enter("savepicture usual");
  const double letters = FormControls().Text2.FontSize;
  const float left = FormControls().Picture3.Left;
  const float top = FormControls().Picture3.Top;
  Double();
  Enter("savepicture double");
  EXPECT_EQ(ReadFile("DOUBLE.Bmp"), ReadFile("USUAL.Bmp"));
  EXPECT_EQ(FormControls().Text2.FontSize, letters);
  EXPECT_EQ(FormControls().Picture3.Left, left);
  EXPECT_EQ(FormControls().Picture3.Top, top);
}

TEST_F(ZoomTest, HelpPagesGrowAndKeepTheirText) {
  WriteFile("ZMHELP/FD", "{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0\\fs24 Forward\\par}");
  Enter("help fd");
  auto& page = WidgetAs<QTextEdit>(FormControls().RichTextBox1);
  const QSizeF usual = page.document()->size();
  const std::string text = FormControls().RichTextBox1.Document;
  Double();
  EXPECT_GT(page.document()->size().height(), usual.height() * 1.5);
  Enter("rt 1");
  EXPECT_EQ(FormControls().RichTextBox1.Document, text);
}

TEST_F(ZoomTest, OnARowTheKeysTypeNothing) {
  Enlarge();
  Press(Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(Row(0).text(), "");
}

}  // namespace
}  // namespace zerimo
