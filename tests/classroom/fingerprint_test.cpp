#include "classroom/fingerprint.h"

#include <gtest/gtest.h>

#include <set>

#include "files/temp_folder.h"

namespace zerimo::classroom {
namespace {

TEST(Fingerprint, IsAnotherWhereARunMayBe) {
  const TempFolder disk;
  disk.Write("A.ZRM", "TO A");
  disk.Write("B.ZRM", "TO B");
  disk.Write("a.session", "A");
  disk.Write("task/TASK.md", "# A");
  disk.Write("task/GOAL.ZRM", "TO A");
  const Pupil a{disk.Path / "A.ZRM", {}};
  const RunLimits limits{10, 1000, 512};
  const std::string plain = Fingerprint(limits, {}, false, {}).Of(a);
  std::set<std::string> all = {plain};
  const auto isNew = [&all](const std::string& one) { return all.insert(one).second; };
  EXPECT_TRUE(isNew(Fingerprint(limits, {}, false, {}).Of({disk.Path / "B.ZRM", {}})));
  EXPECT_TRUE(isNew(Fingerprint(limits, {}, false, {}).Of({disk.Path / "A.ZRM", disk.Path / "a.session"})));
  EXPECT_TRUE(isNew(Fingerprint({5, 1000, 512}, {}, false, {}).Of(a)));
  EXPECT_TRUE(isNew(Fingerprint(limits, {100, 100}, false, {}).Of(a)));
  EXPECT_TRUE(isNew(Fingerprint(limits, {}, true, {}).Of(a)));
  EXPECT_TRUE(isNew(Fingerprint(limits, {}, false, disk.Path / "task").Of(a)));
  EXPECT_TRUE(isNew(Fingerprint(limits, {}, false, disk.Path / "task/GOAL.ZRM").Of(a)));
  disk.Write("task/GOAL.ZRM", "TO B");
  EXPECT_TRUE(isNew(Fingerprint(limits, {}, false, disk.Path / "task").Of(a)));
  disk.Write("task/report.jsonl", "{}");
  EXPECT_FALSE(isNew(Fingerprint(limits, {}, false, disk.Path / "task").Of(a)));
  // Whoever else has the same program and session.
  disk.Write("B.ZRM", "TO A");
  EXPECT_EQ(Fingerprint(limits, {}, false, {}).Of({disk.Path / "B.ZRM", {}}), plain);
}

}  // namespace
}  // namespace zerimo::classroom
