#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include "desktop/desktop_fixture.h"
#include "desktop/list_view.h"

namespace zerimo {
namespace {

class ListEntriesTest : public testing::Test {
 protected:
  ListBox list{"List4"};
  ListEntries entries{list};
};

TEST_F(ListEntriesTest, AppendedEntriesAreReportedAsInserted) {
  list.Add("A");
  entries.Sync();
  QSignalSpy inserted(&entries, &QAbstractItemModel::rowsInserted);
  QSignalSpy reset(&entries, &QAbstractItemModel::modelReset);
  list.Add("B");
  list.Add("C");
  EXPECT_TRUE(entries.Sync());
  ASSERT_EQ(inserted.count(), 1);
  EXPECT_EQ(inserted[0][1].toInt(), 1);
  EXPECT_EQ(inserted[0][2].toInt(), 2);
  EXPECT_EQ(reset.count(), 0);
}

TEST_F(ListEntriesTest, AClearedListStartsAnew) {
  list.Add("A");
  entries.Sync();
  list.Clear();
  list.Add("B");
  entries.Sync();
  ASSERT_EQ(entries.rowCount(), 1);
  EXPECT_EQ(entries.index(0, 0).data().toString(), "B");
}

TEST_F(ListEntriesTest, NothingNewIsNothingToDo) {
  list.Add("A");
  entries.Sync();
  EXPECT_FALSE(entries.Sync());
}

TEST_F(ListEntriesTest, AllEntriesAreAsWideAsTheWidest) {
  list.Add("A");
  entries.Sync();
  const int before = entries.index(0, 0).data(Qt::SizeHintRole).toSize().width();
  list.Add("A LONGER ENTRY THAN THE FIRST");
  entries.Sync();
  EXPECT_GT(entries.index(0, 0).data(Qt::SizeHintRole).toSize().width(), before);
}

class ListsTest : public DesktopTest {
 protected:
  QListView& History() { return WidgetAs<QListView>(FormControls().List4); }
};

TEST_F(ListsTest, AListThatNobodyLooksAtIsNotFilled) {
  bool filled = false;
  FormControls().List1.Fill = [&] {
    filled = true;
    return std::vector<std::string>{"1"};
  };
  FormControls().List1.FillLater();
  session->Deliver([](Form1&) {});
  EXPECT_FALSE(filled);
}

TEST_F(ListsTest, AListIsFilledWhenItsPanelOpens) {
  FormControls().List1.Fill = [] { return std::vector<std::string>{" 1  TO A"}; };
  FormControls().List1.FillLater();
  session->Deliver([](Form1& form1) { form1.controls.Frame1.Show(); });
  EXPECT_EQ(WidgetAs<QListView>(FormControls().List1).model()->index(0, 0).data().toString(), " 1  TO A");
}

TEST_F(ListsTest, AScreenReaderHearsWhatAListHolds) {
  const QWidget& variables = WidgetOf(FormControls().List2);
  Enter("make \"n 5");
  const auto told = [&] { return variables.accessibleDescription().toStdString(); };
  EXPECT_EQ(told(), "The variables with their values.");
  Enter("show dia");
  EXPECT_EQ(told(), "The variables with their values. Entries: 1. Last: :N=5");
  Enter("make \"side 10");
  EXPECT_EQ(told(), "The variables with their values. Entries: 2. Last: :SIDE=10");
}

TEST_F(ListsTest, TheHistoryOpensAtItsEnd) {
  session->Deliver([](Form1& form1) {
    for (int entry = 0; entry < 5000; ++entry) form1.controls.List4.Add("?RT 1");
  });
  Press(Qt::Key_F3);
  const QScrollBar& bar = *History().verticalScrollBar();
  EXPECT_GT(bar.maximum(), 0);
  EXPECT_EQ(bar.value(), bar.maximum());
  Enter("print \"x\"");
  EXPECT_EQ(bar.value(), bar.maximum());
}

TEST_F(ListsTest, AReaderInTheHistoryStaysWhereHeIs) {
  session->Deliver([](Form1& form1) {
    for (int entry = 0; entry < 500; ++entry) form1.controls.List4.Add("?RT 1");
  });
  Press(Qt::Key_F3);
  History().verticalScrollBar()->setValue(7);
  Enter("print \"x\"");
  EXPECT_EQ(History().verticalScrollBar()->value(), 7);
}

TEST_F(ListsTest, TheLastEntryOfTheHistoryIsNotHiddenByTheRows) {
  Press(Qt::Key_F3);
  EXPECT_FALSE(History().geometry().intersects(WidgetOf(FormControls().Picture3).geometry()));
}

TEST_F(ListsTest, WithoutTheRowsTheHistoryIsAsHighAsItSays) {
  Press(Qt::Key_F4);
  session->Deliver([](Form1& form1) { form1.controls.List4.Show(); });
  EXPECT_EQ(History().height(), 768 - 129 + 13);
}

TEST_F(ListsTest, AClickOnTheHistoryHasNoVisibleEffect) {
  Enter("rt 1");
  Press(Qt::Key_F3);
  QTest::mouseClick(History().viewport(), Qt::LeftButton, {}, {20, 8});
  EXPECT_EQ(Row(1).text(), "");
  EXPECT_EQ(Row(2).text(), "");
}

TEST_F(ListsTest, TheHistoryIsBoldAndReadable) {
  EXPECT_TRUE(History().font().bold());
  EXPECT_EQ(History().font().pixelSize(), 16);
}

}  // namespace
}  // namespace zerimo
