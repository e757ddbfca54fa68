#include "generate/Frame.h"

#include <string_view>

#include "generate/Tokens.h"

namespace bench {
namespace {

constexpr int kLayers = 50;
constexpr int kBlocks = 24;
constexpr int kShapesInBlock = 12;

// Above all handles of any drawing that fits a disk.
constexpr std::uint64_t kHandleSeed = 0x100000000;

std::string Numbered(std::string_view name, int number) {
  return std::string(name) + std::to_string(number);
}

}  // namespace

Frame::Frame(TagStream& out, Generated& generated) : out_(out), generated_(generated) {
  layers_.push_back("0");
  for (int i = 1; i < kLayers; ++i) layers_.push_back(Numbered("A-LAYER-", i));
  for (int i = 0; i < kBlocks; ++i) {
    blocks_.push_back(Numbered("SYMBOL_", i));
    blockRecords_.push_back(NextHandle());
  }
  generated_.counts.layers = layers_.size();
  generated_.counts.blocks = blocks_.size();
}

void Frame::WriteHead() {
  WriteHeader();
  WriteClasses();
  WriteTables();
  WriteBlocks();
}

void Frame::WriteTail() {
  WriteObjects();
  out_.Text(0, "EOF");
}

void Frame::Expect(std::string name, std::string value) {
  generated_.expected.emplace_back(std::move(name), std::move(value));
}

void Frame::BeginSection(const char* name) {
  out_.Text(0, "SECTION");
  out_.Text(2, name);
}

void Frame::EndSection() { out_.Text(0, "ENDSEC"); }

void Frame::Variable(const char* name, int code, const char* text) {
  out_.Text(9, name);
  out_.Text(code, text);
}

void Frame::WriteHeader() {
  BeginSection("HEADER");
  Variable(kVersionVariable, 1, "AC1032");
  Variable("$DWGCODEPAGE", 3, "ANSI_1252");
  Variable("$TITLE", 1, "Generated plan");
  Expect("2", "Generated plan");
  Variable("$LASTSAVEDBY", 1, "benchmark");
  Expect("8", "benchmark");
  Variable("$CUSTOMPROPERTYTAG", 1, "Purpose");
  Variable("$CUSTOMPROPERTY", 1, "Measurement");
  Expect("Purpose", "Measurement");
  out_.Text(9, "$INSBASE");
  out_.Point(10, 0.0, 0.0);
  Variable("$DIMBLK", 1, "");
  Variable("$DIMPOST", 1, "<> mm");
  Expect("Dimpost", "<> mm");
  Variable("$MENU", 1, ".");
  Expect("Menu", ".");
  out_.Text(9, "$HANDSEED");
  out_.Handle(5, kHandleSeed);
  Variable("$PROJECTNAME", 1, "Benchmark");
  Expect("ProjectName", "Benchmark");
  EndSection();
}

void Frame::WriteClasses() {
  BeginSection("CLASSES");
  out_.Text(0, "CLASS");
  out_.Text(1, "LAYOUT");
  out_.Text(2, kLayoutMarker);
  out_.Text(3, "ObjectLib Classes");
  for (const int code : {90, 91, 280, 281}) out_.Integer(code, 0);
  EndSection();
}

void Frame::WriteBlocks() {
  BeginSection("BLOCKS");
  BeginBlock("*Model_Space", kModelSpace, false);
  EndBlock(kModelSpace);
  BeginBlock("*Paper_Space", kModelSpace + 1, false);
  EndBlock(kModelSpace + 1);
  for (std::size_t i = 0; i < blocks_.size(); ++i) {
    const std::uint64_t record = blockRecords_[i];
    BeginBlock(blocks_[i], record, true);
    for (const char* tag : kAttributeTags) WriteDefinition(record, tag);
    for (int shape = 0; shape < kShapesInBlock; ++shape) {
      out_.Text(0, "LINE");
      out_.Handle(5, NextHandle());
      out_.Handle(330, record);
      out_.Text(100, kEntityMarker);
      out_.Text(8, "0");
      out_.Text(100, kLineMarker);
      out_.Point(10, shape, 0.125 * shape);
      out_.Point(11, 0.375 * shape, shape);
    }
    EndBlock(record);
  }
  EndSection();
}

void Frame::BeginBlock(const std::string& name, std::uint64_t record, bool hasDefinitions) {
  out_.Text(0, "BLOCK");
  out_.Handle(5, NextHandle());
  out_.Handle(330, record);
  out_.Text(100, kEntityMarker);
  out_.Text(8, "0");
  out_.Text(100, kBlockBeginMarker);
  out_.Text(2, name);
  out_.Integer(70, hasDefinitions ? 2 : 0);
  out_.Point(10, 0.0, 0.0);
  out_.Text(3, name);
  out_.Text(1, "");
}

void Frame::EndBlock(std::uint64_t record) {
  out_.Text(0, "ENDBLK");
  out_.Handle(5, NextHandle());
  out_.Handle(330, record);
  out_.Text(100, kEntityMarker);
  out_.Text(8, "0");
  out_.Text(100, kBlockEndMarker);
}

void Frame::WriteDefinition(std::uint64_t record, const char* tag) {
  out_.Text(0, "ATTDEF");
  out_.Handle(5, NextHandle());
  out_.Handle(330, record);
  out_.Text(100, kEntityMarker);
  out_.Text(8, "0");
  out_.Text(100, kTextMarker);
  out_.Point(10, 0.0, 0.0);
  out_.Real(40, 2.5);
  out_.Text(1, "");
  out_.Text(100, kAttributeDefinitionMarker);
  out_.Integer(280, 0);
  out_.Text(3, std::string("Enter ") + tag);
  out_.Text(2, tag);
  out_.Integer(70, 0);
  out_.Integer(280, 1);
}

}  // namespace bench
