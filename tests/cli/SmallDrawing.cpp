#include "cli/SmallDrawing.h"

#include <cstddef>

#include "support/dxf/Tokens.h"

namespace zdx_test {

namespace {

constexpr const char* kVersion = "AC1032";
constexpr int kFirstRecordHandle = 0x40;

class Tags {
 public:
  Tags& Add(int code, const std::string& value) {
    text_ += std::to_string(code) + "\n" + value + "\n";
    return *this;
  }

  Tags& Variable(const std::string& name, int code, const std::string& value) {
    return Add(9, "$" + name).Add(code, value);
  }

  Tags& Begin(const std::string& kind, const std::string& name) {
    return Add(0, kind).Add(2, name);
  }

  // The start of a table record with a handle of its own.
  Tags& Record(const std::string& kind, const std::string& name) {
    // Only digits, so that decimal text is a handle as well.
    return Add(0, kind).Add(5, std::to_string(nextHandle_++)).Add(2, name).Add(70, "0");
  }

  const std::string& Text() const { return text_; }

 private:
  std::string text_;
  int nextHandle_ = kFirstRecordHandle;
};

void AddHeader(Tags& tags, const SmallDrawing& drawing) {
  tags.Begin("SECTION", "HEADER")
      .Add(9, dxf::kVersionVariable)
      .Add(1, kVersion)
      .Variable("DWGCODEPAGE", 3, "ANSI_1252")
      .Variable("TITLE", 1, drawing.title)
      .Variable("SUBJECT", 1, "")
      .Variable("AUTHOR", 1, drawing.author)
      .Variable("KEYWORDS", 1, "")
      .Variable("COMMENTS", 1, "")
      .Variable("LASTSAVEDBY", 1, "Grace")
      .Variable("REVISIONNUMBER", 1, "7");
  for (const auto& [key, value] : drawing.custom) {
    tags.Variable("CUSTOMPROPERTYTAG", 1, key).Variable("CUSTOMPROPERTY", 1, value);
  }
  tags.Variable("MENU", 1, "site").Variable("PROJECTNAME", 1, drawing.projectName);
  for (const char* const name :
       {"HYPERLINKBASE", "STYLESHEET", "DIMPOST", "DIMAPOST", "DIMBLK", "DIMBLK1", "DIMBLK2"}) {
    tags.Variable(name, 1, "");
  }
  tags.Add(0, "ENDSEC");
}

void AddTables(Tags& tags, const SmallDrawing& drawing) {
  tags.Begin("SECTION", "TABLES").Begin("TABLE", "LTYPE");
  for (const auto& [name, comments] : drawing.linetypes) {
    tags.Record("LTYPE", name).Add(3, comments);
  }
  tags.Add(0, "ENDTAB").Begin("TABLE", "LAYER");
  for (const std::string& name : drawing.layers) tags.Record("LAYER", name).Add(62, "7");
  tags.Add(0, "ENDTAB").Add(0, "ENDSEC");
}

void AddObjects(Tags& tags, const SmallDrawing& drawing) {
  tags.Begin("SECTION", "OBJECTS")
      .Add(0, "DICTIONARY")
      .Add(5, "C")
      .Add(330, "0")
      .Add(3, drawing.namedObject)
      .Add(350, "D")
      .Add(0, "DICTIONARY")
      .Add(5, "D")
      .Add(330, "C")
      .Add(0, "ENDSEC");
}

void AddPicture(Tags& tags, const SmallDrawing& drawing) {
  if (drawing.picture.empty()) return;
  tags.Begin("SECTION", "THUMBNAILIMAGE").Add(90, std::to_string(drawing.picture.size()));
  std::string digits;
  for (const char c : drawing.picture) {
    const auto byte = static_cast<unsigned char>(c);
    digits += "0123456789ABCDEF"[byte >> 4];
    digits += "0123456789ABCDEF"[byte & 0xF];
  }
  constexpr std::size_t kLongest = 254;
  for (std::size_t at = 0; at < digits.size(); at += kLongest) {
    tags.Add(310, digits.substr(at, kLongest));
  }
  tags.Add(0, "ENDSEC");
}

}  // namespace

std::string DxfText(const SmallDrawing& drawing) {
  Tags tags;
  AddHeader(tags, drawing);
  AddTables(tags, drawing);
  AddObjects(tags, drawing);
  AddPicture(tags, drawing);
  return tags.Add(0, "EOF").Text();
}

}  // namespace zdx_test
