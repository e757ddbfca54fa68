// The library's heap and the copies of texts on it.
#pragma once

#include <cstddef>

#include "platform/zndb/Status.h"

// A block of `size` bytes, or null; `heap` is always null.
void* znHeapAlloc(void* heap, std::size_t size);
void znHeapFree(void* heap, void* block);

// Sets `buffer` to a copy of `source` on the heap; an empty text gives a buffer that holds an empty
// text.  On failure `buffer` is left as it was.
Zent::ErrorStatus znutNewString(const wchar_t* source, wchar_t*& buffer);
// Frees such a buffer, which may be null, and sets the reference to null.
void znutDelBuffer(wchar_t*& buffer);
