#include "maker/Ground.h"

#include <cmath>
#include <iterator>

namespace examples {
namespace {

constexpr double kLowest = 41.0;
constexpr double kRise = 0.085;
constexpr double kSwell = 0.6;

}  // namespace

double Millimetres(double metres) { return std::round(metres * 1000.0) / 1000.0; }

double Scatter::Next() {
  state_ = state_ * 1664525u + 1013904223u;
  return static_cast<double>(state_ >> 8) / static_cast<double>(1u << 24);
}

double Scatter::Between(double low, double high) {
  return Millimetres(low + (high - low) * Next());
}

double GroundHeight(drawing::Point at) {
  return kLowest + kRise * at.y + kSwell * std::sin(at.x / 19.0) + 0.01 * at.x;
}

std::string HeightText(double metres) {
  const auto hundredths = static_cast<long>(std::lround(metres * 100.0));
  const std::string decimals = std::to_string(100 + hundredths % 100).substr(1);
  return std::to_string(hundredths / 100) + "." + decimals;
}

std::vector<drawing::Point> Contour(double metres, int step) {
  std::vector<drawing::Point> line;
  for (int x = 0; x <= kPlotWidth; x += step) {
    const double across = x;
    const double y = (metres - GroundHeight({across, 0.0})) / kRise;
    if (y >= 0.0 && y <= kPlotDepth) line.push_back({across, Millimetres(y)});
  }
  return line;
}

std::vector<drawing::Point> PlotBoundary() {
  return {{0, 0}, {kPlotWidth, 2.4}, {kPlotWidth - 3.1, 61.75}, {92.4, kPlotDepth}, {1.85, 76.2}};
}

std::vector<drawing::Point> Rectangle(drawing::Point corner, double width, double depth) {
  return {corner,
          {Millimetres(corner.x + width), corner.y},
          {Millimetres(corner.x + width), Millimetres(corner.y + depth)},
          {corner.x, Millimetres(corner.y + depth)}};
}

std::vector<drawing::EntitySpec> WidthMark(const std::string& layer, drawing::Point from,
                                           double width) {
  constexpr double kTick = 0.6;
  const drawing::Point to{Millimetres(from.x + width), from.y};
  std::vector<drawing::EntitySpec> mark = {drawing::Line(layer, from, to)};
  for (const drawing::Point end : {from, to}) {
    mark.push_back(drawing::Line(layer, {end.x, end.y - kTick}, {end.x, end.y + kTick}));
  }
  mark.push_back(drawing::Text(layer, {Millimetres(from.x + width / 2 - 1.5), from.y + 0.4}, 0.8,
                               HeightText(width)));
  return mark;
}

void Append(std::vector<drawing::EntitySpec>& entities, std::vector<drawing::EntitySpec> more) {
  entities.insert(entities.end(), std::make_move_iterator(more.begin()),
                  std::make_move_iterator(more.end()));
}

}  // namespace examples
