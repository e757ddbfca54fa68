// What a stored picture shows, in words that tests compare.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "backends/database/preview/ShowPicture.h"

namespace preview_test {

inline zdx::preview::Showing Show(zdx::model::StoredPicture::Kind kind, std::string bytes) {
  return zdx::preview::ShowPicture({kind, std::move(bytes), 0});
}

// The bitmap in `shown`; fails the test and is of one pixel if there is none.
inline const zdx::preview::Dib& DibOf(const zdx::preview::Showing& shown) {
  const auto* const dib = std::get_if<zdx::preview::Dib>(&shown);
  EXPECT_NE(dib, nullptr);
  static const zdx::preview::Dib none({40, 1, 1, 1, 24, 0, 0, 0, 0, 0, 0}, {});
  return dib == nullptr ? none : *dib;
}

inline std::string RowsOf(const zdx::preview::Showing& shown) {
  const auto rows = DibOf(shown).rows();
  return {rows.begin(), rows.end()};
}

// Three bytes a colour: blue, green, red.
inline std::string ColoursOf(const zdx::preview::Showing& shown) {
  std::string colours;
  for (const os::RGBQUAD& colour : DibOf(shown).colours()) {
    for (const std::uint8_t part : {colour.rgbBlue, colour.rgbGreen, colour.rgbRed}) {
      colours += static_cast<char>(part);
    }
  }
  return colours;
}

// Why nothing is shown; empty if something is.
inline std::wstring RefusalOf(const zdx::preview::Showing& shown) {
  const auto* const reason = std::get_if<const wchar_t*>(&shown);
  return reason == nullptr ? L"" : *reason;
}

}  // namespace preview_test
