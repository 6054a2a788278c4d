#pragma once

#include <charconv>
#include <string>
#include <vector>

#include "graphics/surface.h"

namespace zerimo {

/// Keeps each operation of the surface as a text: "Line 1000 2000 1000 1500", "ForeColor=255".
class OperationTexts : public SurfaceRecorder {
 public:
  void Record(const Surface&, const SurfaceOperation& operation) override {
    Operations.push_back(std::visit([](const auto& kind) { return Text(kind); }, operation));
  }

  std::vector<std::string> Operations;

 private:
  template <typename Kind>
  static std::string Number(Kind number) {
    char buffer[40];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, number).ptr};
  }
  template <typename... Kinds>
  static std::string Words(std::string text, Kinds... numbers) {
    ((text += " " + Number(numbers)), ...);
    return text;
  }

  static std::string Text(const surface_operation::Set& set) {
    const double* const number = std::get_if<double>(&set.Value);
    return std::string(set.Property) + "=" + (number != nullptr ? Number(*number) : Number(std::get<float>(set.Value)));
  }
  static std::string Text(const surface_operation::Line& line) {
    return Words("Line", line.X1, line.Y1, line.X2, line.Y2);
  }
  static std::string Text(const surface_operation::Box& box) { return Words("Box", box.X1, box.Y1, box.X2, box.Y2); }
  static std::string Text(const surface_operation::LineTo& line) { return Words("LineTo", line.X2, line.Y2); }
  static std::string Text(const surface_operation::Circle& circle) {
    const std::string text = Words("Circle", circle.X, circle.Y, circle.Radius);
    return circle.Aspect ? Words(text, *circle.Aspect) : text;
  }
  static std::string Text(const surface_operation::PSet& point) { return Words("PSet", point.X, point.Y, point.Color); }
  static std::string Text(const surface_operation::Print& print) { return "Print " + print.Text; }
  static std::string Text(const surface_operation::Cls&) { return "Cls"; }
  static std::string Text(const surface_operation::FloodFill& fill) {
    return Words("FloodFill", fill.X, fill.Y, fill.Color);
  }
  static std::string Text(const surface_operation::Picture& picture) { return "Picture " + picture.Path; }
};

}  // namespace zerimo
