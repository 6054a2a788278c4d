#include "files/pictures.h"

#include <sys/stat.h>

#include "base/text.h"
#include "files/files_fixture.h"

namespace zerimo {
namespace {

class PicturesTest : public FilesTest {
 protected:
  void Tick(int times) {
    for (int i = 0; i < times; ++i) pictures.Timer3Tick();
  }
};

TEST_F(PicturesTest, SavePictureWritesABitmapInAppFolder) {
  dispatch.Execute("SAVEPICTURE PIC");
  EXPECT_TRUE(Temp.Has("app/PIC.Bmp"));
}

TEST_F(PicturesTest, SavePictureUsesAFileInAnotherCase) {
  Temp.Write("app/pic.bmp", "former");
  dispatch.Execute("SAVEPICTURE PIC");
  EXPECT_EQ(Temp.Count("app"), 1);
}

TEST_F(PicturesTest, SavePictureWithAFolderFailsInSilence) {
  dispatch.Execute("SAVEPICTURE C:\\X\\PIC");
  EXPECT_TRUE(services.Boxes.empty());
  EXPECT_EQ(Temp.Count("app"), 0);
}

TEST_F(PicturesTest, SavePicturePutsAppFolderInFrontOfAFolderToo) {
  Temp.MakeFolder("app/X");
  dispatch.Execute("SAVEPICTURE X\\PIC");
  EXPECT_TRUE(Temp.Has("app/X/PIC.Bmp"));
}

TEST_F(PicturesTest, AMissingInputIsReported) {
  for (const std::string word : {"SAVEPICTURE", "LOADPICTURE"}) {
    services.Boxes.clear();
    dispatch.Execute(word);
    EXPECT_EQ(services.Boxes, (std::vector{ShownBox{"Required Paramiter Missing After " + word, 2, "Zerimo"}}));
  }
  EXPECT_EQ(Temp.Count("app"), 0);
  EXPECT_TRUE(Loaded.Paths.empty());
}

TEST_F(PicturesTest, LoadPictureTriesAllEndingsAndTheLastStays) {
  for (const char* name : {"app/A.JPG", "app/A.BMP", "app/A.GIF", "app/A.ICO", "app/A.CUR"}) Temp.Write(name, "x");
  dispatch.Execute("LOADPICTURE A");
  EXPECT_EQ(Loaded.Paths, (Texts{InApp("A.CUR"), InApp("A.ICO"), InApp("A.GIF"), InApp("A.BMP"), InApp("A.JPG")}));
}

TEST_F(PicturesTest, OfBmpAndJpgTheJpgStays) {
  Temp.Write("app/A.BMP", "x");
  Temp.Write("app/A.JPG", "x");
  dispatch.Execute("LOADPICTURE A");
  EXPECT_EQ(Loaded.Paths.back(), InApp("A.JPG"));
}

TEST_F(PicturesTest, LoadPictureFindsSmallNames) {
  Temp.Write("app/sea.bmp", "x");
  dispatch.Execute("LOADPICTURE SEA");
  EXPECT_EQ(Loaded.Paths, (Texts{InApp("SEA.BMP")}));
}

TEST_F(PicturesTest, LoadPictureWithAFolderDoesNotUseAppFolder) {
  Temp.Write("work/X/A.GIF", "x");
  dispatch.Execute("LOADPICTURE X\\A");
  EXPECT_EQ(Loaded.Paths, (Texts{"X\\A.GIF"}));
}

TEST_F(PicturesTest, AMissingPictureIsSilent) {
  dispatch.Execute("LOADPICTURE A");
  EXPECT_TRUE(Loaded.Paths.empty());
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(PicturesTest, NoneIsANameLikeAnyOther) {
  Temp.Write("app/NONE.BMP", "x");
  dispatch.Execute("LOADPICTURE NONE");
  EXPECT_EQ(Loaded.Paths, (Texts{InApp("NONE.BMP")}));
}

TEST_F(PicturesTest, AFolderOrAPipeIsNoPicture) {
  Temp.MakeFolder("app/A.JPG");
  ASSERT_EQ(mkfifo((Temp.Path / "app/A.BMP").c_str(), 0600), 0);
  dispatch.Execute("LOADPICTURE A");
  EXPECT_TRUE(Loaded.Paths.empty());
}

TEST_F(PicturesTest, ShowPictureFailsWithoutAFile) {
  EXPECT_EQ(FailureOf([&] { pictures.ShowPicture("NONE.JPG"); }), FailureKind::FileNotFound);
}

TEST_F(PicturesTest, SlideShowStartsTheTimer) {
  dispatch.Execute("SLIDESHOW TRIP 1000");
  EXPECT_TRUE(controls.Timer3.Enabled);
  EXPECT_EQ(controls.Timer3.Interval, 1000);
  EXPECT_EQ(pictures.SlideBaseName, folders.AppFolder + "/TRIP");
}

TEST_F(PicturesTest, TheIntervalIsEvaluatedAndTheNameIsNot) {
  dispatch.Execute("SLIDESHOW 2*3 500*2");
  EXPECT_EQ(controls.Timer3.Interval, 1000);
  EXPECT_EQ(pictures.SlideBaseName, folders.AppFolder + "/2*3");
}

TEST_F(PicturesTest, TheIntervalIsRoundedHalfToEven) {
  dispatch.Execute("SLIDESHOW TRIP 500.5");
  EXPECT_EQ(controls.Timer3.Interval, 500);
}

TEST_F(PicturesTest, TheIntervalMayBeAVariable) {
  variables.SetSlot(1, ":T=250");
  dispatch.Execute("SLIDESHOW TRIP :T");
  EXPECT_EQ(controls.Timer3.Interval, 250);
}

TEST_F(PicturesTest, AnIntervalBeyond16BitsKeepsTheFormerOne) {
  controls.Timer3.Interval = 700;
  dispatch.Execute("SLIDESHOW TRIP 32768");
  EXPECT_TRUE(controls.Timer3.Enabled);
  EXPECT_EQ(controls.Timer3.Interval, 700);
}

TEST_F(PicturesTest, TheLongestIntervalIs32767) {
  dispatch.Execute("SLIDESHOW TRIP 32767");
  EXPECT_EQ(controls.Timer3.Interval, 32767);
}

TEST_F(PicturesTest, SlideShowNeedsTwoWords) {
  for (const char* line : {"SLIDESHOW", "SLIDESHOW TRIP"}) {
    dispatch.Execute(line);
    EXPECT_FALSE(controls.Timer3.Enabled) << line;
  }
  EXPECT_EQ(pictures.SlideBaseName, "");
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(PicturesTest, AShowEndsAtTheFirstMissingNumber) {
  Temp.Write("app/TRIP1.JPG", "x");
  Temp.Write("app/trip2.jpg", "x");
  dispatch.Execute("SLIDESHOW TRIP 1000");
  Tick(2);
  EXPECT_EQ(Loaded.Paths.size(), 2U);
  EXPECT_EQ(pictures.SlideCounter, 2);
  EXPECT_TRUE(controls.Timer3.Enabled);
  Tick(1);
  EXPECT_EQ(Loaded.Paths.size(), 2U);
  EXPECT_EQ(pictures.SlideCounter, 0);
  EXPECT_FALSE(controls.Timer3.Enabled);
  EXPECT_TRUE(services.Boxes.empty());
}

TEST_F(PicturesTest, TheNextShowBeginsAt1Again) {
  Temp.Write("app/TRIP1.JPG", "x");
  dispatch.Execute("SLIDESHOW TRIP 1000");
  Tick(2);
  dispatch.Execute("SLIDESHOW TRIP 1000");
  Tick(1);
  EXPECT_EQ(pictures.SlideCounter, 1);
}

TEST_F(PicturesTest, TheNameOfASlideIsInCapitals) {
  dispatch.Execute("SLIDESHOW trip 1000");
  Tick(1);
  EXPECT_EQ(pictures.SlideFileName, UpperCase(folders.AppFolder) + "/TRIP1.JPG");
}

TEST_F(PicturesTest, ASecondShowKeepsTheCounter) {
  Temp.Write("app/TRIP1.JPG", "x");
  Temp.Write("app/SEA2.JPG", "x");
  dispatch.Execute("SLIDESHOW TRIP 1000");
  Tick(1);
  dispatch.Execute("SLIDESHOW SEA 500");
  Tick(1);
  EXPECT_EQ(pictures.SlideFileName, UpperCase(folders.AppFolder) + "/SEA2.JPG");
  EXPECT_EQ(pictures.SlideCounter, 2);
}

TEST_F(PicturesTest, ACounterAtItsLimitEndsTheShow) {
  dispatch.Execute("SLIDESHOW TRIP 1000");
  pictures.SlideCounter = 32767;
  Tick(1);
  EXPECT_EQ(pictures.SlideCounter, 0);
  EXPECT_FALSE(controls.Timer3.Enabled);
}

}  // namespace
}  // namespace zerimo
