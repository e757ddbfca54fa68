#include "support/drawing/ObjectSpec.h"

#include "support/drawing/Tokens.h"

namespace drawing {

ObjectSpec Dictionary(std::vector<NamedObject> entries) {
  ObjectSpec object;
  object.type = kDictionary;
  object.entries = std::move(entries);
  return object;
}

ObjectSpec Xrecord(std::vector<Tag> tags) {
  ObjectSpec object;
  object.type = kXrecord;
  object.body = {{100, kXrecordMarker}, {280, 1}};
  object.body.insert(object.body.end(), tags.begin(), tags.end());
  return object;
}

ObjectSpec Placeholder() { return CustomObject(kPlaceholder); }

ObjectSpec CustomObject(std::string type, std::vector<Tag> body) {
  ObjectSpec object;
  object.type = std::move(type);
  object.body = std::move(body);
  return object;
}

ObjectSpec Proxy(std::string proxiedClass) {
  ObjectSpec object;
  object.type = kProxyObject;
  object.proxiedClass = std::move(proxiedClass);
  return object;
}

ObjectSpec ObjectAt(std::string handle) {
  ObjectSpec object;
  object.handle = std::move(handle);
  return object;
}

}  // namespace drawing
