#include "support/drawing/Handles.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

namespace drawing {
namespace {

constexpr int kBase = 16;
constexpr std::size_t kMostDigits = 16;

std::string Written(std::uint64_t handle) {
  char digits[kMostDigits];
  std::string text(digits, std::to_chars(digits, digits + kMostDigits, handle, kBase).ptr);
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char digit) { return digit >= 'a' ? static_cast<char>(digit - 32) : digit; });
  return text;
}

// Finds the handles that a spec chose.
class Chosen {
 public:
  explicit Chosen(std::set<std::uint64_t>& handles) : handles_(handles) {}

  void Visit(const DrawingSpec& spec) {
    for (const LayerSpec& layer : spec.layers) Add(layer.handle);
    for (const TextStyleSpec& style : spec.textStyles) Add(style.handle);
    for (const ImageSpec& image : spec.images) Add(image.handle);
    for (const UnderlaySpec& underlay : spec.underlays) Add(underlay.handle);
    for (const PointCloudSpec& cloud : spec.pointClouds) Add(cloud.handle);
    for (const DataLinkSpec& link : spec.dataLinks) Add(link.handle);
    for (const MaterialSpec& material : spec.materials) Add(material.handle);
    for (const BlockSpec& block : spec.blocks) Visit(block);
    for (const LayoutSpec& layout : spec.layouts) Visit(layout.entities);
    for (const AttributeSpec& definition : spec.definitions) Add(definition.handle);
    Visit(spec.entities);
    Visit(spec.modelExtension);
    Visit(spec.rootEntries);
  }

 private:
  void Add(const std::string& text) {
    if (text.empty()) return;
    std::uint64_t handle = 0;
    const char* end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, handle, kBase);
    if (result.ptr != end || result.ec != std::errc()) {
      throw std::invalid_argument("not a handle: " + text);
    }
    if (!handles_.insert(handle).second)
      throw std::invalid_argument("handle chosen twice: " + text);
  }

  void Visit(const BlockSpec& block) {
    Add(block.handle);
    for (const AttributeSpec& definition : block.definitions) Add(definition.handle);
    Visit(block.entities);
    Visit(block.extension);
  }

  void Visit(const std::vector<EntitySpec>& entities) {
    for (const EntitySpec& entity : entities) {
      Add(entity.handle);
      for (const AttributeSpec& attribute : entity.attributes) Add(attribute.handle);
      Visit(entity.extension);
    }
  }

  void Visit(const std::vector<NamedObject>& entries) {
    for (const NamedObject& entry : entries) {
      if (!entry.object.type.empty()) Add(entry.object.handle);
      Visit(entry.object.entries);
      Visit(entry.object.extension);
    }
  }

  std::set<std::uint64_t>& handles_;
};

}  // namespace

Handles::Handles(const DrawingSpec& spec) {
  Chosen(chosen_).Visit(spec);
  if (chosen_.contains(next_)) throw std::invalid_argument("handle 1 is model space's");
}

std::string Handles::Next() {
  while (chosen_.contains(next_)) ++next_;
  return Written(next_++);
}

std::string Handles::Or(const std::string& chosen) { return chosen.empty() ? Next() : chosen; }

std::string Handles::Seed() const {
  return Written(std::max(next_, chosen_.empty() ? 0 : *chosen_.rbegin() + 1));
}

}  // namespace drawing
