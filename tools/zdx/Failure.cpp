#include "Failure.h"

#include <cstddef>
#include <exception>
#include <new>

#include "ZDXEngine/Automation.h"
#include "ZDXEngine/Utf8.h"
#include "ZDXEngine/ZdxEngineException.h"

namespace zdx {

namespace {

using ZDXEngine::ZdxEngineException;

template <class Class>
bool Is(const ZdxEngineException& error) {
  return dynamic_cast<const Class*>(&error) != nullptr;
}

struct ExceptionClass {
  const char* name;
  bool (*matches)(const ZdxEngineException& error);
};

// The leaves stand before the class that they derive from.
constexpr ExceptionClass kClasses[] = {
    {"ReadError", Is<ZDXEngine::ReadError>},
    {"NotFound", Is<ZDXEngine::NotFound>},
    {"InvalidFormat", Is<ZDXEngine::InvalidFormat>},
    {"SecurityError", Is<ZDXEngine::SecurityError>},
    {"NoAccess", Is<ZDXEngine::NoAccess>},
    {"NotConvertDigitalSigned", Is<ZDXEngine::NotConvertDigitalSigned>},
    {"SharingViolation", Is<ZDXEngine::SharingViolation>},
    {"DataTooLarge", Is<ZDXEngine::DataTooLarge>},
    {"ConversionToZENTFormatFailed", Is<ZDXEngine::ConversionToZENTFormatFailed>},
    {"SaveFileError", Is<ZDXEngine::SaveFileError>},
    {"BadDwgHeader", Is<ZDXEngine::BadDwgHeader>},
    {"GetVerticalDependenciesError", Is<ZDXEngine::GetVerticalDependenciesError>},
    {"UpdateVerticalDependenciesError", Is<ZDXEngine::UpdateVerticalDependenciesError>},
    {"FileError", Is<ZDXEngine::FileError>},
};

const char* ClassName(const ZdxEngineException& error) {
  for (const ExceptionClass& entry : kClasses) {
    if (entry.matches(error)) return entry.name;
  }
  return "ZdxEngineException";
}

std::string Trimmed(std::string text) {
  const std::size_t last = text.find_last_not_of(" \t\r\n\v\f");
  text.erase(last == std::string::npos ? 0 : last + 1);
  return text;
}

// What what() gives may be in any encoding.
std::string ValidUtf8(const char* text) {
  return ZDXEngine::Utf8FromWide(ZDXEngine::WideFromUtf8(text));
}

Failure ComFailure(const char* className, HRESULT error) {
  std::string digits;
  for (int shift = 28; shift >= 0; shift -= 4) {
    digits.push_back("0123456789ABCDEF"[static_cast<std::uint32_t>(error) >> shift & 0xF]);
  }
  return {className, error, "COM failure 0x" + digits, {}, {}};
}

}  // namespace

Failure DescribeCurrentException() {
  try {
    throw;
  } catch (const ZdxEngineException& error) {
    return {ClassName(error),
            error.errorCode,
            Trimmed(ZDXEngine::Utf8FromWide(error.errorMessage)),
            {},
            {}};
  } catch (const _com_error& error) {
    return ComFailure("_com_error", error.Error());
  } catch (const ATL::CAtlException& error) {
    return ComFailure("CAtlException", error);
  } catch (const std::bad_alloc&) {
    return {"bad_alloc", std::nullopt, "Out of memory", {}, {}};
  } catch (const std::exception& error) {
    return {"exception", std::nullopt, Trimmed(ValidUtf8(error.what())), {}, {}};
  }
}

}  // namespace zdx
