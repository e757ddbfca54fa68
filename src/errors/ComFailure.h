// Texts as COM automation strings, with the one rule for their failure.
#pragma once

#include "ZDXEngine/Automation.h"

namespace ZDXEngine {

// A VT_BSTR variant holding a copy of `text`, which may be null; the caller owns it.  Throws
// _com_error for E_OUTOFMEMORY if a text that isn't null can't be copied.
VARIANT MakeTextVariant(const wchar_t* text);

}  // namespace ZDXEngine
