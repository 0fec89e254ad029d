// An autostart entry that somebody else wrote, and one of ours for a program of any name: read again, it is
// the same.

#include "platform/linux/DesktopEntry.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char *>(data), qsizetype(size));
    ParseDesktopEntry(text);
    const QString name = QString::fromUtf8(text);
    if (IsExecutableName(name) && name.trimmed() == name && !name.isEmpty()) {
        const DesktopEntry entry = ParseDesktopEntry(DesktopEntryText(name, name));
        if (entry.name != name || entry.exec != ExecValue(name) || entry.bSwitchedOff) {
            std::abort();
        }
    }
    return 0;
}
