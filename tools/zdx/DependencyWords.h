// The words for what the engine tells of a reference by numbers.
#pragma once

#include <string>

#include "ZDXEngine/DependencyDetails.h"
#include "ZDXEngine/FilePropertyMgr.h"

namespace zdx {

// For people: "attached drawing"; "file" for a kind that isn't known.
const char* KindText(ZDXEngine::DependencyKind kind);
// For programs: "attachedDrawing"; "unknown" for a kind that isn't known.
const char* KindKey(ZDXEngine::DependencyKind kind);

// The same of problems: "can't be accessed", "noAccess"; empty for none.
const char* ProblemText(ZDXEngine::DependencyProblem problem);
const char* ProblemKey(ZDXEngine::DependencyProblem problem);

// The product that made a drawing, as the engine's properties spell it; empty if it isn't known.
std::wstring DrawingTypeText(ZDXEngine::DwgFileType type);

}  // namespace zdx
