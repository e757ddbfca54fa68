#include <cstdio>
#include <vector>

#include "maker/Plant.h"

namespace examples {
namespace {

// What the page shows: three boxes with their names, and lines from each to the next.
std::string PageContents() {
  std::string contents = "BT /F1 18 Tf 40 240 Td (Alder Works: flow sheet) Tj ET\n";
  const char* const names[] = {"Boiler", "Mill", "Store"};
  for (int i = 0; i < 3; ++i) {
    const std::string left = std::to_string(40 + 120 * i);
    const std::string text = std::to_string(50 + 120 * i);
    contents += left + " 120 80 50 re S\n";
    contents += "BT /F1 12 Tf " + text + " 140 Td (" + names[i] + ") Tj ET\n";
    if (i > 0) contents += std::to_string(120 * i) + " 145 m " + left + " 145 l S\n";
  }
  return contents;
}

}  // namespace

std::string FlowSheet() {
  const std::string contents = PageContents();
  const std::vector<std::string> objects = {
      "<< /Type /Catalog /Pages 2 0 R >>", "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
      "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 420 297] /Contents 4 0 R\n"
      "   /Resources << /Font << /F1 5 0 R >> >> >>",
      "<< /Length " + std::to_string(contents.size()) + " >>\nstream\n" + contents + "endstream",
      "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>"};
  std::string file = "%PDF-1.4\n";
  // Each entry of the table is twenty bytes long.
  std::string table = "0000000000 65535 f \n";
  for (std::size_t i = 0; i < objects.size(); ++i) {
    char entry[32];
    std::snprintf(entry, sizeof entry, "%010zu 00000 n \n", file.size());
    table += entry;
    file += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
  }
  const std::string count = std::to_string(objects.size() + 1);
  const std::string start = std::to_string(file.size());
  return file + "xref\n0 " + count + "\n" + table + "trailer\n<< /Size " + count +
         " /Root 1 0 R >>\nstartxref\n" + start + "\n%%EOF\n";
}

}  // namespace examples
