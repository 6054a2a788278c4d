#include "classroom/drawings/drawing.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>

#include "classroom/drawings/cover.h"
#include "files/disk_files.h"

namespace zerimo::classroom {

namespace {

using nlohmann::json;

/// Surface units: half a pixel.
constexpr double EraserWidth = 8;

/// Surface units: a shorter line is a point, and a smaller gap is none.
constexpr double LeastLength = 1;

/// Parts of a line that differ by less in direction (as a sine) go straight on.
constexpr double Straight = 0.01;

double UnitsIn(const Surface& surface) { return surface.ScaleMode() == Scale::Pixels ? UnitsPerPixel : 1; }

Point Scaled(const Surface& surface, double x, double y) { return {x * UnitsIn(surface), y * UnitsIn(surface)}; }

double Between(Point one, Point other) { return std::hypot(other.X - one.X, other.Y - one.Y); }

bool GoesOn(const Line& first, const Line& second) {
  if (first.Color != second.Color || Between(first.To, second.From) > LeastLength) return false;
  const double cross = (first.To.X - first.From.X) * (second.To.Y - second.From.Y) -
                       (first.To.Y - first.From.Y) * (second.To.X - second.From.X);
  const double dot = (first.To.X - first.From.X) * (second.To.X - second.From.X) +
                     (first.To.Y - first.From.Y) * (second.To.Y - second.From.Y);
  return dot > 0 && std::abs(cross) <= Straight * first.Length() * second.Length();
}

/// Whether all of a figure is outside.
bool LiesOutside(const Surface& surface, const Figure& figure) {
  return figure.Centre.X + figure.Across < 0 || figure.Centre.Y + figure.Down < 0 ||
         figure.Centre.X - figure.Across > static_cast<double>(surface.Width) ||
         figure.Centre.Y - figure.Down > static_cast<double>(surface.Height());
}

double SizeOf(const Figure& figure) { return figure.Across + figure.Down + LeastLength; }

/// What part of the sum of some sizes counts.
class Shares {
 public:
  /// `part` is from 0 to 1.
  void Add(double size, double part) {
    all_ += size;
    counted_ += size * part;
  }
  double Part() const { return all_ == 0 ? 0 : counted_ / all_; }

 private:
  double all_ = 0;
  double counted_ = 0;
};

/// The part of a line, from 0 to 1, that lies on the surface.
double PartInside(const Surface& surface, const Line& line) {
  double first = 0;
  double last = 1;
  const auto keep = [&](double from, double to, double most) {
    if (from == to) {
      if (from < 0 || from > most) last = first;
      return;
    }
    const auto [near, far] = std::minmax({(0 - from) / (to - from), (most - from) / (to - from)});
    first = std::max(first, near);
    last = std::min(last, far);
  };
  keep(line.From.X, line.To.X, static_cast<double>(surface.Width));
  keep(line.From.Y, line.To.Y, static_cast<double>(surface.Height()));
  return std::max(0.0, last - first);
}

/// The part of the box around a figure that is cut off at the left, the right or the top.
double PartCutOff(const Surface& surface, const Figure& figure) {
  const auto inside = [](double centre, double reach, double most) {
    return std::max(0.0, std::min(centre + reach, most) - std::max(centre - reach, 0.0)) / (2 * reach);
  };
  if (figure.Across == 0 || figure.Down == 0) return LiesOutside(surface, figure) ? 1 : 0;
  return 1 - inside(figure.Centre.X, figure.Across, static_cast<double>(surface.Width)) *
                 inside(figure.Centre.Y, figure.Down, std::numeric_limits<double>::infinity());
}

}  // namespace

double Line::Length() const { return Between(From, To); }

std::vector<Line> Joined(const std::vector<Line>& lines) {
  std::vector<Line> joined;
  for (const Line& line : lines) {
    if (!joined.empty() && GoesOn(joined.back(), line)) {
      joined.back().To = line.To;
    } else {
      joined.push_back(line);
    }
  }
  return joined;
}

void WriteDrawing(const std::filesystem::path& file, const Drawing& drawing) {
  json lines = json::array();
  for (const Line& each : drawing.Lines) lines.push_back({each.From.X, each.From.Y, each.To.X, each.To.Y, each.Color});
  json figures = json::array();
  for (const Figure& each : drawing.Figures)
    figures.push_back({each.Centre.X, each.Centre.Y, each.Across, each.Down, each.Color, each.Text});
  const json whole = {{"lines", lines}, {"figures", figures}, {"cut", drawing.IsCut}};
  WriteBeside(file, whole.dump(-1, ' ', true, json::error_handler_t::replace));
}

std::optional<Drawing> ReadDrawing(const std::filesystem::path& file) {
  const std::optional<std::string> bytes = BytesOf(file);
  if (!bytes) return std::nullopt;
  try {
    const json whole = json::parse(*bytes);
    Drawing drawing;
    drawing.IsCut = whole.at("cut");
    for (const json& each : whole.at("lines"))
      drawing.Lines.push_back({{each.at(0), each.at(1)}, {each.at(2), each.at(3)}, each.at(4)});
    for (const json& each : whole.at("figures"))
      drawing.Figures.push_back({{each.at(0), each.at(1)}, each.at(2), each.at(3), each.at(4), each.at(5)});
    return drawing;
  } catch (const json::exception&) {
    return std::nullopt;
  }
}

void DrawingRecorder::Record(const Surface& surface, const SurfaceOperation& operation) {
  namespace op = surface_operation;
  if (const auto* line = std::get_if<op::Line>(&operation)) {
    Add(surface, Line{Scaled(surface, line->X1, line->Y1), Scaled(surface, line->X2, line->Y2), surface.ForeColor()});
  } else if (const auto* to = std::get_if<op::LineTo>(&operation)) {
    Add(surface, Line{Scaled(surface, to->X1, to->Y1), Scaled(surface, to->X2, to->Y2), surface.ForeColor(), true});
  } else if (const auto* box = std::get_if<op::Box>(&operation)) {
    AddBox(surface, Scaled(surface, box->X1, box->Y1), Scaled(surface, box->X2, box->Y2));
  } else if (const auto* circle = std::get_if<op::Circle>(&operation)) {
    const Surface::Axes axes = surface.HalfAxes(*circle);
    Add(surface, Figure{Scaled(surface, circle->X, circle->Y),
                        axes.Across * UnitsPerPixel,
                        axes.Down * UnitsPerPixel,
                        surface.ForeColor(),
                        {}});
  } else if (const auto* point = std::get_if<op::PSet>(&operation)) {
    Add(surface, Figure{Scaled(surface, point->X, point->Y), 0, 0, point->Color, {}});
  } else if (const auto* print = std::get_if<op::Print>(&operation)) {
    const Point place = Scaled(surface, surface.CurrentX(), surface.CurrentY());
    Add(surface, Figure{place, 0, 0, surface.ForeColor(), print->Text});
  } else if (const auto* set = std::get_if<op::Set>(&operation)) {
    if (std::string_view(set->Property) != "BackColor") return;
    wiped_ = wiped_ || !drawing_.IsEmpty();
    Clear();
  } else if (std::holds_alternative<op::Cls>(operation)) {
    Clear();
  } else {
    hasDrawn_ = true;
    isPainted_ = true;
  }
}

void DrawingRecorder::Clear() {
  drawing_ = {};
  isPainted_ = false;
}

void DrawingRecorder::Add(const Surface& surface, Line line) {
  if (line.Length() < LeastLength) return;
  if (line.Color == surface.BackColor()) return Erase(line);
  hasDrawn_ = true;
  drawing_.IsCut = drawing_.IsCut || drawing_.Lines.size() == Drawing::MostShapes;
  if (!drawing_.IsCut) drawing_.Lines.push_back(line);
}

void DrawingRecorder::Add(const Surface& surface, Figure figure) {
  if (figure.Color == surface.BackColor()) return;
  hasDrawn_ = true;
  drawing_.IsCut = drawing_.IsCut || drawing_.Figures.size() == Drawing::MostShapes;
  if (!drawing_.IsCut) drawing_.Figures.push_back(std::move(figure));
}

void DrawingRecorder::AddBox(const Surface& surface, Point from, Point to) {
  const Point corners[] = {from, {to.X, from.Y}, to, {from.X, to.Y}, from};
  for (int side = 0; side < 4; ++side) Add(surface, Line{corners[side], corners[side + 1], surface.ForeColor(), true});
}

void DrawingRecorder::Erase(const Line& eraser) {
  std::vector<Line> left;
  for (const Line& line : drawing_.Lines) {
    const std::vector<Line> pieces = Uncovered(line, {eraser}, EraserWidth);
    left.insert(left.end(), pieces.begin(), pieces.end());
  }
  drawing_.Lines = std::move(left);
}

double DrawingRecorder::PartOutside(const Surface& surface) const {
  Shares shares;
  for (const Line& each : drawing_.Lines) {
    if (!each.IsOfOutline) shares.Add(each.Length(), 1 - PartInside(surface, each));
  }
  return shares.Part();
}

double DrawingRecorder::PartCutOff(const Surface& surface) const {
  Shares shares;
  for (const Figure& each : drawing_.Figures) shares.Add(SizeOf(each), zerimo::classroom::PartCutOff(surface, each));
  return shares.Part();
}

double DrawingRecorder::PartWhollyOutside(const Surface& surface) const {
  Shares shares;
  for (const Figure& each : drawing_.Figures) shares.Add(SizeOf(each), LiesOutside(surface, each) ? 1 : 0);
  double length = 0;
  bool isWhole = true;
  for (std::size_t i = 0; i < drawing_.Lines.size(); ++i) {
    const Line& line = drawing_.Lines[i];
    if (i > 0 && Between(drawing_.Lines[i - 1].To, line.From) > LeastLength) {
      shares.Add(length, isWhole ? 1 : 0);
      length = 0;
      isWhole = true;
    }
    length += line.Length();
    isWhole = isWhole && PartInside(surface, line) == 0;
  }
  shares.Add(length, isWhole ? 1 : 0);
  return shares.Part();
}

bool DrawingRecorder::LeavesBand(const Surface& surface, double top, double bottom) const {
  const double height = surface.Height();
  const auto leaves = [&](Point point) { return point.Y < top * height || point.Y > bottom * height; };
  return std::ranges::any_of(drawing_.Lines, [&](const Line& each) { return leaves(each.From) || leaves(each.To); }) ||
         std::ranges::any_of(drawing_.Figures, [&](const Figure& each) { return leaves(each.Centre); });
}

}  // namespace zerimo::classroom
