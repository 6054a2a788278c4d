#include "batch/dumps.h"

#include <gtest/gtest.h>

#include "in_memory_session.h"

namespace zerimo::batch {
namespace {

class DumpsTest : public testing::Test {
 protected:
  DumpsTest() { form1.Load(); }

  std::string Control(const std::string& name) {
    return DumpOf(action::DumpControl{form1.FindControl(name), form1.FindTimer(name)}).Finished();
  }

  InMemorySession world;
  Form1& form1 = world.Session.form1;
};

TEST_F(DumpsTest, StoreEndsAtTheFirstEmptyLine) {
  form1.interpreter.store.SetLine(1, "TO A");
  form1.interpreter.store.SetLine(2, "END");
  form1.interpreter.store.SetLine(4, "STALE");
  EXPECT_EQ(DumpOf(form1, action::DumpKind::Store).Finished(),
            R"({"event":"dump","what":"store","lines":["TO A","END"]})");
}

TEST_F(DumpsTest, StoreAllHasEveryLineThatIsNotEmpty) {
  form1.interpreter.store.SetLine(1, "TO A");
  form1.interpreter.store.SetLine(2000, "STALE");
  EXPECT_EQ(DumpOf(form1, action::DumpKind::StoreAll).Finished(),
            R"({"event":"dump","what":"storeall","lines":{"1":"TO A","2000":"STALE"}})");
}

TEST_F(DumpsTest, VariablesHaveTheirSlots) {
  form1.interpreter.variables.SetSlot(1, "X=5");
  form1.interpreter.variables.SetSlot(2, " ");
  form1.interpreter.variables.SetSlot(500, "A.:N=1");
  EXPECT_EQ(DumpOf(form1, action::DumpKind::Variables).Finished(),
            R"({"event":"dump","what":"variables","slots":{"1":"X=5","2":" ","500":"A.:N=1"}})");
}

TEST_F(DumpsTest, StateHasItsKeysInOrder) {
  EXPECT_EQ(DumpOf(form1, action::DumpKind::State).Finished(),
            R"({"event":"dump","what":"state","CtrlStr":".","CurProcName":"","FileDataCount":0,"DetailsOn":false,)"
            R"("TempProcNo":0,"OverflowCount":0,"LastTypedLine":"","RepeatCounterName":"","RepeatLabelName":"",)"
            R"("TurtleX":7680,"TurtleY":5760,"TurtleDir":0,"Resolution":50,"FenceMode":1,"PenState":1,"PenColor":15,)"
            R"("BGColor":8388736,"CoordinatesOn":false,"CurrentFileName":"","SlideBaseName":"","SlideCounter":0,)"
            R"("SlideFileName":"","Focus":""})");
}

TEST_F(DumpsTest, FocusIsTheNameOfTheControlThatHasIt) {
  form1.controls.Focus.SetFocus(form1.controls.Text1[2]);
  EXPECT_TRUE(DumpOf(form1, action::DumpKind::State).Finished().ends_with(R"json("Focus":"Text1(2)"})json"));
}

TEST_F(DumpsTest, TextBoxHasItsProperties) {
  form1.controls.Text1[1].Text = "FD 10";
  EXPECT_EQ(
      Control("Text1(1)"),
      R"json({"event":"dump","what":"control","name":"Text1(1)","Visible":true,"Left":240,"Top":360,)json"
      R"json("Width":15360,"Height":375,"Text":"FD 10","BackColor":14090240,"ForeColor":255,"Font.Size":15.75})json");
}

TEST_F(DumpsTest, SurfaceHasItsProperties) {
  EXPECT_EQ(Control("Picture1"),
            R"({"event":"dump","what":"control","name":"Picture1","Visible":true,"Left":0,"Top":0,"Width":15360,)"
            R"("Height":9585,"BackColor":8388736,"ForeColor":16777215,"FillColor":0,"FillStyle":0,"DrawMode":13,)"
            R"("DrawWidth":4,"ScaleMode":1,"CurrentX":0,"CurrentY":0,"Font.Size":12,"ToolTipText":""})");
}

TEST_F(DumpsTest, TimerHasItsProperties) {
  EXPECT_EQ(Control("Timer4"), R"({"event":"dump","what":"control","name":"Timer4","Enabled":false,"Interval":1000})");
}

TEST_F(DumpsTest, LightLineHasItsEnds) {
  EXPECT_EQ(Control("Line6"),
            R"({"event":"dump","what":"control","name":"Line6","Visible":false,"X1":0,"Y1":5760,"X2":15360,"Y2":5760,)"
            R"("BorderColor":65535})");
}

TEST_F(DumpsTest, ListHasItsItems) {
  form1.controls.List4.Add("?FD 10");
  EXPECT_NE(Control("List4").find(R"("Items":["?FD 10"],"BackColor")"), std::string::npos);
}

TEST_F(DumpsTest, FileListHasItsNameBeforeItsPath) {
  form1.controls.File1.FileName = "FD";
  form1.controls.File1.Path = "ZMHELP\\";
  EXPECT_TRUE(Control("File1").ends_with(R"("Items":[],"FileName":"FD","Path":"ZMHELP\\"})"));
}

TEST_F(DumpsTest, OtherKindsHaveWhatIsTheirs) {
  EXPECT_TRUE(Control("HScroll2(0)").ends_with(R"("Value":255})"));
  EXPECT_NE(Control("Check1").find(R"("Caption":"Co-ordinates","Value":0)"), std::string::npos);
  EXPECT_NE(Control("Form1").find(R"("Caption":"Zerimo")"), std::string::npos);
  EXPECT_NE(Control("Label14").find(R"("Caption":"Apply","BackColor":16777215)"), std::string::npos);
  EXPECT_TRUE(Control("Shape5").ends_with(R"("BorderColor":255})"));
}

}  // namespace
}  // namespace zerimo::batch
