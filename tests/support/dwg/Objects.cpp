#include <numbers>

#include "support/dwg/Drawing.h"
#include "support/dwg/TagValues.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

// Of the marker and the cloning flag that a record's tags begin with in the other format.
constexpr std::ptrdiff_t kRecordStart = 2;

void WriteXrecord(Drawing& drawing, const ObjectSpec& object, Fields& fields) {
  const std::string values =
      FreeValues(drawing, std::vector<Tag>(object.body.begin() + kRecordStart, object.body.end()));
  fields.BL(static_cast<std::int64_t>(values.size()));
  fields.Raw(values);
  const bool hasType = fields.IsSince(Version::AC1015);
  if (hasType) fields.BS(1);
  drawing.Add(RecordHead{hasType ? static_cast<unsigned>(Type::Xrecord)
                                 : drawing.ClassNumber(drawing::kXrecord)},
              fields);
}

// The object that a proxy stands for has four bytes of data.
void WriteProxy(Drawing& drawing, const ObjectSpec& object, Fields& fields) {
  for (const NumberedClass& known : drawing.classes) {
    if (known.spec.className == object.proxiedClass) fields.BL(known.number);
  }
  fields.BL(0);
  if (fields.IsSince(Version::AC1032)) fields.BL(0);
  if (fields.IsSince(Version::AC1015)) fields.B(false);
  fields.RL(0);
  drawing.Add(Type::ProxyObject, fields);
}

void PutPoint(Fields& fields, const TagValues& values, int code) {
  fields.Point3(values.Real(code), values.Real(code + 10), values.Real(code + 20));
}

void PutObservation(Fields& fields, const TagValues& values) {
  for (const int code : {305, 306, 307}) fields.T(values.Text(code));
  // No mesh.
  fields.BL(0);
  fields.BL(0);
}

// What another program keeps there.
void PutForeignValues(Fields& fields) {
  const auto point = [&] { fields.Point2(0.0, 0.0); };
  fields.B(false);
  fields.B(false);
  point();
  point();
  fields.BL(0);
  fields.BL(0);
  fields.B(false);
  point();
  point();
  fields.B(false);
  fields.BD(0.0);
  fields.BD(0.0);
  fields.BL(0);
  fields.BD(9.0);
  fields.B(false);
  fields.BD(9.0);
  fields.BD(9.0);
}

void PutFirstGeoLocation(Fields& fields, const TagValues& values) {
  for (const int code : {40, 41, 42}) fields.BD(values.Real(code));
  fields.BL(values.Integer(91));
  PutPoint(fields, values, 10);
  PutPoint(fields, values, 11);
  PutPoint(fields, values, 210);
  fields.BD(values.Real(52) * std::numbers::pi / 180.0);
  for (const int code : {43, 44, 45}) fields.BD(values.Real(code));
  fields.T(values.Text(301));
  fields.T(values.Text(302));
  fields.BD(values.Real(46));
  fields.T(values.Text(303));
  fields.T(values.Text(304));
  PutObservation(fields, values);
  PutForeignValues(fields);
}

void PutLaterGeoLocation(Fields& fields, const TagValues& values) {
  PutPoint(fields, values, 10);
  PutPoint(fields, values, 11);
  fields.BD(values.Real(40));
  fields.BL(values.Integer(91));
  fields.BD(values.Real(41));
  fields.BL(values.Integer(92));
  PutPoint(fields, values, 210);
  fields.Point2(values.Real(12), values.Real(22));
  fields.BL(values.Integer(95));
  fields.BD(values.Real(141));
  fields.B(values.Integer(294) != 0);
  fields.BD(values.Real(142));
  fields.BD(values.Real(143));
  fields.T(values.Text(303, 301));
  fields.T(values.Text(302));
  PutObservation(fields, values);
}

void WriteGeoLocation(Drawing& drawing, const ObjectSpec& object, Fields& fields) {
  const TagValues values(object.body);
  fields.BL(values.Integer(90));
  fields.BS(values.Integer(70));
  (values.Integer(90) == 1 ? PutFirstGeoLocation : PutLaterGeoLocation)(fields, values);
  fields.H(Link::SoftPointer, drawing.blocks[0].record);
  drawing.Add(RecordHead{drawing.ClassNumber(kGeoLocation)}, fields);
}

}  // namespace

void BeginObject(Fields& fields, Handle owner, const std::vector<Handle>& reactors,
                 Handle extension) {
  fields.BL(static_cast<std::int64_t>(reactors.size()));
  if (fields.IsSince(Version::AC1018)) fields.B(extension == 0);
  if (fields.IsSince(Version::AC1027)) fields.B(false);
  fields.Near(Link::SoftPointer, owner);
  for (const Handle reactor : reactors) fields.H(Link::SoftPointer, reactor);
  if (extension != 0 || !fields.IsSince(Version::AC1018)) fields.H(Link::HardOwner, extension);
}

void WriteObject(Drawing& drawing, const ObjectSpec& object, Handle handle, Handle owner) {
  const Handle extension = WriteExtension(drawing, object.extension, handle);
  if (object.type == drawing::kDictionary) {
    WriteDictionary(drawing, handle, owner, WriteEntries(drawing, object.entries, handle),
                    {object.ownsEntries, 0, extension});
    return;
  }
  Fields fields = drawing.NewFields(handle);
  BeginObject(fields, owner, {owner}, extension);
  if (object.type == drawing::kXrecord) return WriteXrecord(drawing, object, fields);
  if (object.type == drawing::kProxyObject) return WriteProxy(drawing, object, fields);
  if (object.type == kGeoLocation && !object.body.empty()) {
    return WriteGeoLocation(drawing, object, fields);
  }
  PutFileObject(fields, object);
  drawing.Add(RecordHead{drawing.ClassNumber(object.type)}, fields);
}

std::vector<NamedHandle> WriteEntries(Drawing& drawing, const std::vector<NamedObject>& entries,
                                      Handle owner) {
  std::vector<NamedHandle> written;
  for (const NamedObject& entry : entries) {
    if (entry.object.type.empty()) {
      written.push_back({entry.name, std::stoull(entry.object.handle, nullptr, kHexadecimal)});
      continue;
    }
    const Handle handle = drawing.NextHandle(entry.object.handle);
    WriteObject(drawing, entry.object, handle, owner);
    written.push_back({entry.name, handle});
  }
  return written;
}

Handle WriteExtension(Drawing& drawing, const std::vector<NamedObject>& entries, Handle owner) {
  if (entries.empty()) return 0;
  const Handle handle = drawing.NextHandle();
  WriteDictionary(drawing, handle, owner, WriteEntries(drawing, entries, handle), {true});
  return handle;
}

void WriteDictionary(Drawing& drawing, Handle handle, Handle owner,
                     const std::vector<NamedHandle>& entries, const DictionaryKind& kind) {
  const bool hasDefault = kind.defaultEntry != 0;
  Fields fields = drawing.NewFields(handle);
  const std::vector<Handle> reactors(owner == 0 ? 0 : 1, owner);
  BeginObject(fields, owner, reactors, kind.extension);
  fields.BL(static_cast<std::int64_t>(entries.size()));
  if (fields.IsSince(Version::AC1015) || hasDefault) fields.BS(1);
  fields.RC(kind.ownsEntries ? 1 : 0);
  for (const NamedHandle& entry : entries) fields.T(StoredName(entry.name, drawing.version));
  for (const NamedHandle& entry : entries) fields.H(Link::SoftOwner, entry.handle);
  if (!hasDefault) return drawing.Add(Type::Dictionary, fields);
  fields.H(Link::HardPointer, kind.defaultEntry);
  drawing.Add(RecordHead{drawing.ClassNumber(drawing::kDictionaryWithDefault)}, fields);
}

}  // namespace dwg
