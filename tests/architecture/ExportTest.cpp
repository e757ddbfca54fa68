// The shared library shows its interface and nothing else.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <memory>
#include <regex>
#include <set>
#include <stdexcept>
#include <string>

namespace {

using ::testing::ContainerEq;

// The name as the headers spell it, whichever standard library the build uses.
std::string HeaderSpelling(std::string name) {
  static const std::regex wideString(
      "std::(__cxx11::|__1::)?basic_string<wchar_t, std::(__1::)?char_traits<wchar_t>, "
      "std::(__1::)?allocator<wchar_t> ?>");
  static const std::regex allocator(", std::(__1::)?allocator<[^<>]*> ?>");
  static const std::regex abiTag("\\[abi:[^\\]]*\\]");
  static const std::regex inlineNamespace("std::__1::");
  name = std::regex_replace(name, wideString, "std::wstring");
  name = std::regex_replace(name, allocator, ">");
  name = std::regex_replace(name, inlineNamespace, "std::");
  return std::regex_replace(name, abiTag, "");
}

TEST(HeaderSpelling, AWideStringAndAVectorComeOutAsTheHeadersSpellThem) {
  EXPECT_EQ(HeaderSpelling("F[abi:cxx11](std::__cxx11::basic_string<wchar_t, "
                           "std::char_traits<wchar_t>, std::allocator<wchar_t> > const&, "
                           "std::vector<N::T, std::allocator<N::T> >&)"),
            "F(std::wstring const&, std::vector<N::T>&)");
}

// The symbols that the library at `path` defines for others, demangled.
std::set<std::string> ExportsOf(const std::string& path) {
  const std::string command =
      "\"" ZDX_NM "\" --dynamic --defined-only --demangle --format=posix \"" + path + "\"";
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), pclose);
  if (pipe == nullptr) throw std::runtime_error("can't run " + command);
  std::string output;
  char buffer[4096];
  while (const std::size_t size = std::fread(buffer, 1, sizeof(buffer), pipe.get())) {
    output.append(buffer, size);
  }
  // NAME TYPE VALUE SIZE, where a name may hold blanks.
  static const std::regex line("(.*) [A-Za-z] [0-9a-f]+( [0-9a-f]+)?\n");
  std::set<std::string> names;
  for (std::sregex_iterator at(output.begin(), output.end(), line), end; at != end; ++at) {
    names.insert(HeaderSpelling((*at)[1]));
  }
  return names;
}

std::set<std::string> ListedExports() {
  std::ifstream stream(ZDX_SOURCE_DIR "/tests/architecture/exports.txt");
  std::set<std::string> names;
  for (std::string line; std::getline(stream, line);) {
    if (!line.empty() && line.front() != '#') names.insert(line);
  }
  return names;
}

TEST(SharedLibrary, ExportsExactlyTheListedNames) {
  const std::set<std::string> listed = ListedExports();
  ASSERT_FALSE(listed.empty());
  EXPECT_THAT(ExportsOf(ZDX_LIBRARY), ContainerEq(listed));
}

}  // namespace
