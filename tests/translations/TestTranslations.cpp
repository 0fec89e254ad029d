// Every language: its texts against those of the source.

#include "tests/support/FailOnWarnings.h"

#include <QDir>
#include <QXmlStreamReader>

namespace {

/// Of all catalogues in the source.
QStringList Languages()
{
    QStringList languages = QDir(TEXTS).entryList({"my_*.ts"});
    for (QString &language : languages) {
        language = language.mid(3).chopped(3);
    }
    return languages;
}

/// What a translation may not change: placeholders, tags, pictures, mnemonics, blanks at either end.
/// Nor may a blank follow a full-width colon.
QStringList Form(const QString &text)
{
    static const QRegularExpression pattern("%\\d|</?\\w+|\":[^\"]+\"|&(?!\\w+;)(?=\\w)|\uff1a\\s|^\\s|\\s$");
    QStringList form;
    for (auto match = pattern.globalMatch(text); match.hasNext();) {
        form << match.next().captured();
    }
    form.sort();
    return form;
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
                    if (text.endsWith(u'\uff1a') && source.endsWith(' ')) {
                        source.chop(1); // a full-width colon at the end has the blank within
                    }
                    QVERIFY2(Form(text) == Form(source), qPrintable(language + ": " + text));
                    // One thing, one word, in the window as in the menu, where a blank follows.
                    QCOMPARE(texts.value(source.trimmed(), text.trimmed()), text.trimmed());
                    texts.insert(source.trimmed(), text.trimmed());
                }
            }
            QVERIFY2(!xml.hasError() && !texts.isEmpty(), qPrintable(xml.errorString()));
        }
    }
};

QTEST_GUILESS_MAIN(TestTranslations)
#include "TestTranslations.moc"
