// The layouts of the records that are read, as far as somebody asks for what is in them.
//
// Fields of all streams stand in one row; each stream keeps their order.
#pragma once

#include <span>

#include "backends/database/dwg/records/Field.h"
#include "backends/database/dwg/records/ObjectTypes.h"

namespace zdx::dwg {

// What all entities begin with, behind their picture, up to their own fields; then their common
// handles.
std::span<const Field> EntityLayout();
std::span<const Field> EntityHandlesLayout();
// What all other objects begin with, up to their own fields; then their common handles.
std::span<const Field> ObjectLayout();
std::span<const Field> ObjectHandlesLayout();

// The kinds of an attribute, and of a definition, that has many lines.
inline constexpr std::uint64_t kMultiLineKinds = 2 | 4;

// The own fields of a type; none for a type of which nobody asks for any.
std::span<const Field> OwnLayout(ObjectType type);

// The header variables.
std::span<const Field> HeaderLayout();

}  // namespace zdx::dwg
