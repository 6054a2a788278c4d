#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include "base/failure.h"
#include "pictures/picture_fixture.h"
#include "support/failure_of.h"
#include "support/full_disk.h"

namespace zerimo {

namespace {

/// A GIF of 2 by 2 pixels, red and transparent, with a screen of the given size.
QByteArray SmallGif(int width = 2, int height = 2) {
  QByteArray gif("GIF89a");
  for (const int side : {width, height})
    gif.append(static_cast<char>(side & 0xFF)).append(static_cast<char>(side >> 8));
  gif.append(
      QByteArray::fromHex("800000"                // two colours
                          "ff000000ff00"          // red, green
                          "21f9040100000100"      // colour 1 is transparent
                          "2c000000000200020000"  // 2 by 2 at the corner
                          "02034402050"
                          "03b"));  // 0 1 1 0
  return gif;
}

class PictureFiles : public PictureTest {
 protected:
  std::filesystem::path Path(const char* name) const { return folder.filePath(name).toStdString(); }

  std::filesystem::path Write(const char* name, const QByteArray& content) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return Path(name);
  }

  QByteArray Read(const char* name) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  /// A picture of that size with all kinds of colours.
  static QImage Motley(int width, int height) {
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
      for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x * 7 % 256, y * 5 % 256, x * y % 256));
    }
    return image;
  }

  QTemporaryDir folder;
};

class PictureFormats : public PictureFiles, public ::testing::WithParamInterface<const char*> {};

TEST_P(PictureFormats, StandAtTheTopLeftInTheirOwnSize) {
  const QImage picture = Motley(40, 30);
  ASSERT_TRUE(picture.save(folder.filePath("picture"), GetParam(), 100));
  canvas.Box(Pen(White), {Red, Solid}, {0, 0}, {95, 95});
  canvas.LoadPicture(Path("picture"), Blue);
  EXPECT_EQ(At(40, 0), Blue);
  EXPECT_EQ(At(0, 30), Blue);
  EXPECT_EQ(Count(Blue), 96 * 96 - 40 * 30);
  const QColor shown = canvas.Image().pixelColor(39, 29);
  EXPECT_NEAR(shown.red(), 39 * 7 % 256, 20);
  EXPECT_NEAR(shown.green(), 29 * 5, 20);
}

TEST_P(PictureFormats, TruncatedAreInvalid) {
  ASSERT_TRUE(Motley(40, 30).save(folder.filePath("picture"), GetParam()));
  const QByteArray content = Read("picture");
  for (const double part : {0.99, 0.9, 0.5, 0.1, 0.01, 0.0}) {
    Write("part", content.left(static_cast<qsizetype>(static_cast<double>(content.size()) * part)));
    EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(Path("part"), Blue); }), FailureKind::InvalidPicture) << part;
  }
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_P(PictureFormats, AreKnownByTheirContent) {
  ASSERT_TRUE(Motley(40, 30).save(folder.filePath("picture"), GetParam()));
  std::filesystem::rename(Path("picture"), Path("picture.gif"));
  canvas.LoadPicture(Path("picture.gif"), Blue);
  EXPECT_EQ(At(95, 95), Blue);
}

TEST_P(PictureFormats, LargerThanTheCanvasAreCut) {
  ASSERT_TRUE(Motley(200, 150).save(folder.filePath("picture"), GetParam()));
  canvas.LoadPicture(Path("picture"), Blue);
  EXPECT_EQ(canvas.Image().size(), QSize(96, 96));
  EXPECT_NE(At(95, 95), Blue);
}

TEST_P(PictureFormats, BrokenInAnyPlaceNeverHang) {
  ASSERT_TRUE(Motley(24, 20).save(folder.filePath("picture"), GetParam()));
  const QByteArray content = Read("picture");
  for (qsizetype place = 0; place < content.size(); place += 1 + content.size() / 300) {
    QByteArray broken = content;
    broken[place] = static_cast<char>(broken[place] ^ 0xFF);
    Write("broken", broken);
    SkipOnFailure([&] { canvas.LoadPicture(Path("broken"), Blue); });
    ASSERT_EQ(canvas.Image().size(), QSize(96, 96));
  }
}

INSTANTIATE_TEST_SUITE_P(Each, PictureFormats, ::testing::Values("bmp", "png", "jpg", "ico", "cur"),
                         [](const auto& format) { return std::string(format.param); });

TEST_F(PictureFiles, TransparentPartsOfAGifShowTheBackground) {
  canvas.LoadPicture(Write("a.gif", SmallGif()), Blue);
  EXPECT_EQ(At(0, 0), Red);
  EXPECT_EQ(At(1, 0), Blue);
  EXPECT_EQ(At(0, 1), Blue);
  EXPECT_EQ(At(1, 1), Red);
}

TEST_F(PictureFiles, TransparentPartsOfAPngShowTheBackground) {
  QImage image(10, 10, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  image.setPixel(3, 3, 0xFFFF0000);
  ASSERT_TRUE(image.save(folder.filePath("a.png")));
  canvas.LoadPicture(Path("a.png"), Blue);
  EXPECT_EQ(At(3, 3), Red);
  EXPECT_EQ(At(4, 4), Blue);
}

/// The headers of a bitmap of 8 bits a pixel, with a palette of two colours, and what stands after them.
QByteArray Bitmap(quint32 width, quint32 height, quint32 compression, quint32 codedSize, const QByteArray& pixels) {
  QByteArray bytes;
  const auto add32 = [&bytes](quint32 number) {
    for (int shift = 0; shift < 32; shift += 8) bytes.append(static_cast<char>(number >> shift & 0xFF));
  };
  bytes.append("BM");
  for (const quint32 number : {62U + static_cast<quint32>(pixels.size()), 0U, 62U, 40U, width, height, 0x00080001U,
                               compression, codedSize, 0U, 0U, 2U, 0U, 0x00FF0000U, 0x000000FFU})
    add32(number);
  return bytes + pixels;
}

TEST_F(PictureFiles, ABitmapOfGreatestSizesIsInvalid) {
  for (const quint32 width : {0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
    Write("P.BMP", Bitmap(width, 0x80000000U, 0, 0, {}));
    EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(Path("P.BMP"), Blue); }), FailureKind::InvalidPicture) << width;
  }
}

TEST_F(PictureFiles, ACodedBitmapThatTellsNoSizeIsWholeWithItsEnd) {
  const QByteArray rows = QByteArray::fromHex(
      "0201"
      "0000"
      "0200"
      "0000");
  Write("WHOLE.BMP", Bitmap(2, 2, 1, 0, rows + QByteArray::fromHex("0001")));
  canvas.LoadPicture(Path("WHOLE.BMP"), Blue);
  // The lower row is blue anyway, the upper one red.
  EXPECT_EQ(Count(Blue), 96 * 96 - 2);
  EXPECT_EQ(Count(Red), 2);
  Write("CUT.BMP", Bitmap(2, 2, 1, 0, rows.left(5)));
  EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(Path("CUT.BMP"), Blue); }), FailureKind::InvalidPicture);
}

TEST_F(PictureFiles, ASmallPictureOnAFullDiskFailsAndLeavesTheFormerOne) {
  Write("P.BMP", "former");
  EXPECT_EQ(FailureOnFullDisk(20, [&] { canvas.SavePicture(Path("P.BMP"), 4, 4); }), FailureKind::FileAccess);
  EXPECT_EQ(Read("P.BMP"), "former");
}

TEST_F(PictureFiles, ATruncatedGifIsInvalid) {
  const QByteArray gif = SmallGif();
  for (qsizetype length = 0; length < gif.size() - 1; ++length) {
    Write("a.gif", gif.left(length));
    ASSERT_EQ(FailureOf([&] { canvas.LoadPicture(Path("a.gif"), Blue); }), FailureKind::InvalidPicture) << length;
  }
}

TEST_F(PictureFiles, HugePicturesAreInvalid) {
  EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(Write("a.gif", SmallGif(65535, 65535)), Blue); }),
            FailureKind::InvalidPicture);
  QByteArray bitmap = QByteArray::fromHex("424d00000000000000003600000028000000");
  bitmap.append(QByteArray::fromHex("ffff0000ffff0000010018000000000000000000")).append(QByteArray(100, 0));
  EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(Write("a.bmp", bitmap), Blue); }), FailureKind::InvalidPicture);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_F(PictureFiles, OtherContentIsInvalid) {
  for (const QByteArray& content :
       {QByteArray("GIF"), QByteArray(5000, 'x'), QByteArray("<svg xmlns='http://www.w3.org/2000/svg'/>"),
        QByteArray("P3 2 2 255 0 0 0 0 0 0 0 0 0 0 0 0 "), QByteArray("#define a_width 8\n#define a_height 1\n")}) {
    Write("a.bmp", content);
    EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(Path("a.bmp"), Blue); }), FailureKind::InvalidPicture);
  }
}

TEST_F(PictureFiles, AMissingFileIsNotFound) {
  EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(Path("none.bmp"), Blue); }), FailureKind::FileNotFound);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

TEST_F(PictureFiles, AFolderIsNoPicture) {
  EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(folder.path().toStdString(), Blue); }), FailureKind::FileNotFound);
}

TEST_F(PictureFiles, APipeDoesNotHoldTheSystem) {
  ASSERT_EQ(mkfifo(Path("pipe.bmp").c_str(), 0600), 0);
  EXPECT_EQ(FailureOf([&] { canvas.LoadPicture(Path("pipe.bmp"), Blue); }), FailureKind::FileNotFound);
}

TEST_F(PictureFiles, SavedBitmapsAreTrueBitmaps) {
  canvas.Ellipse(Pen(White), {Red, UpwardDiagonal}, {48, 48}, 40, 30);
  canvas.SavePicture(Path("A.Bmp"), 96, 96);
  EXPECT_EQ(Read("A.Bmp").left(2), "BM");
  EXPECT_EQ(QImage(folder.filePath("A.Bmp")).convertToFormat(QImage::Format_RGB32), canvas.Image());
}

TEST_F(PictureFiles, EndingsChooseTheFormat) {
  for (const auto& [name, format] : std::vector<std::pair<const char*, const char*>>{
           {"a.bmp", "bmp"}, {"a.PNG", "png"}, {"a.jpg", "jpeg"}, {"a.JPEG", "jpeg"}}) {
    canvas.SavePicture(Path(name), 96, 96);
    QFile file(folder.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(QImageReader::imageFormat(&file), format);
  }
}

TEST_F(PictureFiles, AnotherEndingIsRefused) {
  for (const char* name : {"a.tiff", "a", "bmp", ".bmp.x"}) {
    EXPECT_EQ(FailureOf([&] { canvas.SavePicture(Path(name), 96, 96); }), FailureKind::InvalidArgument) << name;
    EXPECT_FALSE(std::filesystem::exists(Path(name)));
  }
}

TEST_F(PictureFiles, OnlyThePartAskedForIsSaved) {
  canvas.Line(Pen(White), {0, 49}, {95, 49});
  canvas.SavePicture(Path("a.png"), 80, 50);
  EXPECT_EQ(QImage(folder.filePath("a.png")), canvas.Image().copy(0, 0, 80, 50));
}

TEST_F(PictureFiles, APartLargerThanTheCanvasIsTheCanvas) {
  canvas.SavePicture(Path("a.png"), 300, 300);
  EXPECT_EQ(QImage(folder.filePath("a.png")).size(), QSize(96, 96));
}

TEST_F(PictureFiles, SavingIntoAFolderThatIsNotThereFails) {
  EXPECT_EQ(FailureOf([&] { canvas.SavePicture(Path("none/a.bmp"), 96, 96); }), FailureKind::FileAccess);
}

TEST_F(PictureFiles, AFailingSaveLeavesTheFormerFile) {
  Write("a.bmp", "former");
  std::filesystem::create_directory(Path("b.bmp"));
  std::ofstream(Path("b.bmp") / "inside") << "former";
  EXPECT_EQ(FailureOf([&] { canvas.SavePicture(Path("b.bmp"), 96, 96); }), FailureKind::FileAccess);
  EXPECT_TRUE(std::filesystem::exists(Path("b.bmp") / "inside"));
  EXPECT_EQ(FailureOf([&] { canvas.SavePicture(Path("a.bmp") / "c.bmp", 96, 96); }), FailureKind::FileAccess);
  EXPECT_EQ(Read("a.bmp"), "former");
}

TEST_F(PictureFiles, ASaveLeavesNoOtherFileBehind) {
  canvas.SavePicture(Path("a.bmp"), 96, 96);
  canvas.SavePicture(Path("a.bmp"), 96, 96);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("a.bmp"));
}

TEST_F(PictureFiles, NamesMayHaveUmlautsAndBlanks) {
  canvas.SavePicture(Path("\xC3\x84pfel und Birnen.bmp"), 96, 96);
  canvas.Clear(Blue);
  canvas.LoadPicture(Path("\xC3\x84pfel und Birnen.bmp"), Blue);
  EXPECT_EQ(Count(Ground), 96 * 96);
}

}  // namespace

}  // namespace zerimo
