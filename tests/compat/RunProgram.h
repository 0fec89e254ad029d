#pragma once

#include <QProcess>
#include <QStringList>

#include <functional>

struct Outcome
{
    int status = -1; ///< the exit status; -1 if it crashed, could not be started or did not end
    QByteArray output;
    QByteArray errors;

    bool operator==(const Outcome &) const = default;
};

/// What a test can set for a run beside its arguments.
struct Surroundings
{
    QByteArray input = {};
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    std::function<void()> inChild = {}; ///< called in the child, before the program
};

inline Outcome RunProgram(const QString &program, const QStringList &arguments,
                          const Surroundings &around = {})
{
    QProcess process;
    process.setProcessEnvironment(around.environment);
    if (around.inChild) {
        process.setChildProcessModifier(around.inChild);
    }
    process.start(program, arguments);
    process.write(around.input);
    process.closeWriteChannel();
    const bool bEnded = process.waitForFinished(20000) && process.exitStatus() == QProcess::NormalExit;
    return {bEnded ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

/// QCOMPARE shows a run that differs.
inline char *toString(const Outcome &outcome)
{
    return qstrdup("exit " + QByteArray::number(outcome.status) + ", output \"" + outcome.output +
                   "\", errors \"" + outcome.errors + '"');
}
