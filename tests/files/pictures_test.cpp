#include "files/pictures.h"

#include <sys/stat.h>

#include "base/text.h"
#include "files/files_fixture.h"

namespace zerimo {
namespace {

class PicturesTest : public FilesTest {
 protected:
  void Tick(int times) {
    for (int i = 0; i < times; ++i) Photos.Timer3Tick();
  }
};

TEST_F(PicturesTest, SavePictureWritesABitmapInAppFolder) {
  Primitives.Execute("SAVEPICTURE PIC");
  EXPECT_TRUE(Disk.Has("app/PIC.Bmp"));
}

TEST_F(PicturesTest, SavePictureUsesAFileInAnotherCase) {
  Disk.Write("app/pic.bmp", "former");
  Primitives.Execute("SAVEPICTURE PIC");
  EXPECT_EQ(Disk.Count("app"), 1);
}

TEST_F(PicturesTest, SavePictureWithAFolderFailsInSilence) {
  Primitives.Execute("SAVEPICTURE C:\\X\\PIC");
  EXPECT_TRUE(Desktop.Boxes.empty());
  EXPECT_EQ(Disk.Count("app"), 0);
}

TEST_F(PicturesTest, SavePicturePutsAppFolderInFrontOfAFolderToo) {
  Disk.MakeFolder("app/X");
  Primitives.Execute("SAVEPICTURE X\\PIC");
  EXPECT_TRUE(Disk.Has("app/X/PIC.Bmp"));
}

TEST_F(PicturesTest, AMissingInputIsTold) {
  for (const std::string word : {"SAVEPICTURE", "LOADPICTURE"}) {
    Desktop.Boxes.clear();
    Primitives.Execute(word);
    EXPECT_EQ(Desktop.Boxes, (std::vector{ShownBox{"Required Paramiter Missing After " + word, 2, "Zerimo"}}));
  }
  EXPECT_EQ(Disk.Count("app"), 0);
  EXPECT_TRUE(Loaded.Paths.empty());
}

TEST_F(PicturesTest, LoadPictureTriesAllEndingsAndTheLastStays) {
  for (const char* name : {"app/A.JPG", "app/A.BMP", "app/A.GIF", "app/A.ICO", "app/A.CUR"}) Disk.Write(name, "x");
  Primitives.Execute("LOADPICTURE A");
  EXPECT_EQ(Loaded.Paths, (Texts{InApp("A.CUR"), InApp("A.ICO"), InApp("A.GIF"), InApp("A.BMP"), InApp("A.JPG")}));
}

TEST_F(PicturesTest, OfBmpAndJpgTheJpgStays) {
  Disk.Write("app/A.BMP", "x");
  Disk.Write("app/A.JPG", "x");
  Primitives.Execute("LOADPICTURE A");
  EXPECT_EQ(Loaded.Paths.back(), InApp("A.JPG"));
}

TEST_F(PicturesTest, LoadPictureFindsSmallNames) {
  Disk.Write("app/sea.bmp", "x");
  Primitives.Execute("LOADPICTURE SEA");
  EXPECT_EQ(Loaded.Paths, (Texts{InApp("SEA.BMP")}));
}

TEST_F(PicturesTest, LoadPictureWithAFolderDoesNotUseAppFolder) {
  Disk.Write("work/X/A.GIF", "x");
  Primitives.Execute("LOADPICTURE X\\A");
  EXPECT_EQ(Loaded.Paths, (Texts{"X\\A.GIF"}));
}

TEST_F(PicturesTest, AMissingPictureIsSilent) {
  Primitives.Execute("LOADPICTURE A");
  EXPECT_TRUE(Loaded.Paths.empty());
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_F(PicturesTest, NoneIsANameLikeAnyOther) {
  Disk.Write("app/NONE.BMP", "x");
  Primitives.Execute("LOADPICTURE NONE");
  EXPECT_EQ(Loaded.Paths, (Texts{InApp("NONE.BMP")}));
}

TEST_F(PicturesTest, AFolderOrAPipeIsNoPicture) {
  Disk.MakeFolder("app/A.JPG");
  ASSERT_EQ(mkfifo((Disk.Path / "app/A.BMP").c_str(), 0600), 0);
  Primitives.Execute("LOADPICTURE A");
  EXPECT_TRUE(Loaded.Paths.empty());
}

TEST_F(PicturesTest, ShowPictureFailsWithoutAFile) {
  EXPECT_EQ(FailureOf([&] { Photos.ShowPicture("NONE.JPG"); }), FailureKind::FileNotFound);
}

TEST_F(PicturesTest, SlideShowStartsTheTimer) {
  Primitives.Execute("SLIDESHOW TRIP 1000");
  EXPECT_TRUE(Controls.Timer3.Enabled);
  EXPECT_EQ(Controls.Timer3.Interval, 1000);
  EXPECT_EQ(Photos.SlideBaseName, Place.AppFolder + "/TRIP");
}

TEST_F(PicturesTest, TheIntervalIsEvaluatedAndTheNameIsNot) {
  Primitives.Execute("SLIDESHOW 2*3 500*2");
  EXPECT_EQ(Controls.Timer3.Interval, 1000);
  EXPECT_EQ(Photos.SlideBaseName, Place.AppFolder + "/2*3");
}

TEST_F(PicturesTest, TheIntervalIsRoundedHalfToEven) {
  Primitives.Execute("SLIDESHOW TRIP 500.5");
  EXPECT_EQ(Controls.Timer3.Interval, 500);
}

TEST_F(PicturesTest, TheIntervalMayBeAVariable) {
  Names.SetSlot(1, ":T=250");
  Primitives.Execute("SLIDESHOW TRIP :T");
  EXPECT_EQ(Controls.Timer3.Interval, 250);
}

TEST_F(PicturesTest, AnIntervalBeyond16BitsKeepsTheFormerOne) {
  Controls.Timer3.Interval = 700;
  Primitives.Execute("SLIDESHOW TRIP 32768");
  EXPECT_TRUE(Controls.Timer3.Enabled);
  EXPECT_EQ(Controls.Timer3.Interval, 700);
}

TEST_F(PicturesTest, TheLongestIntervalIs32767) {
  Primitives.Execute("SLIDESHOW TRIP 32767");
  EXPECT_EQ(Controls.Timer3.Interval, 32767);
}

TEST_F(PicturesTest, SlideShowNeedsTwoWords) {
  for (const char* line : {"SLIDESHOW", "SLIDESHOW TRIP"}) {
    Primitives.Execute(line);
    EXPECT_FALSE(Controls.Timer3.Enabled) << line;
  }
  EXPECT_EQ(Photos.SlideBaseName, "");
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_F(PicturesTest, AShowEndsAtTheFirstMissingNumber) {
  Disk.Write("app/TRIP1.JPG", "x");
  Disk.Write("app/trip2.jpg", "x");
  Primitives.Execute("SLIDESHOW TRIP 1000");
  Tick(2);
  EXPECT_EQ(Loaded.Paths.size(), 2U);
  EXPECT_EQ(Photos.SlideCounter, 2);
  EXPECT_TRUE(Controls.Timer3.Enabled);
  Tick(1);
  EXPECT_EQ(Loaded.Paths.size(), 2U);
  EXPECT_EQ(Photos.SlideCounter, 0);
  EXPECT_FALSE(Controls.Timer3.Enabled);
  EXPECT_TRUE(Desktop.Boxes.empty());
}

TEST_F(PicturesTest, TheNextShowBeginsAt1Again) {
  Disk.Write("app/TRIP1.JPG", "x");
  Primitives.Execute("SLIDESHOW TRIP 1000");
  Tick(2);
  Primitives.Execute("SLIDESHOW TRIP 1000");
  Tick(1);
  EXPECT_EQ(Photos.SlideCounter, 1);
}

TEST_F(PicturesTest, TheNameOfASlideIsInCapitals) {
  Primitives.Execute("SLIDESHOW trip 1000");
  Tick(1);
  EXPECT_EQ(Photos.SlideFileName, UpperCase(Place.AppFolder) + "/TRIP1.JPG");
}

TEST_F(PicturesTest, ASecondShowKeepsTheCounter) {
  Disk.Write("app/TRIP1.JPG", "x");
  Disk.Write("app/SEA2.JPG", "x");
  Primitives.Execute("SLIDESHOW TRIP 1000");
  Tick(1);
  Primitives.Execute("SLIDESHOW SEA 500");
  Tick(1);
  EXPECT_EQ(Photos.SlideFileName, UpperCase(Place.AppFolder) + "/SEA2.JPG");
  EXPECT_EQ(Photos.SlideCounter, 2);
}

TEST_F(PicturesTest, ACounterAtItsLimitEndsTheShow) {
  Primitives.Execute("SLIDESHOW TRIP 1000");
  Photos.SlideCounter = 32767;
  Tick(1);
  EXPECT_EQ(Photos.SlideCounter, 0);
  EXPECT_FALSE(Controls.Timer3.Enabled);
}

}  // namespace
}  // namespace zerimo
