#include "backends/database/dwg/records/ObjectTypes.h"

#include <algorithm>
#include <iterator>

#include "backends/database/dwg/Tokens.h"

namespace zdx::dwg {
namespace {

struct TypeRange {
  ObjectType first;
  ObjectType last;
};

constexpr TypeRange kEntities[] = {{1, 8},   {10, 41}, {43, 47},
                                   {74, 74}, {77, 78}, {kProxyEntityType, kProxyEntityType}};

}  // namespace

bool IsFixedEntity(ObjectType type) {
  return std::any_of(std::begin(kEntities), std::end(kEntities),
                     [type](TypeRange range) { return type >= range.first && type <= range.last; });
}

bool IsPartOfEntity(ObjectType type) {
  return type == kAttributeType || type == kBlockBeginType || type == kBlockEndType ||
         type == kSequenceEndType || (type >= kFirstVertexType && type <= kLastVertexType);
}

std::wstring_view FixedClassName(ObjectType type) {
  const auto* const row = std::find_if(std::begin(kFixedClasses), std::end(kFixedClasses),
                                       [type](const FixedClass& c) { return c.type == type; });
  return row == std::end(kFixedClasses) ? std::wstring_view() : row->name;
}

}  // namespace zdx::dwg
