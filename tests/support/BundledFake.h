#pragma once

#include "platform/Global.h"

#include <QFile>

/// A shell script in the Resources directory of the running test's own bundle, gone again with the object:
/// the freeing helper ("memfree"), or with BundledFake::InPath() the "vm_stat" that a user has installed.
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

    /// Makes the fakes the first programs in PATH. A vm_stat is searched for once, at the first sample, so it
    /// must be there by then.
    static void InPath()
    {
        qputenv("PATH", QFile::encodeName(Global::BundledResourcesDirectory()) + ":/usr/bin:/bin");
    }

    /// Replaces the script. Written beside and renamed, since a running script must not be written over.
    void Write(const QByteArray &body, bool bExecutable = true) const
    {
        QFile file(path + QStringLiteral(".new"));
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
            qFatal("cannot write %s", qPrintable(file.fileName()));
        }
        file.write("#!/bin/sh\n" + body + "\n");
        file.close();
        const auto permissions = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
        file.setPermissions(bExecutable ? permissions | QFileDevice::ExeOwner : permissions);
        QFile::remove(path);
        file.rename(path);
    }

    const QString path;
};
