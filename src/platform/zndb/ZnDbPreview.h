// The preview picture that a drawing file carries.
#pragma once

#include "platform/os/Graphics.h"

// Sets `bitmap` to the preview stored in the file at `path`, and `palette` to its palette, null for
// a bitmap without a colour table; the caller owns both.  False, and both are left as they were, if
// there is no preview that can be shown.
bool zndbGetPreviewBitmapFromDwg(const wchar_t* path, os::HBITMAP& bitmap, os::HPALETTE& palette);

// The same as a device-independent bitmap: head, colour table and rows in one block, which belongs
// to the library and is valid until the next call.  Null if there is none.
const os::BITMAPINFO* zndbGetPreviewBitmap(const wchar_t* path);
