#pragma once

#include "platform/Global.h"

#include <QFile>

/// A shell script in the Resources directory of the running test's own bundle, gone again with the object:
/// the freeing helper "memfree", or after InPath() a "vm_stat" as a user may have installed it.
class BundledFake
{
public:
    explicit BundledFake(const char *name) : path(Global::BundledResourcesDirectory() + '/' + name) {}
    BundledFake(const char *name, const QByteArray &body) : BundledFake(name) { Write(body); }
    ~BundledFake() { QFile::remove(path); }
    Q_DISABLE_COPY_MOVE(BundledFake)

    static void InPath()
    {
        qputenv("PATH", QFile::encodeName(Global::BundledResourcesDirectory()) + ":/usr/bin:/bin");
    }

    void Write(const QByteArray &body, bool bExecutable = true) const
    {
        QFile::remove(path); // it may be running
        QFile file(path);
        const auto all = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
        if (!file.open(QIODevice::WriteOnly) || file.write("#!/bin/sh\n" + body + '\n') < 0 ||
            !file.setPermissions(bExecutable ? all : QFile::ReadOwner)) {
            qFatal("cannot write %s", qPrintable(path));
        }
    }

    const QString path;
};
