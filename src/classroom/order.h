#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "classroom/pupil.h"
#include "classroom/task.h"
#include "controls/controls.h"

/// How the runner and the process of one run communicate: through files in the run's folder.
namespace zerimo::classroom {

/// The files of a run's folder.
namespace run_file {
inline constexpr const char* Order = "order.json";
inline constexpr const char* Outcome = "outcome.json";
inline constexpr const char* Transcript = "transcript.jsonl";
/// The transcript of the goal that is being tried.
inline constexpr const char* GoalTranscript = "goal.jsonl";
inline constexpr const char* Picture = "picture.png";
/// Exists if memory was refused.
inline constexpr const char* OutOfMemory = "memory";
/// The folder that the pupil's program works in.
inline constexpr const char* Scratch = "scratch";

/// The files of a goal, counted from 0: what was drawn and printed for it, and the pictures.
std::string Drawn(std::size_t goal);
std::string Printed(std::size_t goal);
std::string ModelPicture(std::size_t goal);
std::string GoalPicture(std::size_t goal);
std::string Difference(std::size_t goal);
}  // namespace run_file

/// What a run is to do.
struct Order {
  Pupil Who;
  RunLimits Limits;
  ScreenSize Screen;
  std::vector<Goal> Goals = {};
  /// The folder of the model's run, which the goals are compared with; empty for the model itself.
  std::filesystem::path ModelFolder = {};
  /// The model's picture, if the model is not a program.
  std::filesystem::path ModelPicture = {};
  /// The folder that no link to a program or session may lead out of; empty if all links are followed.
  std::filesystem::path Within = {};
  /// The process that has given the order; with it the run ends. 0 if it does not matter.
  std::int64_t Runner = 0;
};

/// Fails with `Failure` (file access).
void WriteOrder(const std::filesystem::path& file, const Order& order);
std::optional<Order> ReadOrder(const std::filesystem::path& file);

/// Fails with `Failure` (file access).
void WriteOutcome(const std::filesystem::path& file, const RunOutcome& outcome);
/// Nothing if there is no complete outcome.
std::optional<RunOutcome> ReadOutcome(const std::filesystem::path& file);

}  // namespace zerimo::classroom
