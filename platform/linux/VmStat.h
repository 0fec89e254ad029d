#pragma once

#include <QString>

#include <string_view>

/// The answer to `do shell script "vm_stat"`: what a vm_stat in PATH prints, otherwise a report of our own.
/// Lines end with CR, as AppleScript has it.
/// @return the empty string if the program fails or takes longer than 10 s, or if there are no figures
QString VmStat();

/// The report from the text of /proc/meminfo: a header and five lines of 48 characters, full stop included,
/// as in
///     Pages free:                              123456.
/// Counts are in pages of 4096 bytes, whatever the kernel's own page size. Free, active, inactive and wired
/// down add up to MemTotal.
/// @return the empty string for a text without usable MemTotal and MemFree
QString VmStatReport(std::string_view meminfo);
