#include "platform/LaunchFeedback.h"

// The system itself brings a running application to the front instead of launching it again.

QByteArray LaunchToken()
{
    return QByteArray();
}

void EndLaunchFeedback() {}
