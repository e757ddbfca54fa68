// The names of layers, line types and views, and of the entries of the standard dictionaries.
//
// Each name gives one property, in the order of the library's iterator.  What can't be opened or
// read is left out.
#pragma once

#include <string>
#include <vector>

#include "ZDXEngine/PropData.h"
#include "platform/zndb/ZnDbDatabase.h"

namespace ZDXEngine {

// Adds "Layer Name" for each layer of `table`, which is open for read.
void ListLayers(std::vector<_PropData>& properties, ZnDbLayerTable* table);
// Adds "LineType Name" and behind it "LineType Comments" for each line type.
void ListLineTypes(std::vector<_PropData>& properties, ZnDbLinetypeTable* table);
// Adds "View Name" for each view.
void ListViews(std::vector<_PropData>& properties, ZnDbViewTable* table);

// Opens the layer, line type and view table, in this order, and lists each.
void ListSymbolTables(std::vector<_PropData>& properties, ZnDbDatabase* database);

// Adds the entries of the group, multiline style, layout, named objects and plot settings
// dictionary, in this order.
void ListDictionaries(std::vector<_PropData>& properties, ZnDbDatabase* database);
// Adds "<prefix> Name" for each entry of `dictionary`, whatever its object is.
void ListDictionary(std::vector<_PropData>& properties, ZnDbDictionary* dictionary,
                    const std::wstring& prefix);

}  // namespace ZDXEngine
