#include "desktop/extensions/gallery.h"

#include <QListWidget>
#include <QTest>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class GalleryTest : public ExtensionsTest {
 protected:
  static QListWidget* List() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* list = widget->isVisible() ? widget->findChild<QListWidget*>() : nullptr;
      if (list != nullptr && list->accessibleName() == "Samples") return list;
    }
    return nullptr;
  }
  void Open() { Press(Qt::Key_G, Qt::ControlModifier); }
};

TEST_F(GalleryTest, EverySampleWithAPictureIsShown) {
  QStringList names;
  bool allPictures = true;
  WhileABoxStands(
      [&] {
        for (int row = 0; row < List()->count(); ++row) {
          names += List()->item(row)->text();
          allPictures = allPictures && !List()->item(row)->icon().pixmap(176, 132).isNull();
        }
      },
      Qt::Key_Escape);
  Open();
  EXPECT_GE(names.size(), 26);
  EXPECT_TRUE(names.contains("HOUSE"));
  EXPECT_TRUE(allPictures);
}

TEST_F(GalleryTest, EnterLoadsTheChosenSample) {
  WriteFile("HOUSE.ZRM", "TO HOUSE\r\nFD 10\r\nEND\r\n");
  WhileABoxStands([] { List()->setCurrentItem(List()->findItems("HOUSE", Qt::MatchExactly).first()); });
  Open();
  EXPECT_EQ(FormControls().List3.Items(), std::vector<std::string>{"TO HOUSE"});
  EXPECT_TRUE(FormControls().List4.Items().empty());
}

TEST_F(GalleryTest, EscLoadsNothing) {
  WriteFile("AQUARIUM.ZRM", "TO AQUARIUM\r\nEND\r\n");
  AnswerNextBox({Qt::Key_Escape});
  Open();
  EXPECT_TRUE(FormControls().List3.Items().empty());
}

}  // namespace
}  // namespace zerimo
