#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "generate/LargeDrawing.h"
#include "generate/TagStream.h"

namespace bench {

// All of a generated drawing but its entities.  Notes in `generated` what a reader must find.
class Frame {
 public:
  Frame(TagStream& out, Generated& generated);

  // Everything before the ENTITIES section.
  void WriteHead();
  // Everything behind it.
  void WriteTail();

  std::uint64_t NextHandle() { return nextHandle_++; }
  const std::vector<std::string>& Layers() const { return layers_; }
  const std::vector<std::string>& Blocks() const { return blocks_; }

  static constexpr const char* kAttributeTags[] = {"NUMBER", "NAME"};
  static constexpr std::uint64_t kModelSpace = 0x1F;
  // About what WriteTail writes.
  static constexpr std::uint64_t kTailBytes = 57000;

 private:
  void Expect(std::string name, std::string value);
  void BeginSection(const char* name);
  void EndSection();

  void Variable(const char* name, int code, const char* text);
  void WriteHeader();
  void WriteClasses();

  std::uint64_t BeginTable(const char* name, std::size_t count);
  void BeginRecord(const char* table, std::uint64_t owner, const char* marker,
                   const std::string& name, std::uint64_t handle);
  void WriteTables();
  void WriteLinetypes();
  void WriteLayers();
  void WriteViews();
  void WriteOtherTables();
  void WriteBlockRecords();

  void WriteBlocks();
  void BeginBlock(const std::string& name, std::uint64_t record, bool hasDefinitions);
  void EndBlock(std::uint64_t record);
  void WriteDefinition(std::uint64_t record, const char* tag);

  using Entries = std::vector<std::pair<std::string, std::uint64_t>>;
  std::uint64_t Entry(Entries& entries, std::string name);
  void WriteDictionary(std::uint64_t handle, std::uint64_t owner, const Entries& entries);
  void BeginObject(const char* type, std::uint64_t handle, std::uint64_t owner);
  void WriteObjects();
  void WriteGroups(std::uint64_t dictionary, std::uint64_t root);
  void WriteLayouts(std::uint64_t dictionary, std::uint64_t root);
  void WritePlotSettings(const std::string& pageSetup);

  TagStream& out_;
  Generated& generated_;
  std::vector<std::string> layers_;
  std::vector<std::string> blocks_;
  std::vector<std::uint64_t> blockRecords_;
  std::uint64_t nextHandle_ = 0x100;
};

}  // namespace bench
