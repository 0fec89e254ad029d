#include "app/MyApp.h"
#include "platform/BundledResources.h"
#include "platform/QuitOnSignal.h"

#include <QLocale>
#include <QTranslator>

/// Discards every diagnostic of Qt and of our own, in every build: a program that sits in the panel for
/// months must not fill a session's log.
static void myMessageOutput(QtMsgType, const QMessageLogContext &, const QString &) {}

int main(int argc, char *argv[])
{
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

    // A catalogue that is not there leaves the texts untranslated.
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
    // A sole "-q" asks for no copy at all; only where one runs already is it a message like any other, and
    // shows its window.
    if (message == QLatin1String("-q")) {
        return 0;
    }
    new QuitOnSignal(&app); // its child, so that the last saving is covered too
    app.InitializeWidgets();
    return QApplication::exec();
}
