#include "batch/surface_trace.h"

namespace zerimo::batch {

namespace {

/// The event of one operation.
struct Writer {
  static JsonLine Event(const char* op) { return JsonLine("surface").Text("op", op); }

  JsonLine operator()(const surface_operation::Set& set) const {
    return Event("Set").Text("property", set.Property).Property("value", set.Value);
  }
  JsonLine operator()(const surface_operation::Line& line) const {
    return Event("Line").Single("x1", line.X1).Single("y1", line.Y1).Single("x2", line.X2).Single("y2", line.Y2);
  }
  JsonLine operator()(const surface_operation::Box& box) const {
    return Event("Box").Single("x1", box.X1).Single("y1", box.Y1).Single("x2", box.X2).Single("y2", box.Y2);
  }
  JsonLine operator()(const surface_operation::LineTo& line) const {
    return Event("LineTo").Single("x2", line.X2).Single("y2", line.Y2);
  }
  JsonLine operator()(const surface_operation::Circle& circle) const {
    JsonLine event = Event("Circle").Single("x", circle.X).Single("y", circle.Y).Single("radius", circle.Radius);
    if (circle.Aspect) event.Single("aspect", *circle.Aspect);
    return event;
  }
  JsonLine operator()(const surface_operation::PSet& point) const {
    return Event("PSet").Single("x", point.X).Single("y", point.Y).Number("color", point.Color);
  }
  JsonLine operator()(const surface_operation::Print& print) const { return Event("Print").Text("text", print.Text); }
  JsonLine operator()(const surface_operation::Cls&) const { return Event("Cls"); }
  JsonLine operator()(const surface_operation::FloodFill& fill) const {
    return Event("FloodFill").Number("x", fill.X).Number("y", fill.Y).Number("color", fill.Color);
  }
  JsonLine operator()(const surface_operation::Picture& picture) const {
    return Event("Picture").Text("path", picture.Path);
  }
};

}  // namespace

void SurfaceTrace::Record(const Surface&, const SurfaceOperation& operation) {
  if (journal_.HasTranscript()) journal_.Write(std::visit(Writer{}, operation));
}

}  // namespace zerimo::batch
