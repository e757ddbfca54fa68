// Drawings of tags that a test chooses, in each form of the file.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "backends/database/dxf/DxfDrawing.h"
#include "support/Scratch.h"
#include "support/drawing/Tags.h"
#include "support/dxf/DxfMaker.h"

namespace handmade_dxf {

// What a question to a hostile drawing may take.  The sanitizers have a pace of their own.
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
inline constexpr double kMostSeconds = 60.0;
#else
inline constexpr double kMostSeconds = 3.0;
#endif

using Tags = std::vector<drawing::Tag>;

Tags Join(std::initializer_list<Tags> parts);

// What a drawing holds in its sections.  One that is empty isn't written.
struct Contents {
  std::string version = "AC1032";
  // Behind the version.
  Tags variables = {};
  Tags records = {};
  Tags blocks = {};
  Tags entities = {};
  Tags objects = {};
};

std::string BytesOf(const Contents& contents, dxf::Form form = dxf::Form::Ascii);

// Records, blocks and entities.  A handle or an owner that is empty isn't told.
Tags Record(const std::string& handle, const std::string& name, const Tags& more = {});
Tags BlockOf(const std::string& name, const Tags& entities = {}, const std::string& owner = {});
Tags Entity(const std::string& type, const std::string& handle, const std::string& owner,
            const std::string& marker, const Tags& body = {});
Tags Line(const std::string& handle, const std::string& owner = {}, bool isOnPaper = false);
Tags Insert(const std::string& block, const std::string& handle = {},
            const std::string& owner = {});
Tags Attribute(const std::string& tag, const std::string& text);
// The group of a record or an entity that names its extension dictionary; it follows the handle.
Tags Extension(const std::string& handle);
Tags Dictionary(const std::string& handle, const std::string& key, const std::string& value);

// A drawing that was opened, and what was told of it.
class OpenDrawing {
 public:
  explicit OpenDrawing(const std::string& bytes);

  zdx::dxf::DxfDrawing* operator->() { return drawing_.get(); }
  const zdx::model::Report& report() const { return *report_; }
  // The texts of the warnings.
  std::vector<std::wstring> Warnings() const;

  // The block of that name, which must be there.
  zdx::model::ObjectKey BlockNamed(const std::wstring& name);
  std::vector<std::wstring> BlockNames();
  std::wstring NameOf(zdx::model::ObjectKey block);
  // The type of each object, or the tag of an attribute's definition.
  std::vector<std::string> TypesOf(const std::vector<zdx::model::ObjectKey>& objects);
  // The handles of entities, as they are written; "-" for one without.
  std::vector<std::string> HandlesOf(const std::vector<zdx::model::ObjectKey>& entities);
  std::vector<std::string> ReferencesOf(const std::wstring& block);
  // What a reference's owner is called; "-" if it isn't known.
  std::wstring OwnerOf(zdx::model::ObjectKey entity);

 private:
  zdx_test::ScratchFile file_;
  std::string bytes_;
  std::shared_ptr<zdx::model::Report> report_;
  std::unique_ptr<zdx::dxf::DxfDrawing> drawing_;
};

}  // namespace handmade_dxf
