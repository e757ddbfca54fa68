// What stands behind a ZnDwgDepends::DwgDepends.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "backends/walker/Node.h"
#include "backends/walker/Surroundings.h"

namespace zdx::walker {

class EmbeddedDepends : public ZnDwgDepends::DependsBody {
 public:
  EmbeddedDepends(std::unique_ptr<Surroundings> surroundings, std::wstring path,
                  ZnDwgDepends::DwgDependsSettings settings, bool directOnly);
  ~EmbeddedDepends() override;
  EmbeddedDepends(const EmbeddedDepends&) = delete;
  EmbeddedDepends& operator=(const EmbeddedDepends&) = delete;

  void setDeleteRoot(bool deletes) override { deletesNodes_ = deletes; }
  // False, and no files, if it walked before.
  bool getDependencies(std::vector<ZnDwgDepends::File*>& files, bool all) override;
  bool getErrorInfos(std::vector<ZnDwgDepends::DwgDepends::ErrorInfo>& errors) override;

 private:
  std::unique_ptr<Surroundings> surroundings_;
  const std::wstring path_;
  const ZnDwgDepends::DwgDependsSettings settings_;
  const bool directOnly_;
  bool deletesNodes_ = true;
  bool hasWalked_ = false;
  bool isRootRead_ = false;
  std::vector<std::unique_ptr<Node>> nodes_;
  std::vector<ZnDwgDepends::DwgDepends::ErrorInfo> errors_;
};

}  // namespace zdx::walker
