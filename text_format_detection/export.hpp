// SPDX-License-Identifier: MIT
//
// TFD_API marks what the shared library exports. Everything is compiled with hidden visibility;
// a class carries the mark as a whole, so that its type information crosses the boundary too
// (an exception cannot be caught by its type outside otherwise).

#pragma once

#if defined(__GNUC__)
#define TFD_API __attribute__((visibility("default")))
#else
#define TFD_API
#endif
