// Listing a drawing's dependencies through the public interface alone.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "ZDXEngine/DependencyDetails.h"
#include "ZDXEngine/FileReferenceMgr.h"

namespace zdx_test {

// A record and what is told of it beside; texts in UTF-8.
struct WalkedFile {
  std::string refId;
  std::string source;
  int fileType = 0;
  bool canBeRepathed = false;
  bool isOverlay = false;
  ZDXEngine::DependencyDetail detail;

  std::string StoredPath() const;
  std::string Name() const;
};

struct FileWalk {
  WalkedFile root;
  std::vector<WalkedFile> files;
  ZDXEngine::DwgFileType drawingType = ZDXEngine::DwgFileType::Unrecognized;
  bool statusFlag = true;
  bool hasDatabase = false;

  // The first of the files that is stored as `path`; fails the test if there is none.
  WalkedFile At(const std::string& path) const;
};

// Who owns what a walk finds out.
enum class NodeOwner { EachRecord, Root };

struct WalkOptions {
  ZDXEngine::DependencySettings settings = {};
  bool directOnly = false;
  NodeOwner owner = NodeOwner::EachRecord;
};

// Walks the drawing and gives back all of it; the engine is started at the first call, with the
// search for files of every kind.  Fails the test if the walk gives no root.
FileWalk WalkFiles(const std::filesystem::path& drawing, const WalkOptions& options = {});

}  // namespace zdx_test
