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

/// A whole application for one test: the real controller over a fake interpreter whose report the test sets.
class RunningApp
{
public:
    explicit RunningApp(const QByteArray &report = Report(1000, 20, 30, 7),
                        const QList<QTranslator *> &catalogues = {})
        : app(nArguments, arguments), interpreter(QStringLiteral("osascript"), Script(report))
    {
        for (QTranslator *catalogue : catalogues) {
            QCoreApplication::installTranslator(catalogue);
        }
        app.InitializeWidgets();
    }

    ~RunningApp()
    {
        QTest::qWait(100);      // a helper that has answered may still be ending
        delete Window<QMenu>(); // the program never does: its only menu lives until the process ends
    }
    Q_DISABLE_COPY_MOVE(RunningApp)

    static QByteArray Report(int nPagesFree, int nInactive, int nActive, int nWired)
    {
        const char *format = "Pages free: %d. Pages active: %d. Pages inactive: %d. Pages wired down: %d.";
        return QString::asprintf(format, nPagesFree, nActive, nInactive, nWired).toLatin1();
    }
    static QByteArray Script(const QByteArray &report)
    {
        return "cat >/dev/null\nprintf '%s' '" + report + "'";
    }

    /// Sets the report and takes a sample.
    void Sample(const QByteArray &report)
    {
        interpreter.Write(Script(report));
        Window<MainDialog>()->UpdateStats();
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
    template <class T> static T *Window() { return Find<T>(); }

    /// Forgets everything stored; before the next application is made.
    static void ForgetSettings()
    {
        QFile::remove(QSettings(QStringLiteral("Orvanta"), QStringLiteral("Kelvo")).fileName());
    }
    static void Store(const QString &key, const QVariant &value)
    {
        QSettings(QStringLiteral("Orvanta"), QStringLiteral("Kelvo")).setValue(key, value);
    }
    static QVariant Stored(const QString &key)
    {
        return QSettings(QStringLiteral("Orvanta"), QStringLiteral("Kelvo")).value(key);
    }

private:
    // Qt wants its arguments to outlive the application.
    static inline int nArguments = 1;
    static inline char name[] = "kelvo";
    static inline char *arguments[] = {name, nullptr};

public:
    MyApp app;
    BundledFake interpreter;
};
