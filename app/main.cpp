#include "app/MyApp.h"
#include "platform/FocusLeftovers.h"
#include "platform/Global.h"
#include "platform/QuitOnSignal.h"
#include "platform/SteadyHeap.h"

#include <QLocale>
#include <QTranslator>

/// Deliberately discards every diagnostic, in every build: a program that runs in the panel for months must
/// not fill the session's log.
static void myMessageOutput(QtMsgType, const QMessageLogContext &, const QString &) {}

int main(int argc, char *argv[])
{
    KeepHeapSteady();
    qInstallMessageHandler(myMessageOutput);

    QString message = QStringLiteral("wake up!");
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        arguments << QString::fromLocal8Bit(argv[i]);
    }
    if (!arguments.isEmpty()) {
        message = arguments.join(QLatin1Char(' '));
    }

    MyApp app(argc, argv);

    // Without a catalogue the texts stay untranslated.
    const QString directory = Global::BundledResourcesDirectory();
    const QString locale = QLocale::system().name();
    QTranslator qtTranslator;
    (void)qtTranslator.load(QStringLiteral("qt_") + locale, directory);
    QCoreApplication::installTranslator(&qtTranslator);
    QTranslator myTranslator;
    (void)myTranslator.load(QStringLiteral("my_") + locale, directory);
    QCoreApplication::installTranslator(&myTranslator);

    if (app.isRunning()) {
        return app.sendMessage(message, 5000) ? 0 : 1;
    }
    // Deliberate: a sole "-q" starts nothing. To a running copy it is a message like any other, and shows its
    // window.
    if (message == QLatin1String("-q")) {
        return 0;
    }
    new FocusLeftovers(&app);
    new QuitOnSignal(&app); // a child, to be there while the destructor saves
    app.InitializeWidgets();
    return QApplication::exec();
}
