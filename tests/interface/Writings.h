// The forms in which one drawing is written for a test.
#pragma once

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>
#include <tuple>

#include "support/dwg/DwgMaker.h"
#include "support/dxf/DxfMaker.h"

namespace zdx_test {

struct Writing {
  const char* name;
  // As the diagnostics tell it.
  const wchar_t* format;
  std::string (*make)(const drawing::DrawingSpec& spec);

  bool IsDwg() const { return std::wstring_view(L"DWG") == format; }
  const char* Suffix() const { return IsDwg() ? ".dwg" : ".dxf"; }

  friend std::ostream& operator<<(std::ostream& out, const Writing& writing) {
    return out << writing.name;
  }
};

template <char... kLineEnd>
std::string MakeText(const drawing::DrawingSpec& spec) {
  return dxf::Make(spec, {.form = dxf::Form::Ascii, .lineEnd = {kLineEnd...}});
}

inline std::string MakeBinary(const drawing::DrawingSpec& spec) {
  return dxf::Make(spec, {.form = dxf::Form::Binary});
}

inline std::string MakeDwg(const drawing::DrawingSpec& spec) { return dwg::Make(spec); }

inline std::string MakeDwgOfManyPages(const drawing::DrawingSpec& spec) {
  return dwg::Make(spec, {.objectPageSize = 0x400, .mapPageSize = 64});
}

inline std::string MakeDwgWithoutRepeats(const drawing::DrawingSpec& spec) {
  return dwg::Make(spec, {.squeeze = dwg::Squeeze::LiteralsOnly});
}

inline constexpr Writing kDxfWritings[] = {
    {"TextWithCrLf", L"DXF (text)", MakeText<'\r', '\n'>},
    {"TextWithLf", L"DXF (text)", MakeText<'\n'>},
    {"TextWithCr", L"DXF (text)", MakeText<'\r'>},
    {"Binary", L"DXF (binary)", MakeBinary},
};

inline constexpr Writing kDwgWritings[] = {
    {"Dwg", L"DWG", MakeDwg},
    {"DwgOfManyPages", L"DWG", MakeDwgOfManyPages},
    {"DwgWithoutRepeats", L"DWG", MakeDwgWithoutRepeats},
};

// The versions that the makers write.
inline constexpr const char* kDxfVersions[] = {"AC1009", "AC1012", "AC1014", "AC1015", "AC1018",
                                               "AC1021", "AC1024", "AC1027", "AC1032"};
inline constexpr const char* kDwgVersions[] = {"AC1014", "AC1015", "AC1018", "AC1021",
                                               "AC1024", "AC1027", "AC1032"};

// A version and a form.
using WrittenAs = std::tuple<const char*, Writing>;

inline std::string WritingTestName(const testing::TestParamInfo<WrittenAs>& info) {
  return std::string(std::get<0>(info.param)) + std::get<1>(info.param).name;
}

}  // namespace zdx_test
