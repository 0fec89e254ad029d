// Every language: its texts against those of the source, and every window with them.

#include "dialogs/DialogAbout.h"
#include "dialogs/DialogStartUpInfo.h"
#include "dialogs/DialogWarning.h"
#include "tests/support/RunningApp.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGlyphRun>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextDocument>
#include <QTextLayout>
#include <QXmlStreamReader>

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void textsFitTheirSource_data();
    void textsFitTheirSource();
    void windowsShowAllOfThem_data();
    void windowsShowAllOfThem();
};

namespace {

// Whatever lies there is a language, so that one that the build forgets is missed here.
QStringList Languages()
{
    QStringList languages = QDir(QStringLiteral(TEXTS)).entryList({QStringLiteral("my_*.ts")});
    for (QString &language : languages) {
        language = language.mid(3).chopped(3);
    }
    return languages;
}

QStringList Matches(const QString &text, const QString &pattern)
{
    QStringList matches;
    auto match = QRegularExpression(pattern).globalMatch(text);
    while (match.hasNext()) {
        matches << match.next().captured();
    }
    matches.sort();
    return matches;
}

/// What a translation may not change: placeholders, tags, pictures, mnemonics, blanks at either end.
QString ChangedForm(const QString &source, const QString &text)
{
    for (const char *pattern : {R"(%\d)", R"(</?\w+)", R"(":[^"]+")", R"(&(?!\w+;)(?=\w))", R"(^\s|\s$)"}) {
        if (Matches(text, QString::fromLatin1(pattern)) != Matches(source, QString::fromLatin1(pattern))) {
            return QStringLiteral("%1 in \"%2\"").arg(QString::fromLatin1(pattern), text);
        }
    }
    return {};
}

bool HasGlyphs(const QString &text)
{
    QTextLayout layout(text);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const QList<QGlyphRun> runs = layout.glyphRuns();
    return !runs.isEmpty() && std::none_of(runs.begin(), runs.end(),
                                           [](const auto &run) { return run.glyphIndexes().contains(0); });
}

bool ShowsItsText(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    if (label && label->wordWrap()) { // the minimum is the longest word's width
        return label->width() >= label->minimumSizeHint().width() &&
               label->height() >= label->heightForWidth(label->width());
    }
    if (const auto *number = qobject_cast<const QDoubleSpinBox *>(widget)) {
        const auto *edit = number->findChild<QLineEdit *>();
        const QString longest = number->textFromValue(number->maximum());
        return edit->fontMetrics().horizontalAdvance(longest) <= edit->width();
    }
    if (qobject_cast<const QGroupBox *>(widget)) {
        return widget->width() >= widget->minimumSizeHint().width();
    }
    const bool bText =
        label || qobject_cast<const QAbstractButton *>(widget) || qobject_cast<const QComboBox *>(widget);
    return !bText || widget->size().expandedTo(widget->sizeHint()) == widget->size();
}

/// The first widget of a window that is too small for its text, or is not wholly inside; none: "".
QString CutWidget(const QWidget *window)
{
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QRect place(widget->mapTo(window, QPoint()), widget->size());
        if (widget->isVisibleTo(window) && !(ShowsItsText(widget) && window->rect().contains(place))) {
            return widget->objectName();
        }
    }
    return {};
}

} // namespace

void TestTranslations::init()
{
    FailOnWarnings();
    RunningApp::ForgetSettings();
    RunningApp::Store(QStringLiteral("MainWindow/Warning"), true);
}

void TestTranslations::textsFitTheirSource_data()
{
    QTest::addColumn<QString>("language");
    const QStringList languages = Languages();
    for (const QString &language : languages) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

void TestTranslations::textsFitTheirSource()
{
    QFETCH(QString, language);
    const RunningApp running; // for its fonts
    QVERIFY2(HasGlyphs(QLocale(language).toString(1234567890)), "no font has its figures");

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
            QCOMPARE(ChangedForm(source, text), QString());
            QTextDocument plain;
            plain.setHtml(text);
            QVERIFY2(HasGlyphs(plain.toPlainText().simplified()), qPrintable("no font has all of " + text));
            // One thing, one word, in the window as in the menu, where a blank follows.
            QCOMPARE(texts.value(source.trimmed(), text.trimmed()), text.trimmed());
            texts.insert(source.trimmed(), text.trimmed());
        }
    }
    QVERIFY2(!xml.hasError() && !texts.isEmpty(), qPrintable(xml.errorString()));
}

void TestTranslations::windowsShowAllOfThem_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<int>("nStyle");
    const QStringList languages = Languages();
    for (const QString &language : languages) {
        QTest::addRow("%s classic", qPrintable(language)) << language << 0;
        QTest::addRow("%s dark", qPrintable(language)) << language << 1;
    }
}

void TestTranslations::windowsShowAllOfThem()
{
    QFETCH(QString, language);
    QFETCH(int, nStyle);
    const QLocale locale(language);
    QLocale::setDefault(locale);
    RunningApp::Store(QStringLiteral("Application/Settings"),
                      QVariantMap{{QStringLiteral("WindowStyle"), nStyle}, {QStringLiteral("Remind"), true}});

    QTranslator qtTexts;
    QTranslator ourTexts;
    const bool bQtKnowsIt = qtTexts.load("qt_" + locale.name(), QStringLiteral(CATALOGUES));
    QVERIFY(ourTexts.load("my_" + locale.name(), QStringLiteral(CATALOGUES)));
    RunningApp running(RunningApp::Report(268433408, 268433408, 268433408, 268433408), {&qtTexts, &ourTexts});
    QCOMPARE(bQtKnowsIt, language != QLatin1String("hi"));
    QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel") != QLatin1String("Cancel"), bQtKnowsIt);
    QCOMPARE(QGuiApplication::layoutDirection(), locale.textDirection());

    auto *window = RunningApp::Window<MainDialog>();
    window->OnFinished(); // shows a result: against nothing, all that is free
    DialogWarning warning(window);
    DialogStartUpInfo notice(window);
    window->hide();
    window->UpdateStats();
    auto *reminder = RunningApp::Window<DialogReminder>();
    QVERIFY(reminder->isVisible());

    QWidget *windows[] = {window,  RunningApp::Window<DialogPreferences>(), &warning, reminder,
                          &notice, RunningApp::Window<DialogAbout>()};
    for (QWidget *shown : windows) {
        shown->show();
        QVERIFY(QTest::qWaitForWindowExposed(shown));
        const QByteArray name = shown->metaObject()->className();
        QVERIFY2(CutWidget(shown).isEmpty(), name + ": " + CutWidget(shown).toUtf8() + " is cut");
        // What a screen of 1280 pixels has room for at twice the size.
        QVERIFY2(shown->width() <= 640, name + " is " + QByteArray::number(shown->width()) + " pixels wide");
    }
}

QTEST_APPLESS_MAIN(TestTranslations)
#include "TestTranslations.moc"
