#include "platform/StartUpMemory.h"

#include <QByteArray>
#include <QFile>

#include <sys/mman.h>

void ReleaseStartUpCode()
{
    QFile maps(QStringLiteral("/proc/self/smaps"));
    if (!maps.open(QIODevice::ReadOnly)) {
        return;
    }
    // 7f0000000000-7f0000100000 r-xp 00001000 fe:00 1234   /usr/lib/libexample.so
    // Size:               1024 kB
    // ...
    // Anonymous:             0 kB
    const QList<QByteArray> lines = maps.readAll().split('\n');
    quintptr begin = 0;
    quintptr end = 0;
    for (const QByteArray &line : lines) {
        if (line.contains(" r-xp ") && line.contains(" /")) {
            const qsizetype nDash = line.indexOf('-');
            begin = line.left(nDash).toULongLong(nullptr, 16);
            end = line.mid(nDash + 1, line.indexOf(' ') - nDash - 1).toULongLong(nullptr, 16);
        } else if (line.startsWith("Anonymous:") && begin != end) {
            // A page that was written to (relocated, or with a debugger's mark in it) would come back as it
            // is in the file.
            if (line.simplified() == "Anonymous: 0 kB") {
                madvise(reinterpret_cast<void *>(begin), end - begin, MADV_DONTNEED);
            }
            begin = end;
        }
    }
}
