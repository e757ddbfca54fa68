// References that were made up.
#pragma once

#include <optional>
#include <string>
#include <utility>

#include "DependencyReport.h"
#include "FileGraph.h"

namespace zdx {

using ZDXEngine::DependencyKind;
using ZDXEngine::DependencyProblem;

// A reference of that kind to a file that was found below "/p/".
inline DependencyRecord Found(DependencyKind kind, const std::wstring& path,
                              std::optional<std::size_t> parent = std::nullopt) {
  DependencyRecord record;
  record.sourcePath = L"/p/" + path;
  record.supportRePath = true;
  record.fileType = 1;
  record.detail.kind = kind;
  record.detail.storedPath = path;
  record.detail.parent = parent;
  record.detail.exists = true;
  record.file = record.sourcePath;
  return record;
}

// One to a file that wasn't.
inline DependencyRecord Missing(DependencyKind kind, const std::wstring& path,
                                std::optional<std::size_t> parent = std::nullopt) {
  DependencyRecord record = Found(kind, path, parent);
  record.sourcePath = path;
  record.file = path;
  record.detail.exists = false;
  record.detail.problem = DependencyProblem::NotFound;
  return record;
}

inline DependencyRecord Named(DependencyRecord record, const std::wstring& name) {
  record.detail.name = name;
  return record;
}

// A report on "/p/plan.dwg" with those references, whose ids count from 1.
inline DependencyReport ReportOf(std::vector<DependencyRecord> dependencies) {
  DependencyReport report;
  report.drawingType = L"Zent";
  report.diagnostics.format = L"DWG";
  report.diagnostics.version = L"AC1032";
  report.root.refId = L"0";
  report.root.sourcePath = L"plan.dwg";
  report.root.fileType = 1;
  report.root.supportRePath = true;
  report.root.detail.exists = true;
  report.root.file = L"/p/plan.dwg";
  report.dependencies = std::move(dependencies);
  for (std::size_t i = 0; i < report.dependencies.size(); ++i) {
    report.dependencies[i].refId = std::to_wstring(i + 1);
  }
  return report;
}

// A plan with an attached drawing that has a font, an overlaid one, and two missing files.
inline DependencyReport ReportOfPlant() {
  return ReportOf({Named(Found(DependencyKind::AttachedDrawing, L"pipes.dwg"), L"PIPES"),
                   Named(Found(DependencyKind::OverlaidDrawing, L"steel.dxf"), L"STEEL"),
                   Missing(DependencyKind::Image, L"logo.png"),
                   Named(Missing(DependencyKind::Font, L"romans.shx", 0), L"NOTES"),
                   Found(DependencyKind::Texture, L"brick.jpg", 0)});
}

inline FileGraph GraphOf(const DependencyReport& report) {
  FileGraph graph;
  graph.Add(report);
  return graph;
}

// As many drawings as `length`, each of which refers to the next one.
inline DependencyReport ReportOfChain(std::size_t length) {
  std::vector<DependencyRecord> records;
  for (std::size_t i = 0; i < length; ++i) {
    records.push_back(Found(DependencyKind::AttachedDrawing, std::to_wstring(i) + L".dwg",
                            i == 0 ? std::nullopt : std::optional(i - 1)));
  }
  return ReportOf(std::move(records));
}

// Names that mean something to what shows them.
inline const wchar_t* const kHostileNames[] = {L"a\"b.png",
                                               L"a\\N\\G\\",
                                               L"a\nb\033[31m.png",
                                               L"</script><script>document.title='x'</script>",
                                               L"<img src=x onerror=document.title='x'>",
                                               L"' onload='document.title=1",
                                               L"&lt;b&gt; & \\",
                                               L"\u202Egnp.exe",
                                               L"--></title></svg>",
                                               L"\u9006\u6D41\u0416.dwg",
                                               L"",
                                               L"{a|b}"};

}  // namespace zdx
