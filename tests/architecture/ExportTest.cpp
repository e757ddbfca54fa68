// The shared library shows its interface and nothing else.
#include <cxxabi.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>
#include <regex>
#include <set>
#include <sstream>
#include <string>

#include "architecture/Exports.h"
#include "support/Paths.h"
#include "support/Scratch.h"

namespace {

using ::testing::ContainerEq;

// The name as the headers spell it, whichever standard library the build uses.
std::string HeaderSpelling(std::string name) {
  static const std::regex inlineNamespace("std::(__cxx11|__1)::");
  static const std::regex wideString(
      "std::basic_string<wchar_t, std::char_traits<wchar_t>, std::allocator<wchar_t> ?>");
  static const std::regex mapOfTexts(
      ", std::less<std::wstring ?>, "
      "std::allocator<std::pair<std::wstring const, std::wstring ?> ?> ?>");
  static const std::regex allocator(", std::allocator<[^<>]*(<[^<>]*> ?)?> ?>");
  static const std::regex abiTag("\\[abi:[^\\]]*\\]");
  name = std::regex_replace(name, inlineNamespace, "std::");
  name = std::regex_replace(name, wideString, "std::wstring");
  name = std::regex_replace(name, mapOfTexts, ">");
  name = std::regex_replace(name, allocator, ">");
  return std::regex_replace(name, abiTag, "");
}

TEST(HeaderSpelling, AWideStringAndAVectorComeOutAsTheHeadersSpellThem) {
  EXPECT_EQ(HeaderSpelling("F[abi:cxx11](std::__cxx11::basic_string<wchar_t, "
                           "std::char_traits<wchar_t>, std::allocator<wchar_t> > const&, "
                           "std::vector<N::T, std::allocator<N::T> >&)"),
            "F(std::wstring const&, std::vector<N::T>&)");
}

TEST(HeaderSpelling, AListOfMapsComesOutAsTheHeadersSpellIt) {
  EXPECT_EQ(
      HeaderSpelling("F(std::vector<std::map<std::basic_string<wchar_t, std::char_traits<wchar_t>, "
                     "std::allocator<wchar_t> >, int, std::less<std::wstring>, "
                     "std::allocator<std::pair<std::wstring const, std::wstring > > >, "
                     "std::allocator<std::map<std::wstring, int> > >)"),
      "F(std::vector<std::map<std::wstring, int>>)");
}

// The name that the compiler made the symbol of; the symbol itself if it's none of the compiler's.
std::string Demangled(const std::string& symbol) {
  int status = 0;
  const std::unique_ptr<char, void (*)(void*)> name(
      abi::__cxa_demangle(symbol.c_str(), nullptr, nullptr, &status), std::free);
  return status == 0 ? HeaderSpelling(name.get()) : symbol;
}

std::set<std::string> ExportedNames() {
  std::set<std::string> names;
  for (const std::string& symbol : architecture::ExportsOf(zdx_test::PathOf(ZDX_LIBRARY))) {
    names.insert(Demangled(symbol));
  }
  return names;
}

// A name that only one system has stands behind the system's in brackets.
std::set<std::string> ListedExports() {
  std::istringstream list(
      zdx_test::ContentsOf(zdx_test::PathOf(ZDX_SOURCE_DIR "/tests/architecture/exports.txt")));
  std::set<std::string> names;
  for (std::string line; std::getline(list, line);) {
    if (line.empty() || line.front() == '#') continue;
    const std::size_t end = line.front() == '[' ? line.find("] ") : std::string::npos;
    if (end == std::string::npos) {
      names.insert(line);
    } else if (line.substr(1, end - 1) == ZDX_SYSTEM) {
      names.insert(line.substr(end + 2));
    }
  }
  return names;
}

TEST(SharedLibrary, ExportsExactlyTheListedNames) {
  const std::set<std::string> listed = ListedExports();
  ASSERT_FALSE(listed.empty());
  EXPECT_THAT(ExportedNames(), ContainerEq(listed));
}

}  // namespace
