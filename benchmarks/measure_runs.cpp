// Measures whole processes.
//
//   measure_runs time RUNS COMMAND... -- COMMAND...
//     runs both commands RUNS times in turn; prints the median seconds of each, and their ratio
//   measure_runs memory COMMAND...
//     prints the peak memory in bytes: without and with the pages of mapped files

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string_view>

#include "measure/Process.h"

namespace {

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::size_t middle = values.size() / 2;
  return values.size() % 2 == 1 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

void PrintTimes(int runs, const bench::Command& first, const bench::Command& second) {
  std::vector<double> firstSeconds;
  std::vector<double> secondSeconds;
  // Fills the page cache.
  bench::SecondsOf(first);
  bench::SecondsOf(second);
  for (int run = 0; run < runs; ++run) {
    firstSeconds.push_back(bench::SecondsOf(first));
    secondSeconds.push_back(bench::SecondsOf(second));
  }
  const double firstMedian = Median(firstSeconds);
  const double secondMedian = Median(secondSeconds);
  std::printf("%.6f %.6f %.3f\n", firstMedian, secondMedian, firstMedian / secondMedian);
}

int Usage() {
  std::cerr << "usage: measure_runs time RUNS COMMAND... -- COMMAND...\n"
               "       measure_runs memory COMMAND...\n";
  return 2;
}

int Run(const std::vector<std::string>& arguments) {
  if (arguments.size() >= 2 && arguments[0] == "memory") {
    const bench::Memory memory = bench::MemoryOf({arguments.begin() + 1, arguments.end()});
    std::cout << memory.peakAnonymous << ' ' << memory.peakResident << '\n';
    return 0;
  }
  const auto separator = std::find(arguments.begin(), arguments.end(), "--");
  if (arguments.size() < 5 || arguments[0] != "time" || separator == arguments.end()) {
    return Usage();
  }
  int runs = 0;
  const std::string& count = arguments[1];
  std::from_chars(count.data(), count.data() + count.size(), runs);
  if (runs < 1 || separator == arguments.begin() + 2 || separator + 1 == arguments.end()) {
    return Usage();
  }
  PrintTimes(runs, {arguments.begin() + 2, separator}, {separator + 1, arguments.end()});
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return Run({argv + 1, argv + argc});
  } catch (const std::exception& error) {
    std::cerr << "measure_runs: " << error.what() << '\n';
    return 1;
  }
}
