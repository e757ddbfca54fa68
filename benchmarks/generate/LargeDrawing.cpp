#include "generate/LargeDrawing.h"

#include "generate/EntityMix.h"
#include "generate/Frame.h"

namespace bench {

Generated WriteLargeDrawing(const std::string& path, std::uint64_t bytes) {
  TagStream out(path);
  Generated generated;
  Frame frame(out, generated);
  frame.WriteHead();
  const std::uint64_t tail = Frame::kTailBytes;
  WriteEntities(out, bytes > tail ? bytes - tail : 0, frame, generated.counts);
  frame.WriteTail();
  out.Close();
  generated.counts.bytes = out.BytesWritten();
  return generated;
}

}  // namespace bench
