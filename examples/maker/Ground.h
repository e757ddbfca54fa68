#pragma once

#include <string>
#include <vector>

#include "support/drawing/EntitySpec.h"

namespace examples {

// The plot that all example drawings show, in metres: 120 by 80, its lower left corner at 0, 0.
inline constexpr double kPlotWidth = 120.0;
inline constexpr double kPlotDepth = 80.0;

// To the millimetre, so that the drawings are the same whatever machine makes them.
double Millimetres(double metres);

// A repeatable row of numbers in [0, 1).
class Scatter {
 public:
  explicit Scatter(unsigned seed) : state_(seed) {}
  double Next();
  double Between(double low, double high);

 private:
  unsigned state_;
};

// The height of the ground, in metres above the datum.
double GroundHeight(drawing::Point at);

// `metres` with two decimals.
std::string HeightText(double metres);

// Where the ground has the height `metres`, from the plot's left edge to its right, one vertex
// each `step` metres; empty where the plot holds no such line.
std::vector<drawing::Point> Contour(double metres, int step);

std::vector<drawing::Point> PlotBoundary();

std::vector<drawing::Point> Rectangle(drawing::Point corner, double width, double depth);

// A horizontal dimension: the line, its ticks and its text.
std::vector<drawing::EntitySpec> WidthMark(const std::string& layer, drawing::Point from,
                                           double width);

void Append(std::vector<drawing::EntitySpec>& entities, std::vector<drawing::EntitySpec> more);

}  // namespace examples
