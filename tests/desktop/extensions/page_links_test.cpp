#include "desktop/extensions/page_links.h"

#include <QAbstractTextDocumentLayout>
#include <QListWidget>
#include <QTest>
#include <QTextBlock>
#include <QTextEdit>

#include "desktop/extensions/extensions_fixture.h"

namespace zerimo {
namespace {

class PageLinksTest : public ExtensionsTest {
 protected:
  PageLinksTest() {
    WriteFile("ZMHELP/FD", "FD\r\nFD moves, as BK does.\r\nSee also\r\nBK (SUM NONE\r\n");
    WriteFile("ZMHELP/BK", "BK moves back.\r\n");
    WriteFile("ZMHELP/(SUM", "SUM adds.\r\n");
    Enter("help fd");
    QApplication::processEvents();
  }

  QTextEdit& Page() { return WidgetAs<QTextEdit>(FormControls().RichTextBox1); }
  std::string Text() { return Page().toPlainText().trimmed().toStdString(); }

  QPoint PlaceOf(const char* words, int letter) {
    QTextCursor cursor = Page().document()->find(QString::fromLatin1(words), 0, QTextDocument::FindCaseSensitively);
    cursor.setPosition(cursor.selectionStart() + letter);
    return Page().cursorRect(cursor).center() + QPoint(3, 0);
  }
  void Click(QPoint place) { QTest::mouseClick(Page().viewport(), Qt::LeftButton, {}, place); }
};

TEST_F(PageLinksTest, AClickOnAWordUnderSeeAlsoShowsItsPage) {
  Click(PlaceOf("BK (SUM", 1));
  EXPECT_EQ(Text(), "BK moves back.");
  EXPECT_EQ(FormControls().File1.FileName, "BK");
  EXPECT_EQ(WidgetAs<QListWidget>(FormControls().File1).currentItem()->text(), "BK");
}

TEST_F(PageLinksTest, AClickOnALinkLeavesTheFocusOnTheRow) {
  const QPoint link = PlaceOf("BK (SUM", 1);
  QTest::mouseMove(Page().viewport(), link);
  Click(link);
  EXPECT_EQ(Focused(), &Row(1));
  const QPoint text = PlaceOf("moves", 1);
  QTest::mouseMove(Page().viewport(), text);
  Click(text);
  EXPECT_EQ(Focused(), &Page());
}

TEST_F(PageLinksTest, AWordMayBeginWithABracket) {
  Click(PlaceOf("(SUM", 0));
  EXPECT_EQ(Text(), "SUM adds.");
}

TEST_F(PageLinksTest, OtherWordsAreNoLinks) {
  const std::string page = Text();
  Click(PlaceOf("BK does", 0));
  Click(PlaceOf("NONE", 1));
  Click(PlaceOf("NONE", 1) + QPoint(200, 0));
  EXPECT_EQ(Text(), page);
}

TEST_F(PageLinksTest, CtrlEnterFollowsTheLinkAtTheCaret) {
  Page().setFocus();
  QTextCursor caret = Page().document()->find("BK (SUM");
  caret.setPosition(caret.selectionStart());
  Page().setTextCursor(caret);
  Press(Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Text(), "BK moves back.");
}

TEST_F(PageLinksTest, AWordThatIsBeingMarkedIsNotFollowed) {
  const std::string page = Text();
  QTest::mousePress(Page().viewport(), Qt::LeftButton, {}, PlaceOf("BK (SUM", 0));
  QTest::mouseMove(Page().viewport(), PlaceOf("BK (SUM", 1));
  QTextCursor marked = Page().textCursor();
  marked.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
  Page().setTextCursor(marked);
  QTest::mouseRelease(Page().viewport(), Qt::LeftButton, {}, PlaceOf("BK (SUM", 1));
  EXPECT_EQ(Text(), page);
}

TEST_F(PageLinksTest, ThePageThatF11SavesHasNoUnderlines) {
  const std::string document = FormControls().RichTextBox1.Document;
  Enter("rt 1");
  EXPECT_EQ(FormControls().RichTextBox1.Document, document);
}

}  // namespace
}  // namespace zerimo
