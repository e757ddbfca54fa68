#include "platform/zndb/ZnDbDatabase.h"

#include "platform/zndb/Provider.h"

Zent::ErrorStatus ZnDbDatabase::readDwgFile(const wchar_t* path, int openMode,
                                            bool allowCodePageConversion, const wchar_t* password) {
  return body_->readDwgFile(path, openMode, allowCodePageConversion, password);
}

Zent::ErrorStatus ZnDbDatabase::dxfIn(const wchar_t* path, const wchar_t* logPath) {
  return body_->dxfIn(path, logPath);
}

Zent::ErrorStatus ZnDbDatabase::saveAs(const wchar_t* path, bool backUp, int version,
                                       const SecurityParams* security) {
  return body_->saveAs(path, backUp, version, security);
}

Zent::ErrorStatus ZnDbDatabase::dxfOut(const wchar_t* path, int decimalPlaces, int version,
                                       bool thumbnail) {
  return body_->dxfOut(path, decimalPlaces, version, thumbnail);
}

int ZnDbDatabase::lastSavedAsVersion() const { return body_->lastSavedAsVersion(); }
int ZnDbDatabase::originalFileVersion() const { return body_->originalFileVersion(); }

const wchar_t* ZnDbDatabase::originalFileName() const { return body_->originalFileName(); }

Zent::ErrorStatus ZnDbDatabase::getFilename(const wchar_t*& name) const {
  return body_->getFilename(name);
}

Zent::ErrorStatus ZnDbDatabase::getSymbolTable(ZnDbBlockTable*& table, int mode) {
  return body_->getSymbolTable(table, mode);
}

Zent::ErrorStatus ZnDbDatabase::getSymbolTable(ZnDbLayerTable*& table, int mode) {
  return body_->getSymbolTable(table, mode);
}

Zent::ErrorStatus ZnDbDatabase::getSymbolTable(ZnDbLinetypeTable*& table, int mode) {
  return body_->getSymbolTable(table, mode);
}

Zent::ErrorStatus ZnDbDatabase::getSymbolTable(ZnDbViewTable*& table, int mode) {
  return body_->getSymbolTable(table, mode);
}

ZnDbObjectId ZnDbDatabase::namedObjectsDictionaryId() const {
  return body_->namedObjectsDictionaryId();
}

Zent::ErrorStatus ZnDbDatabase::getGroupDictionary(ZnDbDictionary*& dictionary, int mode) {
  return body_->getGroupDictionary(dictionary, mode);
}

Zent::ErrorStatus ZnDbDatabase::getMLStyleDictionary(ZnDbDictionary*& dictionary, int mode) {
  return body_->getMLStyleDictionary(dictionary, mode);
}

Zent::ErrorStatus ZnDbDatabase::getLayoutDictionary(ZnDbDictionary*& dictionary, int mode) {
  return body_->getLayoutDictionary(dictionary, mode);
}

Zent::ErrorStatus ZnDbDatabase::getNamedObjectsDictionary(ZnDbDictionary*& dictionary, int mode) {
  return body_->getNamedObjectsDictionary(dictionary, mode);
}

Zent::ErrorStatus ZnDbDatabase::getPlotSettingsDictionary(ZnDbDictionary*& dictionary, int mode) {
  return body_->getPlotSettingsDictionary(dictionary, mode);
}

Zent::ErrorStatus ZnDbDatabase::getMenu(ZnString& text) const { return body_->getMenu(text); }

Zent::ErrorStatus ZnDbDatabase::getProjectName(ZnString& text) const {
  return body_->getProjectName(text);
}

Zent::ErrorStatus ZnDbDatabase::getHyperlinkBase(ZnString& text) const {
  return body_->getHyperlinkBase(text);
}

Zent::ErrorStatus ZnDbDatabase::getStyleSheet(ZnString& text) const {
  return body_->getStyleSheet(text);
}

Zent::ErrorStatus ZnDbDatabase::getDimblk(ZnString& text) const { return body_->getDimblk(text); }
Zent::ErrorStatus ZnDbDatabase::getDimblk1(ZnString& text) const { return body_->getDimblk1(text); }
Zent::ErrorStatus ZnDbDatabase::getDimblk2(ZnString& text) const { return body_->getDimblk2(text); }

const wchar_t* ZnDbDatabase::dimpost() const { return body_->dimpost(); }
const wchar_t* ZnDbDatabase::dimapost() const { return body_->dimapost(); }
