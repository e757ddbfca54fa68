#include "DependencyWords.h"

#include <cstddef>
#include <iterator>

namespace zdx {

namespace {

using ZDXEngine::DependencyKind;
using ZDXEngine::DependencyProblem;
using ZDXEngine::DwgFileType;

struct Words {
  const char* text;
  const char* key;
};

// By the value of DependencyKind.
constexpr Words kKinds[] = {
    {"attached drawing", "attachedDrawing"},
    {"overlaid drawing", "overlaidDrawing"},
    {"image", "image"},
    {"PDF underlay", "pdfUnderlay"},
    {"DWF underlay", "dwfUnderlay"},
    {"DGN underlay", "dgnUnderlay"},
    {"point cloud", "pointCloud"},
    {"linked data", "linkedData"},
    {"texture", "texture"},
    {"font", "font"},
    {"big font", "bigFont"},
    {"shape file", "shapeFile"},
    {"plot style table", "plotStyleTable"},
    {"printer configuration", "printerConfiguration"},
    {"style sheet", "styleSheet"},
    {"menu", "menu"},
    {"listed file", "listed"},
    {"file of a service", "service"},
};
static_assert(std::size(kKinds) == static_cast<std::size_t>(DependencyKind::Service) + 1);

// By the value of DependencyProblem.
constexpr Words kProblems[] = {
    {"", ""},
    {"MISSING", "notFound"},
    {"can't be accessed", "noAccess"},
    {"in use by another program", "inUse"},
    {"damaged", "damaged"},
    {"not a drawing that can be read", "notReadable"},
    {"too large", "tooLarge"},
    {"can't be read", "other"},
};
static_assert(std::size(kProblems) == static_cast<std::size_t>(DependencyProblem::Other) + 1);

// By the value of DwgFileType.
constexpr const wchar_t* kDrawingTypes[] = {L"",         L"Zent", L"ZentVariant", L"Zne",
                                            L"Partonic", L"Znm",  L"Zmt",         L"Terrane3D"};
static_assert(std::size(kDrawingTypes) == static_cast<std::size_t>(DwgFileType::Terrane3D) + 1);

template <class Entry, std::size_t Count, class Value>
const Entry* EntryOf(const Entry (&entries)[Count], Value value) {
  const auto place = static_cast<std::size_t>(value);
  return place < Count ? &entries[place] : nullptr;
}

}  // namespace

const char* KindText(DependencyKind kind) {
  const Words* const words = EntryOf(kKinds, kind);
  return words == nullptr ? "file" : words->text;
}

const char* KindKey(DependencyKind kind) {
  const Words* const words = EntryOf(kKinds, kind);
  return words == nullptr ? "unknown" : words->key;
}

const char* ProblemText(DependencyProblem problem) {
  const Words* const words = EntryOf(kProblems, problem);
  return words == nullptr ? kProblems[std::size(kProblems) - 1].text : words->text;
}

const char* ProblemKey(DependencyProblem problem) {
  const Words* const words = EntryOf(kProblems, problem);
  return words == nullptr ? kProblems[std::size(kProblems) - 1].key : words->key;
}

std::wstring DrawingTypeText(DwgFileType type) {
  const wchar_t* const* const text = EntryOf(kDrawingTypes, type);
  return text == nullptr ? L"" : *text;
}

}  // namespace zdx
