#include "platform/Global.h"
#include "platform/SystemAnswer.h"

#include <QFileInfo>
#include <QProcess>

QString Global::RunAppleScript(const QString &script, QObject *parent, bool bWait)
{
    // Tested first: Qt 6.4 leaks a descriptor at every start that fails.
    const QString interpreter = QStringLiteral("/usr/bin/osascript");
    if (const QFileInfo file(interpreter); file.isFile() && file.isExecutable()) {
        return RunInterpreter(interpreter, script, parent, bWait);
    }
    if (!bWait) {
        const auto ask = [script] { SystemAnswer(script); };
        QMetaObject::invokeMethod(parent, ask, Qt::QueuedConnection);
        return QString();
    }
    return SystemAnswer(script).trimmed();
}

QString Global::RunInterpreter(const QString &program, const QString &script, QObject *parent, bool bWait)
{
    auto *process = new QProcess(parent);
    process->start(program, {QStringLiteral("-l"), QStringLiteral("AppleScript")}, QIODevice::ReadWrite);
    process->write(script.toUtf8());
    process->closeWriteChannel();
    if (!bWait) {
        return QString();
    }
    // By contract the first block is the whole answer: an interpreter writes its result at once.
    process->waitForReadyRead(-1);
    const QByteArray output = process->readAll();
    process->deleteLater();
    return QString::fromLatin1(output.constData()).trimmed();
}
