// Real drawings, where a collection of them lies beside the project: drawings, and for each a truth
// file that says what it holds.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace zdx_test {

std::filesystem::path SampleFolder();
// The names of the drawings with that extension (".dwg"), in order; none where there is no such
// collection.
std::vector<std::string> SampleNames(const std::string& extension);
// The truth about the drawing `name`, as JSON.
std::filesystem::path TruthOf(const std::string& name);
// `name` as a test may be called.
std::string SampleTestName(std::string name);

}  // namespace zdx_test
