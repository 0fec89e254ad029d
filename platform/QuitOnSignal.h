#pragma once

#include <QObject>

#include <array>
#include <csignal>

/// Turns SIGTERM, SIGINT and SIGHUP into a quit request, a Close event posted to the application object, so
/// that the end of a session runs destructors and saves. A SIGHUP that is ignored at the start (nohup) stays
/// ignored.
///
/// One at a time, created after the application object. As its child it also covers the application's
/// destructor. A second signal, two seconds or more after the first, ends a program that hangs. Its
/// destructor restores the old dispositions.
class QuitOnSignal : public QObject
{
    Q_OBJECT

public:
    explicit QuitOnSignal(QObject *parent = nullptr);
    ~QuitOnSignal() override;

private slots:
    void OnSignal();

private:
    static constexpr std::array signalNumbers{SIGTERM, SIGINT, SIGHUP};

    std::array<int, 2> descriptors{-1, -1};
    std::array<struct sigaction, signalNumbers.size()> oldActions{};
};
