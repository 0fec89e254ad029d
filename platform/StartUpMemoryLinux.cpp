#include "platform/StartUpMemory.h"

#include <QByteArray>
#include <QFile>

#include <sys/mman.h>

void ReleaseStartUpCode()
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    if (!maps.open(QIODevice::ReadOnly)) {
        return;
    }
    // 7f0000000000-7f0000100000 r-xp 00001000 fe:00 1234   /usr/lib/libexample.so
    const QList<QByteArray> lines = maps.readAll().split('\n');
    for (const QByteArray &line : lines) {
        // Code from a file is never written to, so nothing but a copy goes. That holds for no other kind:
        // what is read-only by now may have been written to at the start.
        if (!line.contains(" r-xp ") || !line.contains(" /")) {
            continue;
        }
        const qsizetype nDash = line.indexOf('-');
        const auto begin = line.left(nDash).toULongLong(nullptr, 16);
        const auto end = line.mid(nDash + 1, line.indexOf(' ') - nDash - 1).toULongLong(nullptr, 16);
        madvise(reinterpret_cast<void *>(begin), end - begin, MADV_DONTNEED);
    }
}
