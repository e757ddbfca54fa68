#include "generate/EntityMix.h"

#include <cmath>

#include "generate/Tokens.h"

namespace bench {
namespace {

constexpr double kExtent = 250000.0;
constexpr double kRounding = 1e6;

// Repeatable numbers, the same on every machine.
class Random {
 public:
  std::uint64_t Below(std::uint64_t limit) { return Next() % limit; }

  // A place on the plan.  One number in two is as a person would have typed it, rounded; the
  // others have all their digits.
  double Coordinate() {
    const double value = static_cast<double>(Next() >> 11) * 0x1p-53 * kExtent;
    return Below(2) == 0 ? std::round(value * kRounding) / kRounding : value;
  }

 private:
  // SplitMix64.
  std::uint64_t Next() {
    state_ += 0x9E3779B97F4A7C15u;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9u;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBu;
    return z ^ (z >> 31);
  }

  std::uint64_t state_ = 1;
};

class Mix {
 public:
  Mix(TagStream& out, Frame& frame, Counts& counts) : out_(out), frame_(frame), counts_(counts) {}

  // One entity with all that belongs to it.  Out of a hundred: 45 lines, 25 polylines, 8 circles,
  // 8 texts, 7 plain inserts and 7 with attributes.
  void Write() {
    const std::uint64_t kind = random_.Below(100);
    if (kind < 45) return WriteLine();
    if (kind < 70) return WritePolyline();
    if (kind < 78) return WriteCircle();
    if (kind < 86) return WriteText();
    WriteInsert(kind >= 93);
  }

 private:
  std::uint64_t Begin(const char* type, std::uint64_t owner) {
    const std::uint64_t handle = frame_.NextHandle();
    out_.Text(0, type);
    out_.Handle(5, handle);
    out_.Handle(330, owner);
    out_.Text(100, kEntityMarker);
    out_.Text(8, layer_);
    return handle;
  }

  std::uint64_t BeginOnLayer(const char* type) {
    layer_ = frame_.Layers()[random_.Below(frame_.Layers().size())];
    return Begin(type, Frame::kModelSpace);
  }

  void Point(int code) {
    const double x = random_.Coordinate();
    out_.Point(code, x, random_.Coordinate());
  }

  void WriteLine() {
    BeginOnLayer("LINE");
    out_.Text(100, kLineMarker);
    Point(10);
    Point(11);
    ++counts_.lines;
  }

  void WritePolyline() {
    const int vertices = static_cast<int>(3 + random_.Below(18));
    BeginOnLayer("LWPOLYLINE");
    out_.Text(100, kPolylineMarker);
    out_.Integer(90, vertices);
    out_.Integer(70, static_cast<int>(random_.Below(2)));
    out_.Real(43, 0.0);
    for (int i = 0; i < vertices; ++i) {
      out_.Real(10, random_.Coordinate());
      out_.Real(20, random_.Coordinate());
    }
    ++counts_.polylines;
    counts_.vertices += static_cast<std::uint64_t>(vertices);
  }

  void WriteCircle() {
    BeginOnLayer("CIRCLE");
    out_.Text(100, kCircleMarker);
    Point(10);
    out_.Real(40, random_.Coordinate() / 1000.0);
    ++counts_.circles;
  }

  void WriteText() {
    BeginOnLayer("TEXT");
    out_.Text(100, kTextMarker);
    Point(10);
    out_.Real(40, 2.5);
    out_.Text(1, "Room " + std::to_string(++counts_.texts));
    out_.Text(100, kTextMarker);
  }

  void WriteInsert(bool withAttributes) {
    const std::uint64_t handle = BeginOnLayer("INSERT");
    out_.Text(100, kBlockReferenceMarker);
    if (withAttributes) out_.Integer(66, 1);
    out_.Text(2, frame_.Blocks()[random_.Below(frame_.Blocks().size())]);
    Point(10);
    if (random_.Below(3) == 0) out_.Real(50, static_cast<double>(random_.Below(360)));
    ++counts_.inserts;
    if (!withAttributes) return;
    for (const char* tag : Frame::kAttributeTags) WriteAttribute(handle, tag);
    Begin("SEQEND", handle);
  }

  void WriteAttribute(std::uint64_t insert, const char* tag) {
    Begin("ATTRIB", insert);
    out_.Text(100, kTextMarker);
    Point(10);
    out_.Real(40, 2.5);
    out_.Text(1, "Value " + std::to_string(++counts_.attributes));
    out_.Text(100, kAttributeMarker);
    out_.Integer(280, 0);
    out_.Text(2, tag);
    out_.Integer(70, 0);
    out_.Integer(280, 1);
  }

  TagStream& out_;
  Frame& frame_;
  Counts& counts_;
  Random random_;
  std::string layer_;
};

}  // namespace

void WriteEntities(TagStream& out, std::uint64_t untilBytes, Frame& frame, Counts& counts) {
  out.Text(0, "SECTION");
  out.Text(2, "ENTITIES");
  Mix mix(out, frame, counts);
  while (out.BytesWritten() < untilBytes) mix.Write();
  out.Text(0, "ENDSEC");
}

}  // namespace bench
