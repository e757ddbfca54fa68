// The property sets under which the engine publishes values.
//
// Some systems' headers declare names like these outside of any namespace: write them with theirs,
// `ZDXEngine::`, rather than bring the whole namespace in.
#pragma once

#include "ZDXEngine/Automation.h"

namespace ZDXEngine {

// Standard summary fields and the picture, known by number:
// {F29F85E0-4FF9-1068-AB91-08002B27B3D9}.
inline constexpr GUID FMTID_SummaryInformation = {
    0xF29F85E0, 0x4FF9, 0x1068, {0xAB, 0x91, 0x08, 0x00, 0x2B, 0x27, 0xB3, 0xD9}};

// Nothing is published under it; its properties would be known by number too:
// {D5CDD502-2E9C-101B-9397-08002B2CF9AE}.
inline constexpr GUID FMTID_DocSummaryInformation = {
    0xD5CDD502, 0x2E9C, 0x101B, {0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE}};

// Custom summary entries, known by name: {D5CDD505-2E9C-101B-9397-08002B2CF9AE}.
inline constexpr GUID FMTID_UserDefinedProperties = {
    0xD5CDD505, 0x2E9C, 0x101B, {0x93, 0x97, 0x08, 0x00, 0x2B, 0x2C, 0xF9, 0xAE}};

// All of the engine's own properties, known by name: {B725F130-47EF-101A-A5F1-02608C9EEBAC}.
inline constexpr GUID FMTID_Storage = {
    0xB725F130, 0x47EF, 0x101A, {0xA5, 0xF1, 0x02, 0x60, 0x8C, 0x9E, 0xEB, 0xAC}};

}  // namespace ZDXEngine
