#pragma once

#include "app/MyApp.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "mainwindow/MainDialog.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"

#include <QMenu>
#include <QSettings>

/// A vm_stat in PATH with the page counts that a test sets. It must be there at the process's first sample.
class FakeReport : BundledFake
{
public:
    FakeReport(int free, int inactive, int active, int wired) : BundledFake("vm_stat")
    {
        InPath();
        Set(free, inactive, active, wired);
    }
    void Set(int free, int inactive, int active, int wired) const
    {
        const char *format =
            "echo Pages free: %d. Pages active: %d. Pages inactive: %d. Pages wired down: %d.";
        Write(QString::asprintf(format, free, active, inactive, wired).toLatin1());
    }
};

/// A whole application for one test: the real controller over a fake report.
struct RunningApp
{
    RunningApp() { app.InitializeWidgets(); }
    ~RunningApp() { delete Find<QMenu>(); } // the program never does: it lives until the process ends
    Q_DISABLE_COPY_MOVE(RunningApp)

    /// A widget of one of the windows, by its class and where need be its object name.
    template <class T> static T *Find(const char *name = nullptr)
    {
        const auto widgets = QApplication::allWidgets();
        for (QWidget *widget : widgets) {
            auto *found = qobject_cast<T *>(widget);
            if (found && (!name || widget->objectName() == QLatin1String(name))) {
                return found;
            }
        }
        return nullptr;
    }
    /// What is stored, also before there is an application.
    static QSettings Store() { return QSettings("Orvanta", "Kelvo"); }

    // Qt wants its arguments to outlive the application.
    static inline int count = 1;
    static inline char program[] = "kelvo";
    static inline char *arguments[] = {program, nullptr};

    MyApp app{count, arguments};
    const FakeReport report{1000, 20, 30, 7};
};
