#include "support/dwg/HeaderVariables.h"
#include "support/dwg/Tokens.h"

namespace dwg {
namespace {

// Programs without the class may still erase, copy and move its objects.
constexpr int kProxyFlags = 1153;
constexpr int kEntityClass = 0x1F2;
constexpr int kObjectClass = 0x1F3;

void PutClass(Fields& fields, const NumberedClass& known) {
  fields.BS(known.number);
  fields.BS(kProxyFlags);
  fields.T(known.spec.application);
  fields.T(known.spec.className);
  fields.T(known.spec.type);
  fields.B(false);
  fields.BS(known.spec.isEntity ? kEntityClass : kObjectClass);
  if (!fields.IsSince(Version::AC1018)) return;
  fields.BL(1);
  for (int i = 0; i < 4; ++i) fields.BL(0);
}

}  // namespace

std::string ClassesSection(const Drawing& drawing) {
  Fields fields = drawing.NewSection();
  const bool isPaged = drawing.IsSince(Version::AC1018);
  if (isPaged) {
    const bool hasClasses = !drawing.classes.empty();
    fields.BS(hasClasses ? drawing.classes.back().number
                         : static_cast<unsigned>(Type::FirstClass) - 1);
    fields.RC(0);
    fields.RC(0);
    fields.B(true);
  }
  for (const NumberedClass& known : drawing.classes) PutClass(fields, known);
  std::string section = MarkedSection(fields, kClassesMark, MaintenanceOf(drawing));
  if (isPaged) section += std::string(8, '\0');
  return section;
}

}  // namespace dwg
