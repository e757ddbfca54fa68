#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/drawing/EntitySpec.h"
#include "support/drawing/ObjectSpec.h"
#include "support/drawing/ReferenceSpec.h"
#include "support/drawing/Tags.h"
#include "support/drawing/Tokens.h"

namespace drawing {

// Of model space's block record; a spec can't choose it for an object of its own.
inline constexpr const char* kModelSpaceHandle = "1";

// Of layers, text styles and blocks: the record came with the drawing of the xref that its name
// begins with, up to a vertical bar.
inline constexpr int kXrefDependent = 16;

struct LayerSpec {
  LayerSpec(const char* layerName) : name(layerName) {}
  LayerSpec(std::string layerName, int layerColour = 7, std::string layerLinetype = {},
            int layerFlags = 0)
      : name(std::move(layerName)),
        colour(layerColour),
        linetype(std::move(layerLinetype)),
        flags(layerFlags) {}

  std::string name;
  int colour = 7;
  // Empty for the continuous one.
  std::string linetype;
  int flags = 0;
  std::string handle;
};

struct LinetypeSpec {
  std::string name;
  std::string comments;
  // Lengths of strokes (positive) and gaps (negative).
  std::vector<double> dashes = {};
  int flags = 0;
};

struct TextStyleSpec {
  TextStyleSpec(const char* styleName) : name(styleName) {}
  TextStyleSpec(std::string styleName, std::string fontFile, std::string bigFontFile = {})
      : name(std::move(styleName)), font(std::move(fontFile)), bigFont(std::move(bigFontFile)) {}

  // Empty for a file of shapes, whose flags have bit 1.
  std::string name;
  std::string font = "txt";
  std::string bigFont;
  int flags = 0;
  // The family of an outline font, empty for none.
  std::string family;
  std::string handle;
};

// The record of a file of shapes.
TextStyleSpec ShapeFile(std::string file, std::string handle = {});

struct ViewSpec {
  ViewSpec(const char* viewName) : name(viewName) {}
  ViewSpec(std::string viewName, Point viewCentre, double viewWidth, double viewHeight)
      : name(std::move(viewName)), centre(viewCentre), width(viewWidth), height(viewHeight) {}

  std::string name;
  Point centre;
  double width = 100.0;
  double height = 100.0;
};

enum class Xref { None, Attached, Overlaid };

// By what a dynamic block's record is known as one: an entry of its extension dictionary, its name
// in extended data, or both.
enum class DynamicMark { Both, Entry, TrueName };

struct BlockSpec {
  std::string name;
  std::vector<AttributeSpec> definitions = {};
  std::vector<EntitySpec> entities = {};
  Xref xref = Xref::None;
  // Of an xref: where the drawing lies, as stored.
  std::string path = {};
  // Of an xref: put aside, which DWG files tell from AC1015 on.
  bool isUnloaded = false;
  // Of an overlaid xref: DWG files mark it as overlaid, but not as an xref as well.
  bool isOverlayAlone = false;
  std::string description = {};
  // Added to the bits that follow from the rest.
  int flags = 0;
  // Of the block record.
  std::string handle = {};
  std::vector<NamedObject> extension = {};
  std::vector<Tag> extendedData = {};
  // From AC1012 to AC1021 the record of a dynamic block is an anonymous one; the name stands in
  // extended data, in DWG files in the block's first entity, too.  AC1009 knows no such blocks.
  bool isDynamic = false;
  DynamicMark dynamicMark = DynamicMark::Both;
  // Of an anonymous block ("*U7"): the name of the dynamic block that it shows a variation of.
  std::string copyOf = {};
};

// Capitals are the same as small letters.
bool IsSameName(std::string_view one, std::string_view other);

BlockSpec XrefBlock(std::string name, std::string path, Xref xref = Xref::Attached);

// A layout and what stands on its paper.
struct LayoutSpec {
  LayoutSpec(const char* layoutName) : name(layoutName) {}
  LayoutSpec(std::string layoutName, std::vector<EntitySpec> paperEntities = {},
             std::string plotStyleSheet = {})
      : name(std::move(layoutName)),
        entities(std::move(paperEntities)),
        styleSheet(std::move(plotStyleSheet)) {}

  std::string name;
  std::vector<EntitySpec> entities;
  std::string styleSheet;
  std::string pageSetup;
  std::string printer = "none_device";
  std::string media = "A3";
};

// A page setup of its own, kept under its name.
struct PageSetupSpec {
  PageSetupSpec(const char* setupName) : name(setupName) {}
  PageSetupSpec(std::string setupName, std::string setupPrinter, std::string plotStyleSheet = {})
      : name(std::move(setupName)),
        printer(std::move(setupPrinter)),
        styleSheet(std::move(plotStyleSheet)) {}

  std::string name;
  std::string printer = "none_device";
  std::string styleSheet;
};

struct GroupSpec {
  GroupSpec(const char* groupName) : name(groupName) {}
  GroupSpec(std::string groupName, std::string groupDescription,
            std::vector<std::string> memberHandles)
      : name(std::move(groupName)),
        description(std::move(groupDescription)),
        members(std::move(memberHandles)) {}

  std::string name;
  std::string description;
  std::vector<std::string> members;
};

// A picture placed in model space.
struct ImageSpec {
  std::string name;
  std::string path;
  int pixelsAcross = 1;
  int pixelsUp = 1;
  Point at = {};
  double width = 1.0;
  std::string layer = "0";
  // Of the definition.
  std::string handle = {};
};

struct ClassSpec {
  std::string type;
  std::string className;
  std::string application = "ObjectLib Classes";
  bool isEntity = false;
};

struct SummarySpec {
  std::string title = {};
  std::string subject = {};
  std::string author = {};
  std::string keywords = {};
  std::string comments = {};
  std::string lastSavedBy = {};
  std::string revisionNumber = {};
  // Of DWG files, whose summary has a base beside that of the settings; empty for the same one.
  std::string hyperlinkBase = {};
};

// A text about the program that wrote the drawing, under an id of the form
// 00000000-0000-0000-0000-000000000000.
struct AppInfoEntry {
  std::string id;
  std::string text;
};

struct AppInfoSpec {
  // The mark that the list begins with.
  std::string label = "AppInfoDataList";
  std::vector<AppInfoEntry> entries = {};
  // Of a list of its own, behind the first one and with a mark that a search of the file's bytes
  // finds.  None: no such list.
  std::vector<AppInfoEntry> history = {};
};

struct CustomProperty {
  std::string name;
  std::string value;
};

// The names of blocks are told as the header tells them: without the leading underscore.
struct SettingsSpec {
  std::string menu = ".";
  std::string projectName = {};
  std::string hyperlinkBase = {};
  std::string styleSheet = {};
  std::string dimpost = {};
  std::string dimapost = {};
  std::string dimblk = {};
  std::string dimblk1 = {};
  std::string dimblk2 = {};
};

enum class PreviewKind { Bitmap, Metafile, Png };

// A picture of the drawing.  A bitmap comes without its file header.
struct PreviewSpec {
  PreviewKind kind = PreviewKind::Bitmap;
  std::string bytes;
};

// Whether block records list the entities that insert the block, and in which order: as the
// entities stand in the drawing, block by block from model space on, or from the last to the first.
enum class ReferenceLists { None, AsDrawn, Reversed };

struct HeaderVariable {
  std::string name;
  std::vector<Tag> values;
};

// A drawing to be made.  All texts are UTF-8.  What the chosen version has no place for (a summary
// in AC1009, layouts below AC1015, pictures below AC1014) or a format has none for is left out of
// the file.
struct DrawingSpec {
  std::string version = "AC1032";
  // Encodes the texts below AC1021.  Files of every version may tell it.
  std::string codePage = "ANSI_1252";
  bool statesCodePage = true;
  // AC1009 only; the later versions can't do without.
  bool hasHandles = true;
  // Whether records, entities and objects tell their owners.
  bool statesOwners = true;

  // AC1009 only: whether there are blocks for model and paper space.
  bool hasSpaceBlocks = true;
  // AC1015 and later.  Nothing: as drawn in DWG files, none in DXF files.
  std::optional<ReferenceLists> referenceLists;

  // Of DWG files: 0 to 255, or nothing for the one that files of the version mostly have.
  std::optional<int> maintenance;

  SummarySpec summary;
  // Of DWG files: written even if it holds nothing.
  bool hasSummary = true;
  // At most ten below AC1018.
  std::vector<CustomProperty> customProperties;
  SettingsSpec settings;
  // Take the place of the maker's own variables of the same names, or follow them.
  std::vector<HeaderVariable> headerVariables;

  std::vector<ClassSpec> classes;

  std::vector<LayerSpec> layers = {"0"};
  // Behind the standard ones.
  std::vector<LinetypeSpec> linetypes;
  std::vector<TextStyleSpec> textStyles = {"Standard"};
  std::vector<ViewSpec> views;
  std::vector<std::string> applications = {kApplication};

  // Behind model space and paper spaces.
  std::vector<BlockSpec> blocks;
  // Attribute definitions in model space, before its other entities.
  std::vector<AttributeSpec> definitions;
  std::vector<EntitySpec> entities;
  // Entries of the extension dictionary of model space's block record.
  std::vector<NamedObject> modelExtension;
  std::string modelStyleSheet;
  // Beside the one of model space.
  std::vector<LayoutSpec> layouts = {"Layout1"};

  std::vector<GroupSpec> groups;
  std::vector<std::string> mlineStyles = {"Standard"};
  std::vector<PageSetupSpec> plotSettings;
  // Behind the standard entries of the root dictionary.
  std::vector<NamedObject> rootEntries;
  std::vector<ImageSpec> images;
  std::vector<UnderlaySpec> underlays;
  std::vector<PointCloudSpec> pointClouds;
  std::vector<DataLinkSpec> dataLinks;
  std::vector<MaterialSpec> materials;
  FileListSpec fileList;
  // The program that wrote the drawing, told in DWG files of AC1018 and later.  No entries: told
  // nothing.
  AppInfoSpec appInfo;
  std::vector<PreviewSpec> previews;
};

}  // namespace drawing
