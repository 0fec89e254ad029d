#pragma once

#include <QThread>

/// A thread that can tell that it was made to end. Qt had this signal itself once; a class of its own brings
/// it back, so that a worker built on it declares nothing but its own signals.
class TerminableThread : public QThread
{
    Q_OBJECT

public:
    using QThread::QThread;

signals:
    /// The run was cut short. Emitted by the ending thread, once, before finished().
    void terminated();
};
