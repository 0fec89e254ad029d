#pragma once

#include "compat/MemoryFigures.h"

#include <string>

/// The two header lines above a table that grows by a line per interval.
std::string MemoryTableHeader();

/// One line of that table: amounts of memory as they are, counters as the difference to an earlier moment
/// (never negative; all zero for the first line, which so shows the totals). Numbers too wide for their
/// column are cut to thousands with K, M or G behind.
std::string MemoryTableLine(const MemoryFigures &now, const MemoryFigures &before);
