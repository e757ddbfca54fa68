#include "generate/Frame.h"
#include "generate/Tokens.h"

namespace bench {
namespace {

constexpr int kColours = 250;

struct Linetype {
  const char* name;
  const char* comments;
};

constexpr Linetype kLinetypes[] = {{"ByBlock", ""},
                                   {"ByLayer", ""},
                                   {"Continuous", "Solid line"},
                                   {"HIDDEN", "Hidden __ __ __"},
                                   {"CENTRE", "Centre ____ _ ____"},
                                   {"FENCE", "Fence ----x----x"}};

constexpr const char* kViews[] = {"Overview", "Entrance", "Detail 1"};

}  // namespace

std::uint64_t Frame::BeginTable(const char* name, std::size_t count) {
  const std::uint64_t handle = NextHandle();
  out_.Text(0, "TABLE");
  out_.Text(2, name);
  out_.Handle(5, handle);
  out_.Handle(330, 0);
  out_.Text(100, kSymbolTableMarker);
  out_.Integer(70, static_cast<int>(count));
  return handle;
}

void Frame::BeginRecord(const char* table, std::uint64_t owner, const char* marker,
                        const std::string& name, std::uint64_t handle) {
  out_.Text(0, table);
  out_.Handle(5, handle);
  out_.Handle(330, owner);
  out_.Text(100, kSymbolTableRecordMarker);
  out_.Text(100, marker);
  out_.Text(2, name);
}

void Frame::WriteTables() {
  BeginSection("TABLES");
  WriteLinetypes();
  WriteLayers();
  WriteViews();
  WriteOtherTables();
  WriteBlockRecords();
  EndSection();
}

void Frame::WriteLinetypes() {
  const std::uint64_t table = BeginTable("LTYPE", std::size(kLinetypes));
  for (const Linetype& linetype : kLinetypes) {
    BeginRecord("LTYPE", table, kLinetypeTableRecordMarker, linetype.name, NextHandle());
    out_.Integer(70, 0);
    out_.Text(3, linetype.comments);
    out_.Integer(72, 65);
    out_.Integer(73, 0);
    out_.Real(40, 0.0);
    Expect("LineType Name", linetype.name);
    Expect("LineType Comments", linetype.comments);
  }
  out_.Text(0, "ENDTAB");
}

void Frame::WriteLayers() {
  const std::uint64_t table = BeginTable("LAYER", layers_.size());
  int colour = 1;
  for (const std::string& layer : layers_) {
    BeginRecord("LAYER", table, kLayerTableRecordMarker, layer, NextHandle());
    out_.Integer(70, 0);
    out_.Integer(62, colour++ % kColours);
    out_.Text(6, "Continuous");
    out_.Integer(370, -3);
    Expect("Layer Name", layer);
  }
  out_.Text(0, "ENDTAB");
}

void Frame::WriteViews() {
  const std::uint64_t table = BeginTable("VIEW", std::size(kViews));
  for (const char* view : kViews) {
    BeginRecord("VIEW", table, kViewTableRecordMarker, view, NextHandle());
    out_.Integer(70, 0);
    out_.Real(40, 100.0);
    out_.Real(10, 0.0);
    out_.Real(20, 0.0);
    out_.Real(41, 150.0);
    Expect("View Name", view);
  }
  out_.Text(0, "ENDTAB");
}

void Frame::WriteOtherTables() {
  for (const char* empty : {"VPORT", "UCS", "DIMSTYLE"}) {
    BeginTable(empty, 0);
    out_.Text(0, "ENDTAB");
  }
  const std::uint64_t styles = BeginTable("STYLE", 1);
  BeginRecord("STYLE", styles, kTextStyleTableRecordMarker, "Standard", NextHandle());
  out_.Integer(70, 0);
  out_.Text(3, "txt");
  out_.Text(4, "");
  out_.Text(0, "ENDTAB");

  const std::uint64_t applications = BeginTable("APPID", 1);
  BeginRecord("APPID", applications, kRegAppTableRecordMarker, kApplication, NextHandle());
  out_.Integer(70, 0);
  out_.Text(0, "ENDTAB");
}

void Frame::WriteBlockRecords() {
  const std::uint64_t table = BeginTable("BLOCK_RECORD", blocks_.size() + 2);
  const auto record = [&](const std::string& name, std::uint64_t handle) {
    BeginRecord("BLOCK_RECORD", table, kBlockTableRecordMarker, name, handle);
    out_.Handle(340, 0);
    out_.Integer(70, 0);
    out_.Integer(280, 1);
    out_.Integer(281, 0);
  };
  record("*Model_Space", kModelSpace);
  record("*Paper_Space", kModelSpace + 1);
  for (std::size_t i = 0; i < blocks_.size(); ++i) record(blocks_[i], blockRecords_[i]);
  out_.Text(0, "ENDTAB");
}

}  // namespace bench
