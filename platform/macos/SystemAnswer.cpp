#include "platform/SystemAnswer.h"

// macOS has the interpreter.
QString SystemAnswer(const QString &)
{
    return QString();
}
