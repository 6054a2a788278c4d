#include <gtest/gtest.h>

#include <QImage>
#include <algorithm>
#include <array>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <sstream>

#include "support/batch_run.h"

namespace zerimo {

namespace {

const std::filesystem::path sourceFolder = ZERIMO_SOURCE_DIR;
const std::filesystem::path sampleFolder = sourceFolder / "samples";
const std::filesystem::path pictureFolder = sourceFolder / "docs" / "images" / "samples";
const std::filesystem::path goldenFolder = sourceFolder / "tests" / "samples";

/// A sample, and how many pixels in a thousand may differ from its picture: none, except that letters depend on the
/// version of the font, and a JPEG picture on that of its reader.
struct Sample {
  const char* Name;
  int LooseThousandths = 0;

  friend void PrintTo(const Sample& sample, std::ostream* stream) { *stream << sample.Name; }
};

constexpr std::array samples = {
    Sample{"AQUARIUM"}, Sample{"BOAT"},      Sample{"CARD", 30}, Sample{"CHESS"},  Sample{"CIRCLES"}, Sample{"CLOCK"},
    Sample{"COLORS"},   Sample{"DRAGON"},    Sample{"FLOWER"},   Sample{"GASKET"}, Sample{"GRAPH"},   Sample{"HILLS"},
    Sample{"HOUSE"},    Sample{"PATTERNS"},  Sample{"POLYGONS"}, Sample{"QUIZ"},   Sample{"RAINBOW"}, Sample{"ROSETTE"},
    Sample{"SHELL"},    Sample{"SLIDES", 5}, Sample{"SNOW"},     Sample{"SPIRAL"}, Sample{"SQUARE"},  Sample{"STARS"},
    Sample{"TRAFFIC"},  Sample{"TREE"}};

/// In a loose comparison, a pixel differs if one of its colour parts differs by more than this.
constexpr int looseDifference = 16;

std::string BytesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

std::vector<std::string> LinesOf(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

std::vector<std::string> ProgramOf(const std::string& name) { return LinesOf(sampleFolder / (name + ".ZRM")); }

/// The words after a first word, such as the names after `TO`, in one program.
std::vector<std::string> SecondWords(const std::string& name, const std::string& firstWord) {
  std::vector<std::string> words;
  for (const std::string& line : ProgramOf(name)) {
    std::istringstream stream(line);
    std::string first, second;
    if (stream >> first >> second && first == firstWord) words.push_back(second);
  }
  return words;
}

QImage PictureIn(const std::filesystem::path& file) {
  return QImage(QString::fromStdString(file.string())).convertToFormat(QImage::Format_RGB32);
}

bool IsLooselyEqual(QRgb one, QRgb other) {
  const auto isNear = [](int a, int b) { return std::abs(a - b) <= looseDifference; };
  return isNear(qRed(one), qRed(other)) && isNear(qGreen(one), qGreen(other)) && isNear(qBlue(one), qBlue(other));
}

int DifferentPixels(const QImage& one, const QImage& other, bool loosely) {
  int different = 0;
  for (int y = 0; y < one.height(); ++y) {
    for (int x = 0; x < one.width(); ++x) {
      const QRgb a = one.pixel(x, y), b = other.pixel(x, y);
      if (loosely ? !IsLooselyEqual(a, b) : a != b) ++different;
    }
  }
  return different;
}

void ExpectPicture(const Sample& sample, const std::filesystem::path& drawnFile) {
  const QImage drawn = PictureIn(drawnFile);
  const QImage golden = PictureIn(pictureFolder / (std::string(sample.Name) + ".png"));
  ASSERT_FALSE(golden.isNull());
  ASSERT_EQ(drawn.size(), golden.size());
  const int allowed = golden.width() * golden.height() * sample.LooseThousandths / 1000;
  const int different = DifferentPixels(drawn, golden, sample.LooseThousandths > 0);
  if (different <= allowed) return;
  const std::string kept = "samples-test-" + std::string(sample.Name) + ".png";
  drawn.save(QString::fromStdString(kept));
  ADD_FAILURE() << different << " pixels differ; what was drawn is kept in " << kept;
}

std::string NameOf(const testing::TestParamInfo<Sample>& sample) { return sample.param.Name; }

class SampleProgram : public testing::TestWithParam<Sample> {
 protected:
  const std::string name = GetParam().Name;
};

}  // namespace

TEST(Samples, EveryProgramOfTheFolderIsTested) {
  std::set<std::string> inFolder, tested;
  for (const auto& entry : std::filesystem::directory_iterator(sampleFolder)) {
    if (entry.path().extension() == ".ZRM") inFolder.insert(entry.path().stem().string());
  }
  for (const Sample& sample : samples) tested.insert(sample.Name);
  EXPECT_EQ(inFolder, tested);
}

TEST(Samples, NoTwoShareAProcedureOrALabel) {
  for (const char* word : {"TO", "LABEL"}) {
    std::map<std::string, std::string> owners;
    for (const Sample& sample : samples) {
      for (const std::string& name : SecondWords(sample.Name, word)) {
        const auto [owner, isNew] = owners.emplace(name, sample.Name);
        EXPECT_TRUE(isNew) << name << " in " << owner->second << " and " << sample.Name;
      }
    }
  }
}

TEST_P(SampleProgram, IsInCapitalsWithLineEndsOfTheSystem) {
  for (const std::string& line : ProgramOf(name)) {
    EXPECT_TRUE(line.ends_with('\r')) << line;
    EXPECT_TRUE(std::ranges::none_of(line, [](unsigned char c) { return std::islower(c) || c > 126; })) << line;
  }
}

TEST_P(SampleProgram, HasAnEndForEveryProcedureAndAProcedureOfItsName) {
  const std::vector<std::string> procedures = SecondWords(name, "TO");
  const std::vector<std::string> lines = ProgramOf(name);
  EXPECT_EQ(std::ranges::count(lines, "END\r"), static_cast<std::ptrdiff_t>(procedures.size()));
  EXPECT_EQ(procedures.front() + "\r", name + "\r");
}

TEST_P(SampleProgram, IsDescribedInTheDocument) {
  const std::string document = BytesOf(sourceFolder / "docs" / "samples.md");
  EXPECT_NE(document.find("## " + name + "\n"), std::string::npos);
  EXPECT_NE(document.find("(images/samples/" + name + ".png)"), std::string::npos);
}

TEST_P(SampleProgram, DrawsAndSaysWhatItShould) {
  const WorkFolder folder(ZERIMO_APP_FOLDER, "samples");
  const std::filesystem::path drawn = folder.Path / "drawn.png";
  const BatchRun run =
      RunBatch(folder.Path, BytesOf(goldenFolder / (name + ".session")), {"--picture", drawn.string()});
  EXPECT_EQ(run.ExitStatus, 0) << run.Complaint;
  EXPECT_EQ(run.Transcript, LinesOf(goldenFolder / (name + ".jsonl")));
  ExpectPicture(GetParam(), drawn);
}

INSTANTIATE_TEST_SUITE_P(Programs, SampleProgram, testing::ValuesIn(samples), NameOf);

}  // namespace zerimo
