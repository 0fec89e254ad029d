// A copy of a program of which one runs per user, for TestInstance: instance_peer MESSAGE [TIME-OUT
// [COMMAND]].
//
// The running copy starts COMMAND, if any, as a process that outlives it, says "running" and then each
// message, a line each. Another copy hands its message over and ends with 0, or with 1 where that failed.

#include "platform/QtSingleApplication.h"

#include <QProcess>

#include <cstdio>

class Peer : public QtSingleApplication
{
    Q_OBJECT

public:
    Peer(int &argc, char **argv) : QtSingleApplication(argc, argv, true)
    {
        setOrganizationName(QStringLiteral("Orvanta"));
        setApplicationName(QStringLiteral("Peer"));
        connect(this, SIGNAL(messageReceived(QString)), this, SLOT(Say(QString)));
    }

public slots:
    void Say(const QString &text)
    {
        std::puts(qPrintable(text));
        std::fflush(stdout);
    }
};

int main(int argc, char *argv[])
{
    Peer peer(argc, argv);
    const QStringList arguments = Peer::arguments();
    if (peer.isRunning()) {
        return peer.sendMessage(arguments.at(1), arguments.value(2, QStringLiteral("5000")).toInt()) ? 0 : 1;
    }
    if (arguments.size() > 3) {
        QProcess command;
        command.setProgram(arguments.at(3));
        command.setArguments(arguments.mid(4));
        // Whoever waits for the end of our output must not wait for that of the command.
        command.setStandardOutputFile(QProcess::nullDevice());
        command.setStandardErrorFile(QProcess::nullDevice());
        command.startDetached();
    }
    peer.Say(QStringLiteral("running"));
    return Peer::exec();
}

#include "TestInstancePeer.moc"
