#pragma once

#include <QRegularExpression>
#include <QTest>

/// Fails the running test at any warning of Qt's: above all at a string connection that matches nothing,
/// which the program itself would swallow. No fault: an interpreter that is still ending when its answer has
/// been read, and what the offscreen platform cannot do.
inline void FailOnWarnings()
{
    QTest::failOnWarning(
        QRegularExpression(QStringLiteral("^(?!QProcess: Destroyed while|This plugin does not support|"
                                          "QObject::connect: No such signal QPlatformNativeInterface)")));
}
