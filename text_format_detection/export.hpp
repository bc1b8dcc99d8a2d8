// SPDX-License-Identifier: MIT
//
// TFD_API marks what the shared library exports. Everything is compiled with hidden visibility;
// a class carries the mark as a whole, so that its type information crosses the boundary too
// (an exception cannot be caught by its type outside otherwise). TFD_LOCAL takes the mark off a
// private member of such a class that only the library itself calls.
#pragma once

#if defined(__GNUC__)
#define TFD_API __attribute__((visibility("default")))
#define TFD_LOCAL __attribute__((visibility("hidden")))
#else
#define TFD_API
#define TFD_LOCAL
#endif
