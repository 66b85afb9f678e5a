#pragma once

// The Windows API for the few places that ask the platform itself, without
// its min and max macros and its rarely used parts. Nothing elsewhere.
#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#include <windows.h>
#endif
