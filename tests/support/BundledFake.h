#pragma once

#include "platform/BundledResources.h"

#include <QDir>
#include <QFile>
#include <QString>

/// A shell script standing in for one of the bundled programs ("osascript", "memfree") in the running test's
/// own bundle, found by the very rule that the application uses; gone again with the object.
class BundledFake
{
public:
    explicit BundledFake(const QString &name, const QByteArray &body = {})
        : path(Global::BundledResourcesDirectory() + QLatin1Char('/') + name)
    {
        if (!body.isNull()) {
            Write(body);
        }
    }
    ~BundledFake() { QFile::remove(path); }
    Q_DISABLE_COPY_MOVE(BundledFake)

    /// Replaces the script. Written beside and renamed, since a running script must not be written over.
    void Write(const QByteArray &body, bool bExecutable = true)
    {
        QFile file(path + QStringLiteral(".new"));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        file.write("#!/bin/sh\n" + body + "\n");
        file.close();
        auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
        file.setPermissions(bExecutable ? permissions | QFileDevice::ExeOwner : permissions);
        QFile::remove(path);
        file.rename(path);
    }

    const QString path;
};
