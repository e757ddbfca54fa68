// Drawings and files that are told, not read.
#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "backends/walker/Surroundings.h"

namespace walker_test {

// The bits that the engine always passes.
inline constexpr ZnDwgDepends::DwgDependsSettings kAlways = 0xb8d;

zdx::model::FileReference Reference(zdx::model::FileUse use, std::wstring path,
                                    std::uint64_t handle = 0);
zdx::model::FileReference Attached(std::wstring path, std::uint64_t handle = 0);
zdx::model::FileReference Overlaid(std::wstring path, std::uint64_t handle = 0);

class MadeUpWorld : public zdx::walker::Surroundings {
 public:
  struct Drawing {
    std::vector<zdx::model::FileReference> references = {};
    zdx::walker::ErrorCondition condition = zdx::walker::ErrorCondition::kNoError;
    std::wstring reason = {};
  };
  struct Question {
    std::wstring name;
    int hint;
  };

  zdx::walker::Reading Read(const std::wstring& path) override;
  std::wstring Find(const std::wstring& name, ZnDbDatabase* asking, int hint) override;
  std::wstring Identity(const std::wstring& path) override;

  // By path; each is found by its path as its name.
  std::map<std::wstring, Drawing> drawings;
  // Where other names lead; every name that is no drawing leads nowhere else.
  std::map<std::wstring, std::wstring> files;
  // Names of one file beside that of its drawing.
  std::map<std::wstring, std::wstring> otherNames;
  // Find throws std::runtime_error when it is asked for this name.
  std::wstring forbidden;

  std::vector<std::wstring> opened;
  std::vector<Question> asked;
  // The most drawings that were open at a time.
  int mostOpen = 0;
  int open = 0;
};

// What a walk of `world` from `path` gives.
std::vector<std::unique_ptr<zdx::walker::Node>> WalkFrom(
    MadeUpWorld& world, const std::wstring& path,
    ZnDwgDepends::DwgDependsSettings settings = kAlways, bool directOnly = false);

using Nodes = std::vector<std::unique_ptr<zdx::walker::Node>>;
// The names of the nodes' files, in order.
std::vector<std::wstring> NamesOf(const Nodes& nodes);
std::vector<std::wstring> NamesOf(const std::vector<ZnDwgDepends::File*>& files);

}  // namespace walker_test
