#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

/// A temporary directory with files for a test, for example a proc directory with chosen figures.
class TemporaryTree
{
public:
    /// Writes a file and makes the directories above it.
    void Write(const QString &path, const QByteArray &content) const
    {
        const QString file = directory.filePath(path);
        QDir().mkpath(QFileInfo(file).path());
        QFile out(file);
        if (!out.open(QIODevice::WriteOnly) || out.write(content) != content.size()) {
            qFatal("cannot write %s", qPrintable(file));
        }
    }
    QByteArray Read(const QString &path) const
    {
        QFile in(directory.filePath(path));
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray();
    }
    std::string Path(const QString &path = {}) const { return directory.filePath(path).toStdString(); }

private:
    QTemporaryDir directory;
};
