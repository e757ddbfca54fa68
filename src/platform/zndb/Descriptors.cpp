// The descriptors of the classes, one of each in the process.
#include "platform/zndb/ZnDbBlocks.h"
#include "platform/zndb/ZnDbGeoData.h"
#include "platform/zndb/ZnDbHostApplicationServices.h"
#include "platform/zndb/ZnDbObjects.h"

ZnRxClass* ZnRxObject::desc() {
  static ZnRxClass descriptor(L"ZnRxObject", nullptr);
  return &descriptor;
}

ZnRxClass* ZnRxDynamicLinker::desc() {
  static ZnRxClass descriptor(L"ZnRxDynamicLinker", ZnRxObject::desc());
  return &descriptor;
}

ZnRxClass* ZnDbObject::desc() {
  static ZnRxClass descriptor(L"ZnDbObject", ZnRxObject::desc());
  return &descriptor;
}

ZnRxClass* ZnDbProxyObject::desc() {
  static ZnRxClass descriptor(L"ZnDbProxyObject", ZnDbObject::desc());
  return &descriptor;
}

ZnRxClass* ZnDbSymbolTableRecord::desc() {
  static ZnRxClass descriptor(L"ZnDbSymbolTableRecord", ZnDbObject::desc());
  return &descriptor;
}

ZnRxClass* ZnDbLayerTableRecord::desc() {
  static ZnRxClass descriptor(L"ZnDbLayerTableRecord", ZnDbSymbolTableRecord::desc());
  return &descriptor;
}

ZnRxClass* ZnDbLinetypeTableRecord::desc() {
  static ZnRxClass descriptor(L"ZnDbLinetypeTableRecord", ZnDbSymbolTableRecord::desc());
  return &descriptor;
}

ZnRxClass* ZnDbViewTableRecord::desc() {
  static ZnRxClass descriptor(L"ZnDbViewTableRecord", ZnDbSymbolTableRecord::desc());
  return &descriptor;
}

ZnRxClass* ZnDbSymbolTable::desc() {
  static ZnRxClass descriptor(L"ZnDbSymbolTable", ZnDbObject::desc());
  return &descriptor;
}

ZnRxClass* ZnDbBlockTable::desc() {
  static ZnRxClass descriptor(L"ZnDbBlockTable", ZnDbSymbolTable::desc());
  return &descriptor;
}

ZnRxClass* ZnDbLayerTable::desc() {
  static ZnRxClass descriptor(L"ZnDbLayerTable", ZnDbSymbolTable::desc());
  return &descriptor;
}

ZnRxClass* ZnDbLinetypeTable::desc() {
  static ZnRxClass descriptor(L"ZnDbLinetypeTable", ZnDbSymbolTable::desc());
  return &descriptor;
}

ZnRxClass* ZnDbViewTable::desc() {
  static ZnRxClass descriptor(L"ZnDbViewTable", ZnDbSymbolTable::desc());
  return &descriptor;
}

ZnRxClass* ZnDbDictionary::desc() {
  static ZnRxClass descriptor(L"ZnDbDictionary", ZnDbObject::desc());
  return &descriptor;
}

ZnRxClass* ZnDbBlockTableRecord::desc() {
  static ZnRxClass descriptor(L"ZnDbBlockTableRecord", ZnDbSymbolTableRecord::desc());
  return &descriptor;
}

ZnRxClass* ZnDbEntity::desc() {
  static ZnRxClass descriptor(L"ZnDbEntity", ZnDbObject::desc());
  return &descriptor;
}

ZnRxClass* ZnDbText::desc() {
  static ZnRxClass descriptor(L"ZnDbText", ZnDbEntity::desc());
  return &descriptor;
}

ZnRxClass* ZnDbMText::desc() {
  static ZnRxClass descriptor(L"ZnDbMText", ZnDbEntity::desc());
  return &descriptor;
}

ZnRxClass* ZnDbAttribute::desc() {
  static ZnRxClass descriptor(L"ZnDbAttribute", ZnDbText::desc());
  return &descriptor;
}

ZnRxClass* ZnDbAttributeDefinition::desc() {
  static ZnRxClass descriptor(L"ZnDbAttributeDefinition", ZnDbText::desc());
  return &descriptor;
}

ZnRxClass* ZnDbBlockReference::desc() {
  static ZnRxClass descriptor(L"ZnDbBlockReference", ZnDbEntity::desc());
  return &descriptor;
}

ZnRxClass* ZnDbGeoData::desc() {
  static ZnRxClass descriptor(L"ZnDbGeoData", ZnDbObject::desc());
  return &descriptor;
}

ZnRxClass* ZnDbHostApplicationServices::isA() const {
  static ZnRxClass descriptor(L"ZnDbHostApplicationServices", ZnRxObject::desc());
  return &descriptor;
}
