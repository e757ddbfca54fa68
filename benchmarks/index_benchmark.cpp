// The index of every object with its handle, and that of every block's references, each over a
// whole text file: bytes a second on one core.
//
//   index_benchmark FILE.dxf [Google Benchmark's own options]
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <string_view>

#include "ZDXEngine/Utf8.h"
#include "backends/database/dxf/DxfDrawing.h"
#include "backends/database/dxf/ObjectIndex.h"
#include "backends/database/file/MappedFile.h"

namespace {

using zdx::dxf::Form;
using zdx::dxf::ObjectIndex;
using zdx::dxf::TagStream;

// The handles of a well-formed file counted without the index: the first tag 5, or 105 in a
// dimension style, between a type and the first subclass marker.
std::size_t CountHandles(std::string_view bytes) {
  std::size_t count = 0;
  bool isCode = true;
  bool wantsHandle = false;
  std::string_view handleCode;
  std::string_view code;
  while (!bytes.empty()) {
    const auto* const end = static_cast<const char*>(std::memchr(bytes.data(), '\n', bytes.size()));
    const std::size_t size =
        end == nullptr ? bytes.size() : static_cast<std::size_t>(end - bytes.data());
    std::string_view line = bytes.substr(0, size);
    if (line.ends_with('\r')) line.remove_suffix(1);
    bytes.remove_prefix(end == nullptr ? size : size + 1);
    if (isCode) {
      code = line;
      while (code.starts_with(' ')) code.remove_prefix(1);
    } else {
      if (code == "0") {
        // The variables of a header follow the type of their section.
        wantsHandle = line != "SECTION";
        handleCode = line == "DIMSTYLE" ? "105" : "5";
      } else if (wantsHandle && (code == handleCode || code == "100")) {
        wantsHandle = false;
        if (code == handleCode && line != "0") ++count;
      }
    }
    isCode = !isCode;
  }
  return count;
}

void BuildIndex(benchmark::State& state, std::string_view bytes) {
  const TagStream stream(bytes, Form::kText);
  if (ObjectIndex::Build(stream, 0, bytes.size()).size() != CountHandles(bytes)) {
    state.SkipWithError("the index holds another number of objects than the file");
    return;
  }
  for (auto _ : state) {
    const ObjectIndex index = ObjectIndex::Build(stream, 0, bytes.size());
    benchmark::DoNotOptimize(index.size());
  }
  state.counters["objects"] =
      static_cast<double>(ObjectIndex::Build(stream, 0, bytes.size()).size());
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations() * bytes.size()));
}

// The references of the block that has the most of them; finding those of one block takes the pass
// that finds all.  Opening the drawing, which reads the header alone, isn't measured.
void ListReferences(benchmark::State& state, const std::wstring& path) {
  using zdx::model::TableKind;
  std::size_t most = 0;
  std::int64_t bytes = 0;
  for (auto _ : state) {
    state.PauseTiming();
    auto opened = zdx::file::MappedFile::Open(path);
    auto& mapped = std::get<zdx::file::MappedFile>(opened);
    bytes += static_cast<std::int64_t>(mapped.bytes().size());
    auto drawing = std::make_unique<zdx::dxf::DxfDrawing>(std::move(mapped), Form::kText,
                                                          std::make_shared<zdx::model::Report>());
    state.ResumeTiming();
    const std::vector<zdx::model::ObjectKey> blocks = drawing->TableRecords(TableKind::kBlock);
    for (const zdx::model::ObjectKey block : blocks) {
      most = std::max(most, drawing->BlockReferences(block).size());
    }
    state.PauseTiming();
    drawing.reset();
    state.ResumeTiming();
  }
  if (most == 0) state.SkipWithError("no block has references");
  state.counters["references"] = static_cast<double>(most);
  state.SetBytesProcessed(bytes);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::fputs("usage: index_benchmark FILE.dxf\n", stderr);
    return 64;
  }
  auto opened = zdx::file::MappedFile::Open(ZDXEngine::WideFromUtf8(argv[1]));
  const auto* const mapped = std::get_if<zdx::file::MappedFile>(&opened);
  if (mapped == nullptr) {
    std::fprintf(stderr, "index_benchmark: can't open %s\n", argv[1]);
    return 2;
  }
  benchmark::RegisterBenchmark("BuildIndex", BuildIndex, mapped->bytes())
      ->Unit(benchmark::kMillisecond);
  benchmark::RegisterBenchmark("ListReferences", ListReferences, ZDXEngine::WideFromUtf8(argv[1]))
      ->Unit(benchmark::kMillisecond);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
