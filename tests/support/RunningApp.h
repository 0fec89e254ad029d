#pragma once

#include "app/MyApp.h"
#include "dialogs/DialogPreferences.h"
#include "dialogs/DialogReminder.h"
#include "mainwindow/MainDialog.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"

#include <QMenu>
#include <QSettings>
#include <QTranslator>

/// A whole application for one test: the real controller over a vm_stat whose report the test sets.
class RunningApp
{
public:
    explicit RunningApp(const QByteArray &report = Report(1000, 20, 30, 7),
                        const QList<QTranslator *> &catalogues = {})
        : app(count, arguments), vmStat(QStringLiteral("vm_stat"), report)
    {
        BundledFake::InPath();
        for (QTranslator *catalogue : catalogues) {
            QCoreApplication::installTranslator(catalogue);
        }
        app.InitializeWidgets();
    }
    ~RunningApp() { delete Find<QMenu>(); } // the program never does: it lives until the process ends
    Q_DISABLE_COPY_MOVE(RunningApp)

    /// The script of a vm_stat that counts these pages.
    static QByteArray Report(int free, int inactive, int active, int wired)
    {
        const char *format =
            "echo Pages free: %d. Pages active: %d. Pages inactive: %d. Pages wired down: %d.";
        return QString::asprintf(format, free, active, inactive, wired).toLatin1();
    }

    /// Sets the report and takes a sample.
    void Sample(const QByteArray &report) const
    {
        vmStat.Write(report);
        Find<MainDialog>()->UpdateStats();
    }

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
    static QSettings Store() { return QSettings(QStringLiteral("Orvanta"), QStringLiteral("Kelvo")); }

    // Qt wants its arguments to outlive the application.
    static inline int count = 1;
    static inline char name[] = "kelvo";
    static inline char *arguments[] = {name, nullptr};

    MyApp app;
    const BundledFake vmStat;
};
