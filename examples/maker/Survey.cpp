#include <string>

#include "maker/Drawings.h"
#include "maker/Ground.h"

namespace examples {
namespace {

// "Boundary", "Points", "Heights", "Fence" and "Pegs" in Russian.  The last layer's sign is none
// of the code page's.
constexpr const char* kBoundary = "Граница";
constexpr const char* kPoints = "Точки";
constexpr const char* kHeights = "Отметки";
constexpr const char* kFence = "Забор";
constexpr const char* kPegs = "Колышки ∆";

void AppendNumber(std::string& bytes, unsigned number, int size) {
  for (int i = 0; i < size; ++i) bytes += static_cast<char>(number >> (8 * i) & 0xFF);
}

bool IsOnPlot(int x, int y) { return x > 5 && x < 42 && y > 4 && y < 26; }

// A bitmap without its file header: the plot on grass.
std::string Preview() {
  constexpr int kWidth = 48;
  constexpr int kHeight = 30;
  constexpr unsigned kHeadSize = 40;
  constexpr unsigned kBitsPerPixel = 24;
  std::string bytes;
  AppendNumber(bytes, kHeadSize, 4);
  AppendNumber(bytes, kWidth, 4);
  AppendNumber(bytes, kHeight, 4);
  AppendNumber(bytes, 1, 2);
  AppendNumber(bytes, kBitsPerPixel, 2);
  AppendNumber(bytes, 0, 4);
  AppendNumber(bytes, kWidth * kHeight * kBitsPerPixel / 8, 4);
  for (int i = 0; i < 4; ++i) AppendNumber(bytes, 0, 4);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) AppendNumber(bytes, IsOnPlot(x, y) ? 0xE8E0D0 : 0x4C8C4C, 3);
  }
  return bytes;
}

void AddPoints(std::vector<drawing::EntitySpec>& entities) {
  Scatter scatter(3);
  for (int number = 1; number <= 70; ++number) {
    const drawing::Point at{scatter.Between(2, 116), scatter.Between(3, 74)};
    entities.push_back(
        drawing::Insert("ПУНКТ",
                        {{.tag = "НОМЕР", .value = std::to_string(number), .at = at, .height = 0.6},
                         {.tag = "ОТМЕТКА",
                          .value = HeightText(GroundHeight(at)),
                          .at = {at.x, Millimetres(at.y - 0.9)},
                          .height = 0.6}},
                        {.at = at}, kPoints));
  }
}

void AddFence(std::vector<drawing::EntitySpec>& entities) {
  entities.push_back(drawing::Polyline(kFence, PlotBoundary(), true));
  for (int peg = 0; peg < 30; ++peg) {
    const double x = 2 + 4 * peg;
    entities.push_back(drawing::Circle(kPegs, {x, Millimetres(x * 0.02)}, 0.15));
  }
}

}  // namespace

drawing::DrawingSpec Survey() {
  drawing::DrawingSpec spec;
  spec.version = "AC1015";
  spec.codePage = "ANSI_1251";
  spec.layers = {{"0"},     {kBoundary, 1, "МЕЖА"}, {kPoints, 3}, {kHeights, 2}, {kFence, 8},
                 {kPegs, 9}};
  spec.linetypes = {{"МЕЖА", "Граница участка __ . __ . __", {4, -1, 0, -1}}};
  spec.summary = {.title = "Съёмка участка",
                  .subject = "Существующий рельеф",
                  .author = "П. Примеров",
                  .keywords = "съёмка; рельеф",
                  .comments = "Высоты в метрах",
                  .lastSavedBy = "чертёжник",
                  .revisionNumber = "2"};
  spec.customProperties = {{"Заказчик", "Жители"}, {"Instrument", "total station"}};
  spec.settings.hyperlinkBase = "съёмка";
  spec.blocks = {{.name = "ПУНКТ",
                  .definitions = {{.tag = "НОМЕР", .value = "0", .prompt = "Номер пункта?"},
                                  {.tag = "ОТМЕТКА", .value = "0.00", .prompt = "Отметка, м?"}},
                  .entities = {drawing::Circle("0", {}, 0.25), drawing::Dot("0", {})}}};
  spec.entities = {drawing::Polyline(kBoundary, PlotBoundary(), true),
                   drawing::Text(kHeights, {4, 70}, 1.5, "Участок 17")};
  AddPoints(spec.entities);
  AddFence(spec.entities);
  spec.views = {"Участок"};
  spec.layouts = {"Лист1"};
  spec.previews = {{drawing::PreviewKind::Bitmap, Preview()}};
  return spec;
}

}  // namespace examples
