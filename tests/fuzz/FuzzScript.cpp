// A script for the recogniser: any text, and the two real ones around any text. All of it happens below a
// home of its own.

#include "platform/Global.h"
#include "platform/SystemAnswer.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    SystemAnswer(text);
    SystemAnswer(Global::AddLoginItemScript(text));
    SystemAnswer(Global::RemoveLoginItemScript(text));
    return 0;
}
