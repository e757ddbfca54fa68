#pragma once

namespace dwg {

// Numbers of the kinds of records.
enum class Type : unsigned {
  Text = 1,
  Attribute = 2,
  AttributeDefinition = 3,
  Block = 4,
  BlockEnd = 5,
  SequenceEnd = 6,
  Insert = 7,
  ArrayInsert = 8,
  Arc = 17,
  Circle = 18,
  Line = 19,
  Point = 27,
  Dictionary = 42,
  MText = 44,
  BlockControl = 48,
  BlockRecord = 49,
  LayerControl = 50,
  Layer = 51,
  StyleControl = 52,
  Style = 53,
  LinetypeControl = 56,
  Linetype = 57,
  ViewControl = 60,
  View = 61,
  UcsControl = 62,
  ViewportControl = 64,
  Viewport = 65,
  ApplicationControl = 66,
  Application = 67,
  DimensionStyleControl = 68,
  DimensionStyle = 69,
  ViewportHeaderControl = 70,
  Group = 72,
  MlineStyle = 73,
  LightPolyline = 77,
  Xrecord = 79,
  Layout = 82,
  ProxyObject = 499,
  FirstClass = 500
};

}  // namespace dwg
