#include "graphics/surface_replay.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

#include "graphics/spy_canvas.h"

namespace zerimo {
namespace {

/// Two surfaces, of which the second repeats what the first does.
class SurfaceReplayTest : public testing::Test, private SurfaceRecorder {
 protected:
  /// The second begins in the state of the first.
  void Begin() {
    for (const surface_operation::Set& set : DrawingState(First)) Repeat(set, Second);
    FirstCanvas.Calls.clear();
    SecondCanvas.Calls.clear();
    First.AddRecorder(*this);
  }

  /// Gives the first all properties that drawing depends on.
  void SetAll() {
    First.SetBackColor(0x123456);
    First.SetForeColor(1);
    First.SetFillColor(2);
    First.SetFillStyle(FillPattern::Vertical);
    First.SetDrawMode(DrawingMode::ExclusiveOr);
    First.SetDrawWidth(5);
    First.SetScaleMode(Scale::Pixels);
    First.SetCurrentX(12.5);
    First.SetCurrentY(13.5);
    First.SetFontSize(30);
    First.SetHeight(4500);
  }

  static std::map<std::string, PropertyValue> PropertiesOf(const Surface& surface) {
    std::map<std::string, PropertyValue> all;
    surface.ReadProperties([&](const char* name, const PropertyValue& value) { all[name] = value; });
    return all;
  }

  SpyCanvas FirstCanvas;
  SpyCanvas SecondCanvas;
  Surface First{"Picture1", FirstCanvas};
  Surface Second{"Picture1", SecondCanvas};

 private:
  void Record(const Surface&, const SurfaceOperation& operation) override { Repeat(operation, Second); }
};

TEST_F(SurfaceReplayTest, EachOperationIsRepeated) {
  Begin();
  First.Line(15, 30, 300, 450);
  First.LineTo(600, 20);
  First.Box(10, 20, 900, 800);
  First.Circle(450, 450, 300, 0.5);
  First.Circle(450, 450, 300);
  First.PSet(75, 90, 255);
  First.Print("HELLO");
  First.Cls();
  First.ExtFloodFill(7, 8, 0);
  First.ExtFloodFill(7, 8, -1);
  EXPECT_EQ(SecondCanvas.Calls, FirstCanvas.Calls);
  EXPECT_EQ(FirstCanvas.Calls.size(), 9u);
  EXPECT_EQ(PropertiesOf(Second), PropertiesOf(First));
}

TEST_F(SurfaceReplayTest, EachPropertyThatDrawingDependsOnIsRepeated) {
  Begin();
  SetAll();
  EXPECT_EQ(PropertiesOf(Second), PropertiesOf(First));
}

TEST_F(SurfaceReplayTest, TheStateTakesOverWhatWasSetBefore) {
  SetAll();
  Begin();
  EXPECT_EQ(PropertiesOf(Second), PropertiesOf(First));
}

}  // namespace
}  // namespace zerimo
