#pragma once

#include <QPointer>
#include <cstddef>
#include <memory>
#include <vector>

#include "desktop/session.h"
#include "graphics/surface.h"

class QLabel;

namespace zerimo {

/// Alt+Left and Alt+Right step through what the last run has drawn, operation by operation. Only what is shown changes;
/// the next other key, and the next drawing, is back at the end.
class LookBack : public Extension, private SurfaceRecorder {
 public:
  explicit LookBack(Session& session);
  ~LookBack() override;

  bool PressKey(const QKeyEvent& press) override;
  void RunEnds() override;

  /// How many operations of a run are kept, so that memory and time stay bounded. A flood counts as `WorkOfFlood`.
  static constexpr std::size_t MostWork = 20'000;
  static constexpr std::size_t WorkOfFlood = 100;

 private:
  /// A picture, and what drawing on it depends on.
  struct Scene {
    PixelBuffer Pixels;
    std::vector<surface_operation::Set> State;
  };
  /// What is shown in place of the picture.
  class Sheet;

  void Record(const Surface& surface, const SurfaceOperation& operation) override;
  void Begin(Scene from);
  void Keep(const SurfaceOperation& operation);
  Scene SceneNow() const;
  void ShowStep(std::size_t step);
  void Leave();
  /// Whether the run drew more than is kept.
  bool IsCut() const { return work_ >= MostWork; }

  Session& session_;
  /// Before the run that can be looked at.
  Scene before_;
  /// The picture after the last run.
  PixelBuffer after_;
  std::vector<SurfaceOperation> operations_;
  /// How many operations each step has carried out, those that only set something included.
  std::vector<std::size_t> steps_;
  std::size_t work_ = 0;
  bool isDrawing_ = false;
  std::size_t step_ = 0;
  /// Belongs to the window; null while nobody looks back.
  QPointer<Sheet> sheet_;
};

}  // namespace zerimo
