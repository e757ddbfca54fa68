#pragma once

#include <string_view>
#include <vector>

#include "support/drawing/Tags.h"
#include "support/drawing/Version.h"
#include "support/dxf/TagSink.h"
#include "support/dxf/TextEncoder.h"

namespace dxf {

using drawing::Tag;
using drawing::Version;

// Writes tags to a sink as files of one version hold them.  Sink and encoder must outlive it.
class TagWriter {
 public:
  TagWriter(TagSink& sink, const TextEncoder& encoder, Version version);

  Version TargetVersion() const { return version_; }

  // Writes one tag.  Subclass markers (code 100) are left out below AC1012.  Bytes are cut into as
  // many tags as they need.  Throws std::invalid_argument if the value isn't of the code's kind or
  // doesn't fit it.
  void Put(const Tag& tag);
  void Put(const std::vector<Tag>& tags);

  // Three numbers under `code`, `code` + 10 and `code` + 20.
  void PutPoint(int code, double x, double y, double z = 0.0);

 private:
  void PutText(int code, const Tag& tag);
  void PutReal(int code, const Tag& tag);
  void PutInteger(int code, const Tag& tag);
  void PutBytes(int code, const Tag& tag);

  TagSink& sink_;
  const TextEncoder& encoder_;
  Version version_;
};

}  // namespace dxf
