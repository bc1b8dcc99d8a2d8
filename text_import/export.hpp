// SPDX-License-Identifier: MIT
//
// TEXT_IMPORT_API marks what the import library exports; everything is compiled with hidden
// visibility. A class carries the mark as a whole, so that its type information crosses too.
#pragma once

#if defined(__GNUC__)
#define TEXT_IMPORT_API __attribute__((visibility("default")))
#else
#define TEXT_IMPORT_API
#endif
