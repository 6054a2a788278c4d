#include <QDir>
#include <QPainter>
#include <QTest>

#include "desktop/extensions/extensions_fixture.h"
#include "desktop/extensions/picture_keys.h"

namespace zerimo {
namespace {

class PrintPictureTest : public ExtensionsTest {
 protected:
  void Print() { Press(Qt::Key_P, Qt::ControlModifier); }
};

/// A page of that size with a red picture of 200 by 100 and these words.
QImage Page(int width, int height, const char* words) {
  QImage picture(200, 100, QImage::Format_RGB32);
  picture.fill(Qt::red);
  QImage page(width, height, QImage::Format_RGB32);
  page.fill(Qt::white);
  QPainter painter(&page);
  PaintPage(painter, page.rect(), picture, QLatin1String(words));
  return page;
}

/// The rectangle around all pixels of a page that have this colour, or are of any but white and red if it is none.
QRect AreaOf(const QImage& page, QColor colour) {
  QRect area;
  for (int y = 0; y < page.height(); ++y) {
    for (int x = 0; x < page.width(); ++x) {
      const QColor seen = page.pixelColor(x, y);
      const bool counts = colour.isValid() ? seen == colour : seen != Qt::white && seen != Qt::red;
      if (counts) area |= QRect(x, y, 1, 1);
    }
  }
  return area;
}

TEST(PaintedPage, ThePictureFillsThePageAndKeepsItsShape) {
  const QRect wide = AreaOf(Page(1000, 900, ""), Qt::red);
  EXPECT_EQ(wide, QRect(0, 0, 1000, 500));
  const QRect tall = AreaOf(Page(2000, 500, ""), Qt::red);
  EXPECT_LT(tall.height(), 500);
  EXPECT_NEAR(tall.width(), tall.height() * 2, 2);
  EXPECT_NEAR(tall.center().x(), 1000, 2);
}

TEST(PaintedPage, TheWordsAreBelowThePicture) {
  for (const QSize size : {QSize(1000, 900), QSize(2000, 500)}) {
    const QImage page = Page(size.width(), size.height(), "ANNA, 22.11.26");
    const QRect words = AreaOf(page, QColor());
    EXPECT_GT(words.top(), AreaOf(page, Qt::red).bottom());
    EXPECT_LT(words.bottom(), size.height());
    EXPECT_NEAR(words.center().x(), size.width() / 2, 4);
  }
}

TEST_F(PrintPictureTest, ItAsksWhosePictureItIs) {
  AnswerNextBox({Qt::Key_Escape});
  Print();
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Title, "Print");
}

TEST_F(PrintPictureTest, ThePrintersWindowCanBeCancelled) {
  AnswerNextBox({Qt::Key_Return}, "ANNA");
  AnswerNextBox({Qt::Key_Escape});
  Print();
  EXPECT_EQ(Boxes.size(), 2u);
  EXPECT_EQ(Focused(), &Row(0));
  Enter("fd 10");
  EXPECT_EQ(FormControls().List4.Items(), std::vector<std::string>{"?FD 10"});
}

}  // namespace
}  // namespace zerimo
