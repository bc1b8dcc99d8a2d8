// SPDX-License-Identifier: MIT
//
// TEXT_IMPORT_API marks what the import library exports; all else is hidden.
#pragma once

#if defined(__GNUC__)
#define TEXT_IMPORT_API __attribute__((visibility("default")))
#else
#define TEXT_IMPORT_API
#endif
