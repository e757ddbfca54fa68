#include "backends/database/modeldoc/ModelDocuments.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>

#include "backends/database/file/FreshFolder.h"
#include "backends/database/file/Replacement.h"
#include "backends/database/modeldoc/SafeLeafName.h"
#include "backends/database/modeldoc/Tokens.h"
#include "backends/database/zndb/EmbeddedDatabase.h"
#include "base/CaseFold.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace zdx::database {
namespace {

// Null if nothing was read.
model::Drawing* DrawingOf(ZnDbDatabase& database) {
  return static_cast<EmbeddedDatabase&>(database.body()).drawing();
}

std::optional<model::ObjectKey> ObjectUnder(model::Drawing& drawing, model::ObjectKey dictionary,
                                            std::wstring_view key) {
  for (const model::DictionaryEntry& entry : drawing.DictionaryEntries(dictionary)) {
    if (CompareIgnoringCase(entry.key, key) == 0) return drawing.Find(entry.target);
  }
  return std::nullopt;
}

std::optional<model::ObjectKey> EmbeddedDrawingOf(model::Drawing& drawing) {
  const auto root = drawing.RootDictionary();
  if (!root) return std::nullopt;
  const auto documents = ObjectUnder(drawing, *root, kModelDocumentsKey);
  using Kind = model::ObjectDescription::Kind;
  if (!documents || drawing.Describe(*documents).kind != Kind::kDictionary) return std::nullopt;
  return ObjectUnder(drawing, *documents, kEmbeddedDrawingKey);
}

struct EmbeddedFile {
  std::wstring name;
  std::string bytes;
};

// The first name, and all bytes.
EmbeddedFile ReadEmbeddedFile(model::Drawing& drawing, model::ObjectKey record) {
  EmbeddedFile file;
  for (const model::FreeValue& value : drawing.FreeValues(record)) {
    if (value.code == kLeafNameCode && file.name.empty()) file.name = value.text;
    if (value.code == kFileChunkCode) file.bytes += value.bytes;
  }
  return file;
}

bool WriteFile(const std::wstring& path, const std::string& bytes) {
  auto target = file::Replacement::Begin(path);
  auto* const writing = std::get_if<file::Replacement>(&target);
  return writing != nullptr && !writing->Append(bytes) && !writing->Commit();
}

// The path of the new file; nullopt if it can't be made.
std::optional<std::wstring> Unpack(const EmbeddedFile& embedded) {
  const auto made = file::MakeFreshFolder();
  const auto* const folder = std::get_if<std::wstring>(&made);
  if (folder == nullptr) return std::nullopt;
  std::wstring path = *folder + static_cast<wchar_t>(std::filesystem::path::preferred_separator) +
                      SafeLeafName(embedded.name);
  if (WriteFile(path, embedded.bytes)) return path;
  file::RemoveEmptyFolder(*folder);
  return std::nullopt;
}

}  // namespace

bool ModelDocuments::hasPartonicModelDocViews(ZnDbDatabase* database) {
  model::Drawing* const drawing = database == nullptr ? nullptr : DrawingOf(*database);
  return drawing != nullptr && EmbeddedDrawingOf(*drawing).has_value();
}

Zent::ErrorStatus ModelDocuments::unpackPartonicDrawingFile(ZnDbDatabase* database,
                                                            ZnString& unpacked) {
  if (database == nullptr) return Zent::kNullDatabase;
  model::Drawing* const drawing = DrawingOf(*database);
  if (drawing == nullptr) return Zent::kNotApplicable;
  const auto record = EmbeddedDrawingOf(*drawing);
  if (!record) return Zent::kKeyNotFound;
  const EmbeddedFile embedded = ReadEmbeddedFile(*drawing, *record);
  if (embedded.bytes.empty()) return Zent::kKeyNotFound;
  const std::optional<std::wstring> path = Unpack(embedded);
  if (!path) return Zent::kFileAccess;
  unpacked = ZnString(path->c_str());
  return Zent::kOk;
}

Zent::ErrorStatus ModelDocuments::setRedirectionsInfo(ZnDbDatabase* database,
                                                      const ZnString& redirections) {
  if (database == nullptr) return Zent::kNullDatabase;
  model::Drawing* const drawing = DrawingOf(*database);
  if (drawing == nullptr || !drawing->RootDictionary()) return Zent::kNotApplicable;
  static_cast<EmbeddedDatabase&>(database->body())
      .SetRedirections(static_cast<const wchar_t*>(redirections));
  return Zent::kOk;
}

}  // namespace zdx::database
