#pragma once

#include "core/common/Sheet.h"

#include <vector>

/// What a list shows: its columns, and row by row the texts under them. The first text is the row's key.
struct ListContents {
    std::vector<SheetColumn> columns = {};
    std::vector<Sheet::Row> rows = {};
};
