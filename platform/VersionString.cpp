#include "platform/Global.h"

const QString Global::VersionString = QStringLiteral("1.2.2");
