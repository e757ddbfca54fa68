// How files keep attributes of many lines.
#pragma once

#include <string>
#include <vector>

#include "support/drawing/EntitySpec.h"
#include "support/drawing/Version.h"

namespace drawing {

enum class AttributeRole { Attribute, Definition };

// The number that tells such an attribute.
int MultiLineKind(AttributeRole role);

// Whether the lines stand within the attribute, and whether in a record beside a plain one.
bool HasEmbeddedLines(const AttributeSpec& attribute, Version version);
bool HasLinesInRecord(const AttributeSpec& attribute, Version version);

// The groups of the text of many lines.
std::vector<Tag> ManyLines(const AttributeSpec& attribute);

// The entries of the attribute's extension dictionary; none where there is no such record.
std::vector<NamedObject> LinesRecord(const AttributeSpec& attribute, AttributeRole role,
                                     Version version);

// The attribute's own tag and text.
std::string StoredTag(const AttributeSpec& attribute, AttributeRole role, Version version);
std::string StoredValue(const AttributeSpec& attribute, Version version);

}  // namespace drawing
