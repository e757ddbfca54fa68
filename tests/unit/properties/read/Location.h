// A drawing that lies somewhere, and the words for what it tells of that.
#pragma once

#include "resources/StringTable.h"
#include "support/scripted/World.h"

namespace location {

// The engine's own texts.  What the words are made of is asked for once in a process, so every test
// that reads a location gives the same.
inline void GiveTexts(scripted::World& world) {
  for (const ZDXEngine::StringTableEntry& entry : ZDXEngine::StringTable()) {
    world.utilities.texts[entry.id] = entry.text;
  }
}

// No two values are the same.
inline scripted::Location Somewhere() {
  scripted::Location location;
  location.coordinateType = 2;
  location.designPoint = {1, 2, 3};
  location.referencePoint = {-4.5, 5.25, 0.125};
  location.northDirectionVector = {0.6, 0.8};
  location.upDirection = {0, 0.5, 1};
  location.northDirection = 0.25;
  location.horizontalUnits = 6;
  location.verticalUnits = 2;
  location.horizontalUnitScale = 1.5;
  location.verticalUnitScale = 2.5;
  location.scaleFactor = 3.5;
  location.doSeaLevelCorrection = true;
  location.seaLevelElevation = 4.5;
  location.coordinateProjectionRadius = 6378137;
  location.coordinateSystem = L"<xml/>";
  location.geoRSSTag = L"tag";
  location.observationFrom = L"from";
  location.observationTo = L"to";
  location.observationCoverage = L"coverage";
  return location;
}

}  // namespace location
