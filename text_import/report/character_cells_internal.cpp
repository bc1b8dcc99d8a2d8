// SPDX-License-Identifier: MIT
#include "text_import/report/character_cells_internal.hpp"
