// Which symbols leave the two shared libraries. All else is hidden.
#pragma once

#ifdef SPLITFRAME_STATIC
#define SPLITFRAME_API
#define SPLITFRAME_PLATFORM_API
#else
#define SPLITFRAME_API __attribute__((visibility("default")))
#define SPLITFRAME_PLATFORM_API __attribute__((visibility("default")))
#endif
