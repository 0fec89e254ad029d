#include "platform/Global.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QProcess>

namespace {

/// An interpreter that looks as if it could be run and cannot (another machine's, or a script whose own
/// interpreter is missing), as it was when that was found out.
QString unusablePath;
QDateTime unusableSince;

bool IsUsable(const QFileInfo &file)
{
    return file.isFile() && file.isExecutable() &&
           (file.filePath() != unusablePath || file.lastModified() != unusableSince);
}

/// The system's interpreter wherever there is one, else ours; empty when neither can be executed.
QString Interpreter()
{
    QString system = QStringLiteral("/usr/bin/osascript");
    if (IsUsable(QFileInfo(system))) {
        return system;
    }
    QString bundled = QCoreApplication::applicationDirPath() + QStringLiteral("/../Resources/osascript");
    return IsUsable(QFileInfo(bundled)) ? bundled : QString();
}

} // namespace

QString Global::RunAppleScript(const QString &script, QObject *parent, bool bWait)
{
    // Asked first, since Qt 6.4 loses a descriptor at every start that fails: half an hour of samples without
    // an interpreter would use up all 1024.
    const QString interpreter = Interpreter();
    if (interpreter.isEmpty()) {
        return QString();
    }

    auto *process = new QProcess(parent);
    process->start(interpreter, {QStringLiteral("-l"), QStringLiteral("AppleScript")}, QIODevice::ReadWrite);
    process->write(script.toUtf8());
    process->closeWriteChannel();
    if (!bWait) {
        return QString();
    }

    // The first burst is the answer, by contract: an interpreter writes its result at once.
    process->waitForReadyRead(-1);
    const QByteArray output = process->readAll();
    if (process->error() == QProcess::FailedToStart) {
        unusablePath = interpreter;
        unusableSince = QFileInfo(interpreter).lastModified();
    }
    process->deleteLater();
    return QString::fromLatin1(output.constData()).trimmed();
}
