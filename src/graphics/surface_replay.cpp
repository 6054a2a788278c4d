#include "graphics/surface_replay.h"

#include <string_view>

namespace zerimo {

namespace {

/// A property that drawing depends on.
struct Property {
  std::string_view Name;
  void (*Put)(Surface& surface, const PropertyValue& value);
};

double NumberIn(const PropertyValue& value) {
  const auto* const single = std::get_if<float>(&value);
  return single != nullptr ? static_cast<double>(*single) : std::get<double>(value);
}

template <auto Setter, typename Number>
constexpr auto Through =
    [](Surface& surface, const PropertyValue& value) { (surface.*Setter)(static_cast<Number>(NumberIn(value))); };

constexpr Property Properties[] = {
    {"BackColor", Through<&Surface::SetBackColor, Colour>},
    {"ForeColor", Through<&Surface::SetForeColor, Colour>},
    {"FillColor", Through<&Surface::SetFillColor, Colour>},
    {"FillStyle", Through<&Surface::SetFillStyle, FillPattern>},
    {"DrawMode", Through<&Surface::SetDrawMode, DrawingMode>},
    {"DrawWidth", Through<&Surface::SetDrawWidth, std::int32_t>},
    {"ScaleMode", Through<&Surface::SetScaleMode, Scale>},
    {"CurrentX", Through<&Surface::SetCurrentX, double>},
    {"CurrentY", Through<&Surface::SetCurrentY, double>},
    {"Font.Size", Through<&Surface::SetFontSize, double>},
    {"Height", Through<&Surface::SetHeight, float>},
};

const Property* FindProperty(std::string_view name) noexcept {
  for (const Property& property : Properties) {
    if (property.Name == name) return &property;
  }
  return nullptr;
}

struct Repeater {
  Surface& On;

  void operator()(const surface_operation::Set& set) const {
    if (const Property* const property = FindProperty(set.Property)) property->Put(On, set.Value);
  }
  void operator()(const surface_operation::Line& line) const { On.Line(line.X1, line.Y1, line.X2, line.Y2); }
  void operator()(const surface_operation::Box& box) const { On.Box(box.X1, box.Y1, box.X2, box.Y2); }
  void operator()(const surface_operation::LineTo& line) const { On.LineTo(line.X2, line.Y2); }
  void operator()(const surface_operation::Circle& circle) const {
    On.Circle(circle.X, circle.Y, circle.Radius, circle.Aspect);
  }
  void operator()(const surface_operation::PSet& point) const { On.PSet(point.X, point.Y, point.Color); }
  void operator()(const surface_operation::Print& print) const { On.Print(print.Text); }
  void operator()(const surface_operation::Cls&) const { On.Cls(); }
  void operator()(const surface_operation::FloodFill& fill) const {
    On.ExtFloodFill(static_cast<std::int16_t>(fill.X), static_cast<std::int16_t>(fill.Y), fill.Color);
  }
  void operator()(const surface_operation::Picture&) const noexcept {}
};

}  // namespace

std::vector<surface_operation::Set> DrawingState(const Surface& surface) {
  std::vector<surface_operation::Set> state;
  surface.ReadProperties([&](const char* name, const PropertyValue& value) {
    if (FindProperty(name) != nullptr) state.push_back({name, value});
  });
  return state;
}

void Repeat(const SurfaceOperation& operation, Surface& surface) { std::visit(Repeater{surface}, operation); }

}  // namespace zerimo
