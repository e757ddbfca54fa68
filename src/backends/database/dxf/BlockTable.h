// The blocks of a drawing: their records, and where the entities of each stand.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "backends/database/dxf/SectionMap.h"
#include "backends/database/dxf/TagStream.h"
#include "backends/database/model/Drawing.h"

namespace zdx::dxf {

// What is needed to read blocks.
struct BlockSource {
  const TagStream* stream = nullptr;
  model::Version version = model::kVersion1009;
  // The text of a name's bytes.
  std::function<std::wstring(std::string_view)> nameOf;
  // Tells what is wrong at a place, and that tags are damaged there; kNowhere if they aren't.
  std::function<void(const wchar_t*, std::size_t)> warn;
  std::function<void(std::size_t)> warnOfDamage;
};

// A record, or what stands for one.
struct Block {
  model::ObjectKey key = {};
  std::uint64_t handle = 0;
  // The extension dictionary.
  std::uint64_t extension = 0;
  // The handle of the dynamic block whose variation this one carries.
  std::uint64_t original = 0;
  // Where the tag with the true name of a dynamic block stands, if the record has another.
  std::size_t trueNameAt = kNowhere;
  // Its entities in the BLOCKS section.
  std::size_t begin = 0;
  std::size_t end = 0;
  // Whether it is model space or a layout's paper.
  bool isLayout = false;
  // nullopt if nobody asked yet.
  std::optional<bool> isDynamic;
};

// The order is that of the block table; blocks without a record stand behind the others.  Where a
// name or handle comes twice the first block has it.
class BlockTable {
 public:
  // The records that stand for the spaces of a drawing that has neither records nor blocks of them.
  static constexpr model::ObjectKey kMadeModelSpace{kNowhere - 1};
  static constexpr model::ObjectKey kMadePaperSpace{kNowhere - 2};

  BlockTable() = default;
  // Reads the records at the places `records`, and goes once over the section of blocks.
  BlockTable(const BlockSource& source, const std::vector<model::ObjectKey>& records,
             const std::optional<Section>& section);

  // The keys in the order in which they are told.
  const std::vector<model::ObjectKey>& order() const { return order_; }
  const std::vector<Block>& all() const { return blocks_; }

  // These give a block, or null.
  Block* Find(model::ObjectKey key);
  // By the name that references use, in any case.
  const Block* OfName(const std::wstring& name) const;
  const Block* OfHandle(std::uint64_t handle) const;
  // The one among whose entities in the BLOCKS section `at` is.
  const Block* Containing(std::size_t at) const;
  const Block* modelSpace() const { return At(modelSpace_); }
  const Block* paperSpace() const { return At(paperSpace_); }

  // The variations of the dynamic block with that handle, in table order.
  std::vector<model::ObjectKey> Variations(std::uint64_t handle) const;

  // Whether `name` is that of model space or a paper.
  static bool IsSpaceName(std::wstring_view name);

 private:
  using Number = std::uint32_t;
  static constexpr Number kNone = ~Number{0};
  // The begin of a block in its section, and the end of its entities.
  struct Begin {
    std::size_t at = 0;
    std::size_t body = 0;
    std::size_t end = 0;
    std::uint64_t owner = 0;
    std::string_view name;
  };

  // Folded, and the number of its block.
  using Name = std::pair<std::wstring, Number>;

  void ReadRecord(const BlockSource& source, model::ObjectKey key, std::vector<Name>& trueNames);
  std::vector<Begin> ReadSection(const BlockSource& source, const Section& section);
  void Place(const BlockSource& source, const std::vector<Begin>& begins);
  void PlaceIn(const BlockSource& source, Number number, const Begin& begin);
  Number Append(const Begin& begin);
  void Make(std::wstring_view name, model::ObjectKey key);
  void SortHandles();
  void SortPlaces();
  void SortOrder();
  const Block* At(Number number) const { return number == kNone ? nullptr : &blocks_[number]; }
  Number NumberOfName(const std::wstring& folded) const;
  Number NumberOfHandle(std::uint64_t handle) const;
  Number NumberOfSpace(std::wstring_view name, std::wstring_view oldName) const;

  std::vector<Block> blocks_;
  std::vector<model::ObjectKey> order_;
  Number modelSpace_ = kNone;
  Number paperSpace_ = kNone;

  // Each ascending.
  std::vector<Name> names_;
  std::vector<std::pair<std::uint64_t, Number>> handles_;
  std::vector<std::pair<model::ObjectKey, Number>> keys_;
  // By their begin; those that have entities of their own.
  std::vector<std::pair<std::size_t, Number>> places_;
  // The handle of the dynamic block, and the place in the order.
  std::vector<std::pair<std::uint64_t, Number>> variations_;
};

}  // namespace zdx::dxf
