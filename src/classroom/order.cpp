#include "classroom/order.h"

#include <string>

#include "classroom/record.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

namespace fs = std::filesystem;

/// A path need not be valid text, so it is written as the digits of its bytes.
Json Packed(const fs::path& path) {
  const std::u8string bytes = path.u8string();
  const QByteArray view(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
  return view.toHex().toStdString();
}

fs::path UnpackedAt(const Json& json, const char* key) {
  const QByteArray bytes = QByteArray::fromHex(TextAt(json, key).toLatin1());
  return std::u8string(bytes.begin(), bytes.end());
}

Json JsonOf(const Goal& goal) {
  return {{"typed", ValueOf(goal.Typed)},
          {"words", ValueOf(goal.Words)},
          {"way", static_cast<int>(goal.Way)},
          {"tolerance", goal.Shapes.Tolerance},
          {"order", goal.Shapes.Order},
          {"direction", goal.Shapes.Direction},
          {"splitting", goal.Shapes.Splitting},
          {"colour", goal.Shapes.Colour},
          {"enough", goal.Enough},
          {"points", goal.Points}};
}

Goal GoalIn(const Json& json) {
  Goal goal;
  goal.Typed = TextsAt(json, "typed");
  goal.Words = TextAt(json, "words");
  goal.Way = static_cast<GoalWay>(static_cast<int>(NumberAt(json, "way")));
  goal.Shapes = {NumberAt(json, "tolerance"), FlagAt(json, "order"), FlagAt(json, "direction"),
                 FlagAt(json, "splitting"), FlagAt(json, "colour")};
  goal.Enough = NumberAt(json, "enough");
  goal.Points = NumberAt(json, "points");
  return goal;
}

std::optional<Json> ReadObject(const fs::path& file) {
  const std::optional<std::string> bytes = BytesOf(file);
  return bytes ? ParsedObject(*bytes) : std::nullopt;
}

std::string Numbered(const char* name, std::size_t goal, const char* ending) {
  return name + std::to_string(goal + 1) + ending;
}

}  // namespace

namespace run_file {
std::string Drawn(std::size_t goal) { return Numbered("drawn-", goal, ".json"); }
std::string Printed(std::size_t goal) { return Numbered("printed-", goal, ".json"); }
std::string ModelPicture(std::size_t goal) { return Numbered("model-", goal, ".png"); }
std::string GoalPicture(std::size_t goal) { return Numbered("goal-", goal, ".png"); }
std::string Difference(std::size_t goal) { return Numbered("difference-", goal, ".png"); }
}  // namespace run_file

void WriteOrder(const fs::path& file, const Order& order) {
  Json goals = Json::array();
  for (const Goal& goal : order.Goals) goals.push_back(JsonOf(goal));
  WriteBeside(file, Compact({{"program", Packed(order.Who.Program)},
                             {"session", Packed(order.Who.Session)},
                             {"seconds", order.Limits.Seconds},
                             {"steps", std::to_string(order.Limits.Steps)},
                             {"memory", order.Limits.Memory},
                             {"width", order.Screen.Width},
                             {"height", order.Screen.Height},
                             {"goals", goals},
                             {"modelFolder", Packed(order.ModelFolder)},
                             {"modelPicture", Packed(order.ModelPicture)},
                             {"within", Packed(order.Within)},
                             {"runner", order.Runner}}));
}

std::optional<Order> ReadOrder(const fs::path& file) {
  const std::optional<Json> json = ReadObject(file);
  if (!json) return std::nullopt;
  Order order;
  order.Who = {UnpackedAt(*json, "program"), UnpackedAt(*json, "session")};
  order.Limits.Seconds = NumberAt(*json, "seconds");
  order.Limits.Steps = TextAt(*json, "steps").toULongLong();
  order.Limits.Memory = static_cast<int>(NumberAt(*json, "memory"));
  order.Screen.Width = static_cast<float>(NumberAt(*json, "width"));
  order.Screen.Height = static_cast<float>(NumberAt(*json, "height"));
  for (const Json& goal : ListAt(*json, "goals")) order.Goals.push_back(GoalIn(goal));
  order.ModelFolder = UnpackedAt(*json, "modelFolder");
  order.ModelPicture = UnpackedAt(*json, "modelPicture");
  order.Within = UnpackedAt(*json, "within");
  order.Runner = static_cast<std::int64_t>(NumberAt(*json, "runner"));
  return order;
}

void WriteOutcome(const fs::path& file, const RunOutcome& outcome) {
  WriteBeside(file, Compact(classroom::JsonOf(outcome)));
}

std::optional<RunOutcome> ReadOutcome(const fs::path& file) {
  const std::optional<Json> json = ReadObject(file);
  if (!json) return std::nullopt;
  return OutcomeIn(*json);
}

}  // namespace zerimo::classroom
