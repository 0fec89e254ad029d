#pragma once

#include <QVariantMap>

/// Whether the record asks for a reminder at this sample: Remind is on and inactive memory (bytes) is above
/// RemindThreshold (GB of 2^30 bytes). Exactly at the threshold does not remind; a record without one reminds
/// of any inactive memory.
bool IsReminderDue(const QVariantMap &record, const QVariantMap &stats);
