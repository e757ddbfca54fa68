// What all JSON documents share.  docs/json.md tells their form.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "Failure.h"
#include "ZDXEngine/Diagnostics.h"

namespace zdx {

using Json = nlohmann::ordered_json;

// The form of all documents.
inline constexpr const char* kSchema = "zdx/1";

// The start of a document; `status` is "ok" or "error".
Json JsonDocument(const std::wstring& path, const char* status);

// Adds what the file tells of its form.
void AddForm(Json& document, const ZDXEngine::Diagnostics& found);

// Adds what of `place` is known.
void AddPlace(Json& object, const ZDXEngine::DiagnosticPlace& place);

// Why a file couldn't be read.
Json ErrorJson(const Failure& failure);

// `document` as text, with a member `listName` whose value is `list`, JSON text, with the warnings
// and with a line end.  The list comes as text since a tree of a million values would take many
// times their text.
std::string DocumentText(const Json& document, std::string_view listName, std::string_view list,
                         const ZDXEngine::Diagnostics& found);

}  // namespace zdx
