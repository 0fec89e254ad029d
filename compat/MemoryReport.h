#pragma once

#include "compat/MemoryFigures.h"

#include <string_view>

constexpr std::string_view memoryReportHeader = "Mach Virtual Memory Statistics: (page size of 4096 bytes)\n";

constexpr std::size_t nMaxReportBytes = 1280;
using ReportBuffer = std::array<char, nMaxReportBytes>;

/// The report in the form that macOS prints: a header line, then a line of 48 characters per figure, full
/// stop included; every line ends with a line feed.
/// @param buffer  holds the text that is returned
std::string_view MemoryReport(const MemoryFigures &figures, ReportBuffer &buffer);
