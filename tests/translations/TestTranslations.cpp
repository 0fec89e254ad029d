// Every language: its texts against those of the source, and every window with them.

#include "dialogs/DialogAbout.h"
#include "dialogs/DialogStartUpInfo.h"
#include "dialogs/DialogWarning.h"
#include "tests/support/RunningApp.h"

#include <QLabel>
#include <QXmlStreamReader>

namespace {

// Whatever lies there is a language, so that one that the build forgets is missed here.
QStringList Languages()
{
    QStringList languages = QDir(TEXTS).entryList({"my_*.ts"});
    for (QString &language : languages) {
        language = language.mid(3).chopped(3);
    }
    return languages;
}

/// What a translation may not change: placeholders, tags, pictures, mnemonics, blanks at either end.
QStringList Form(const QString &text)
{
    static const QRegularExpression pattern("%\\d|</?\\w+|\":[^\"]+\"|&(?!\\w+;)(?=\\w)|^\\s|\\s$");
    QStringList form;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        form << match.next().captured();
    }
    form.sort();
    return form;
}

/// No text of a window is cut, and no widget sticks out of it.
void VerifyNothingIsCut(const QWidget *window)
{
    for (const QWidget *widget :
         window->findChildren<QWidget *>(QRegularExpression("^(label|push|check|radio|combo)"))) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const bool bWraps = label && label->wordWrap();
        const QSize needed =
            bWraps ? QSize(label->minimumSizeHint().width(), label->heightForWidth(label->width()))
                   : widget->sizeHint();
        const QRect area(widget->mapTo(window, QPoint()), widget->size());
        QVERIFY2(!widget->isVisibleTo(window) ||
                     (needed.width() <= area.width() && needed.height() <= area.height() &&
                      window->rect().contains(area)),
                 qPrintable(widget->objectName()));
    }
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void init() { FailOnWarnings(); }

    void textsFitTheirSource()
    {
        for (const QString &language : Languages()) {
            QFile file(QStringLiteral(TEXTS "/my_%1.ts").arg(language));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QXmlStreamReader xml(&file);
            QHash<QString, QString> texts;
            QString source;
            while (!xml.atEnd()) {
                xml.readNext();
                if (xml.isStartElement() && xml.name() == QLatin1String("source")) {
                    source = xml.readElementText();
                } else if (xml.isStartElement() && xml.name() == QLatin1String("translation")) {
                    const QString text = xml.readElementText();
                    QVERIFY2(Form(text) == Form(source), qPrintable(language + ": " + text));
                    // One thing, one word, in the window as in the menu, where a blank follows.
                    QCOMPARE(texts.value(source.trimmed(), text.trimmed()), text.trimmed());
                    texts.insert(source.trimmed(), text.trimmed());
                }
            }
            QVERIFY2(!xml.hasError() && !texts.isEmpty(), qPrintable(xml.errorString()));
        }
    }

    void windowsShowAllOfThem_data()
    {
        QTest::addColumn<QString>("language");
        for (const QString &language : Languages()) {
            QTest::newRow(qPrintable(language)) << language;
        }
    }
    void windowsShowAllOfThem()
    {
        QFETCH(QString, language);
        const QString locale = QLocale(language).name();
        QLocale::setDefault(QLocale(language));
        RunningApp::Store().setValue("Application/Settings", QVariantMap{{"Remind", true}});
        QTranslator qtTexts;
        QTranslator ourTexts;
        QCOMPARE(qtTexts.load("qt_" + locale, CATALOGUES), language != "hi"); // Qt does not know that one
        QVERIFY(ourTexts.load("my_" + locale, CATALOGUES));
        RunningApp running({&qtTexts, &ourTexts});
        running.report.Set(268433408, 268433408, 268433408, 268433408);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel") != "Cancel", language != "hi");

        auto *window = RunningApp::Find<MainDialog>();
        window->OnFinished(); // shows a result: against nothing, all that is free
        DialogWarning warning(window);
        DialogStartUpInfo notice(window);
        window->hide();
        window->UpdateStats(); // reminds
        auto *reminder = RunningApp::Find<DialogReminder>();
        QVERIFY(reminder->isVisible());
        QWidget *windows[] = {window,  RunningApp::Find<DialogPreferences>(), &warning, reminder,
                              &notice, RunningApp::Find<DialogAbout>()};
        for (const int style : {0, 1}) {
            running.app.SetStyle(style);
            for (QWidget *shown : windows) {
                shown->show();
                QVERIFY(QTest::qWaitForWindowExposed(shown));
                VerifyNothingIsCut(shown);
                // What a screen of 1280 pixels has room for at twice the size.
                QVERIFY2(shown->width() <= 640, shown->metaObject()->className());
                shown->hide();
            }
        }
    }
};

QTEST_APPLESS_MAIN(TestTranslations)
#include "TestTranslations.moc"
