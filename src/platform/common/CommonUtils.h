// The utility library: texts from resources, comparison, and the text forms of property keys.
#pragma once

#include <string>

#include "ZDXEngine/Automation.h"
#include "platform/os/Os.h"

namespace Common {

// How Order compares.  The engine passes the two values below and no others.
enum class StringOrder : int { kCodePoint = 0 };
enum class StringCase : int { kIgnore = 1 };

class StringUtils {
 public:
  // The string table entry `id` of `module`, in the module's language; empty if there is none.
  static std::wstring LoadStrW(os::ModuleHandle module, unsigned int id);
  // Writes into `out` the text `format` with its placeholder "%1!s!" replaced by `argument`, which
  // isn't looked into.  A format without a placeholder comes out unchanged.
  static void FormatMsg1(std::wstring& out, const std::wstring& format,
                         const std::wstring& argument);
  // 0 if the texts are equal, ignoring case; otherwise negative or positive as `a` stands before or
  // behind `b`.  Case is simple Unicode case, the same in every locale.
  static int Order(const std::wstring& a, const std::wstring& b, StringOrder order,
                   StringCase caseRule);
};

class PropertyUtils {
 public:
  // The braced upper-case form, as "{F29F85E0-4FF9-1068-AB91-08002B27B3D9}".
  static std::wstring GuidToString(const GUID& guid);
  // Plain decimal.
  static std::wstring PropIdToString(unsigned long id);
  // The inverse; 0 for any text that isn't wholly a decimal number that fits 32 bits.
  static unsigned long StringToPropId(const std::wstring& text);
};

// What stands behind the operations above; each virtual operation is the one of the same name.
class Provider {
 public:
  virtual ~Provider() = default;
  virtual std::wstring LoadStrW(os::ModuleHandle module, unsigned int id) = 0;
  virtual void FormatMsg1(std::wstring& out, const std::wstring& format,
                          const std::wstring& argument) = 0;
  virtual int Order(const std::wstring& a, const std::wstring& b, StringOrder order,
                    StringCase caseRule) = 0;
  virtual std::wstring GuidToString(const GUID& guid) = 0;
  virtual std::wstring PropIdToString(unsigned long id) = 0;
  virtual unsigned long StringToPropId(const std::wstring& text) = 0;
};

// As os::InstallProvider.
Provider* InstallProvider(Provider* provider);

}  // namespace Common
