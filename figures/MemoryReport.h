#pragma once

#include <QString>
#include <QVariantMap>

/// Reads a vm_stat report into the statistics record: Free (pages free and speculative), PureFree (pages free
/// alone), Inactive, Active, Wired and Used (the sum of these three), all in bytes as qlonglong.
///
/// Lines are found by their label, in any order and in any case, as in
///     Pages free:                              123456.
/// A missing line leaves its key at the previous sample's value; a count that is not a number is 0 bytes.
void ReadMemoryReport(const QString &report, QVariantMap &stats);
