// Files that a drawing names beside those of its blocks, pictures, text styles and layouts.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace drawing {

enum class UnderlayForm { Pdf, Dwf, Dgn };

// A document's page that may be shown below the drawing.  AC1015 and later.
struct UnderlaySpec {
  UnderlayForm form = UnderlayForm::Pdf;
  // The key in the dictionary of its form.
  std::string name;
  std::string path;
  // The page, sheet or model.
  std::string item = "1";
  std::string handle = {};
};

// AC1024 and later.
struct PointCloudSpec {
  std::string name;
  std::string path;
  // Of the second class of such objects, which has a dictionary of its own.
  bool isOfSecondClass = false;
  std::string handle = {};
};

// AC1021 and later.
struct DataLinkSpec {
  std::string name;
  // A file, and behind an exclamation mark what is taken from it.
  std::string connection;
  std::string adapter = "SheetAdapter";
  std::string description = {};
  std::string tooltip = {};
  std::string handle = {};
};

// A material with the pictures of its maps; empty for a map without one.  AC1021 and later.
struct MaterialSpec {
  std::string name;
  std::string description = {};
  std::string diffuse = {};
  std::string specular = {};
  std::string reflection = {};
  std::string opacity = {};
  std::string bump = {};
  std::string refraction = {};
  std::string handle = {};
};

struct ListedFile {
  // As the drawing names it.
  std::string name;
  // Where it was found; empty for nowhere.
  std::string path = {};
  // By its place in the list of features.
  int feature = 0;
};

// The file's own list of what it needs, of DWG files of AC1018 and later.
struct FileListSpec {
  std::vector<std::string> features = {};
  std::vector<ListedFile> files = {};
  // Bytes of one character: 1, 2 or 4.  Nothing: 1 in AC1018, 2 in later versions.
  std::optional<int> characterSize = {};
};

}  // namespace drawing
