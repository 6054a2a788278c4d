#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTest>
#include <ostream>

#include "desktop/desktop_fixture.h"
#include "desktop/dialogs.h"

namespace zerimo {
namespace {

using BoxesTest = DesktopTest;
using Texts = std::vector<std::string>;

TEST_F(BoxesTest, ABoxWithNoTitleOfTheSystemsOwnShowsTheProgramsName) {
  AnswerNextBox({Qt::Key_Return});
  Enter("message \"hi\"");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Title, "Zerimo");
  EXPECT_EQ(Boxes[0].Text, "HI");
  EXPECT_EQ(Boxes[0].Buttons, Texts{"OK"});
  EXPECT_TRUE(Boxes[0].Icon.isNull());
}

TEST_F(BoxesTest, TheFocusIsOnTheNextRowAfterABox) {
  AnswerNextBox({Qt::Key_Return});
  Enter("xcor");
  EXPECT_EQ(Focused(), &Row(1));
}

TEST_F(BoxesTest, ByeAnsweredYesEndsTheSession) {
  AnswerNextBox({Qt::Key_Return});
  Enter("bye");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Buttons, (Texts{"Yes", "No"}));
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(session->ExitStatus(), 0);
}

TEST_F(BoxesTest, ByeAnsweredNoByTheKeyboardGoesOn) {
  AnswerNextBox({Qt::Key_Right, Qt::Key_Space});
  Enter("bye");
  EXPECT_FALSE(session->HasEnded());
  EXPECT_EQ(Focused(), &Row(1));
}

TEST_F(BoxesTest, EscapeInABoxWithYesAndNoIsNo) {
  AnswerNextBox({Qt::Key_Escape});
  Enter("bye");
  EXPECT_EQ(Boxes.size(), 1u);
  EXPECT_FALSE(session->HasEnded());
}

TEST_F(BoxesTest, QuitEndsWithoutAQuestion) {
  Enter("quit");
  EXPECT_TRUE(session->HasEnded());
  EXPECT_EQ(session->ExitStatus(), 0);
}

TEST_F(BoxesTest, AFailedLoadOffersThreeButtonsInOrder) {
  AnswerNextBox({Qt::Key_Escape});
  Enter("load nothing");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Buttons, (Texts{"Abort", "Retry", "Ignore"}));
  EXPECT_EQ(Boxes[0].Title, "Zerimo");
}

TEST_F(BoxesTest, TheCreditsStandOnLinesOfTheirOwnUnderTheirTitleWithAnIcon) {
  AnswerNextBox({Qt::Key_Return});
  Enter("show developer");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Title, "Zerimo Team");
  EXPECT_FALSE(Boxes[0].Icon.isNull());
  EXPECT_EQ(Boxes[0].Text,
            "This Product is Developed by\n----------------------------------\n*Mr. Dorrin Pask\n*Mr. Hadric Moll\n"
            "*Mr. Ostrane Velk\n*Mr. Ilmar Tessen");
}

TEST_F(BoxesTest, TextThatLooksLikeMarkupIsShownAsItStands) {
  const MessageDialog dialog(Window(), "<b>1</b>", box::Plain, "Zerimo");
  EXPECT_EQ(dialog.textFormat(), Qt::PlainText);
}

TEST_F(BoxesTest, ALongTextCanBeScrolled) {
  const QString text = QString("[SQUARE]\n").repeated(300);
  MessageDialog dialog(Window(), text, box::Plain, "Zerimo");
  auto* area = dialog.findChild<QPlainTextEdit*>();
  ASSERT_NE(area, nullptr);
  EXPECT_EQ(area->toPlainText(), text);
  EXPECT_LT(dialog.sizeHint().height(), 600);
}

struct StyleCase {
  int Style;
  Answer WhenClosed;
  QMessageBox::Icon Icon;
};

void PrintTo(const StyleCase& one, std::ostream* out) { *out << "style " << one.Style; }

class BoxStyles : public DesktopTest, public testing::WithParamInterface<StyleCase> {};

TEST_P(BoxStyles, HaveTheirAnswerWhenClosedAndTheirIcon) {
  MessageDialog dialog(Window(), "text", GetParam().Style, "Zerimo");
  dialog.show();
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_EQ(dialog.Chosen(), GetParam().WhenClosed);
  EXPECT_EQ(dialog.icon(), GetParam().Icon);
}

INSTANTIATE_TEST_SUITE_P(All, BoxStyles,
                         testing::Values(StyleCase{box::Plain, Answer::OK, QMessageBox::NoIcon},
                                         StyleCase{box::AbortRetryIgnore, Answer::Ignore, QMessageBox::NoIcon},
                                         StyleCase{box::YesNo, Answer::No, QMessageBox::NoIcon},
                                         StyleCase{box::Critical, Answer::OK, QMessageBox::Critical},
                                         StyleCase{box::Information, Answer::OK, QMessageBox::Information},
                                         StyleCase{box::YesNo + box::Information, Answer::No,
                                                   QMessageBox::Information}));

TEST_F(BoxesTest, TheLastStateIsShownBehindABox) {
  Enter("show dia");
  QString shown;
  WhileABoxStands([&] { shown = WidgetAs<QLabel>(FormControls().Label19).text(); });
  Enter("message 5");
  // Where the run is: on the only line of the second typed line's procedure.
  EXPECT_EQ(shown, ".#TEMP$2-2");
  EXPECT_EQ(FormControls().Label19.Caption, ".");
}

TEST_F(BoxesTest, KeysMeantForTheWindowAreDroppedWhileABoxStands) {
  WhileABoxStands([this] { QTest::keyClicks(&Row(0), "abc"); });
  Enter("xcor");
  QTest::qWait(20);
  EXPECT_EQ(Row(0).text(), "xcor");
  EXPECT_EQ(Row(1).text(), "");
}

TEST_F(BoxesTest, AClickOnTheWindowBringsTheBoxForward) {
  QWidget* active = nullptr;
  WhileABoxStands([&] {
    Window().activateWindow();
    QTest::mouseClick(&Row(0), Qt::LeftButton);
    QTest::qWait(20);
    active = QApplication::activeWindow();
  });
  Enter("xcor");
  EXPECT_NE(active, &Window());
}

TEST_F(BoxesTest, ASoundBoxFollowsTheBeep) {
  AnswerNextBox({Qt::Key_Return});
  Enter("sound");
  ASSERT_EQ(Boxes.size(), 1u);
  EXPECT_EQ(Boxes[0].Text, "Sound");
}

}  // namespace
}  // namespace zerimo
