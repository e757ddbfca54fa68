// Marks what the shared library shows to its clients.
//
// Everything else is compiled with hidden visibility, so a name that isn't marked can't be linked
// against.  Classes that cross the edge as exceptions are marked too: they are caught by class.
#pragma once

#if defined(_WIN32)
#if defined(ZDXENGINE_BUILDING)
#define ZDXENGINE_API __declspec(dllexport)
#elif defined(ZDXENGINE_STATIC)
#define ZDXENGINE_API
#else
#define ZDXENGINE_API __declspec(dllimport)
#endif
#else
#define ZDXENGINE_API __attribute__((visibility("default")))
#endif
