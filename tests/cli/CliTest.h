// What every test of the built tool needs.
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "support/Process.h"
#include "support/Scratch.h"

namespace zdx_test {

// What the tool ends with.
inline constexpr int kFileFailed = 2;
inline constexpr int kOutputFailed = 74;

inline constexpr bool kOnWindows = std::filesystem::path::preferred_separator == '\\';

// Runs the tool in a folder of its own, which goes away with the test.
class CliTest : public ::testing::Test {
 protected:
  // Puts a file into the folder.
  void Write(const std::string& name, const std::string& bytes) const;
  // Runs the tool in the folder.
  Outcome Zdx(std::vector<std::string> arguments, OutputTo output = OutputTo::kCapture) const;
  // The same with variables of the environment, as "NAME=value".
  Outcome ZdxWith(std::vector<std::string> environment, std::vector<std::string> arguments) const;

  const std::filesystem::path& Folder() const { return folder_.path(); }

 private:
  ScratchFolder folder_;
};

// The JSON documents in `output`, one for each line; an invalid line fails the test.
std::vector<nlohmann::json> Documents(const std::string& output);

// The names of the properties in `document`, in their order.
std::vector<std::string> Names(const nlohmann::json& document);

}  // namespace zdx_test
