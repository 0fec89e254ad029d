// Scripts: what is made of an interpreter's answer; and without an interpreter, what the login item's scripts
// do to the autostart directory.

#include "platform/Global.h"
#include "tests/support/BundledFake.h"
#include "tests/support/FailOnWarnings.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>
#include <sys/resource.h>

class TestRunner : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        QCoreApplication::setApplicationName("Kelvo");
        root = std::make_unique<QTemporaryDir>();
        QDir::setCurrent(root->path());
        qputenv("XDG_CONFIG_HOME", At("config").toLocal8Bit());
        QDir().mkpath("config/autostart");
    }

    void interpreter()
    {
        const BundledFake program("osascript");
        const std::pair<const char *, QString> cases[] = {
            {"echo $# $* $(od -An -tx1)", "2 -l AppleScript c3 a9 0a e2 82 ac 22"},
            {"printf '  two words \\n\\n'", "two words"},
            {"printf '\\351\\0b'", QChar(0xe9)},
            {"echo a >&2; exit 1", {}}};
        for (const auto &[body, answer] : cases) {
            program.Write(body);
            QCOMPARE(Global::RunInterpreter(program.path, "\u00e9\n\u20ac\"", this, true), answer);
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCOMPARE(findChildren<QProcess *>().size(), 0);
        // Not waited for, it needs its process object to the end.
        program.Write("cat >/dev/null; echo done");
        QCOMPARE(Global::RunInterpreter(program.path, "x", this, false), QString());
        auto *process = findChild<QProcess *>();
        QVERIFY(process && process->waitForFinished());
        QCOMPARE(process->readAll(), "done\n");
    }

    void makeAndDelete()
    {
        Make(Kelvo("bin"));
        QVERIFY(Read(item).contains("\nTryExec=" + At("bin/kelvo").toUtf8() + '\n'));
        Write("config/autostart/other.desktop", "[Desktop Entry]\nName=Other\n[x]\nName=Kelvo\n");
        Write("config/autostart/text", "[Desktop Entry]\nName=Kelvo\n");
        Global::RunAppleScript("delete login item \"Kelvo\"", this, true); // no script of ours
        Global::RunAppleScript(Global::RemoveLoginItemScript("Kelvo"), this, false);
        QCOMPARE(Files().size(), 3); // not waited for
        QCoreApplication::processEvents();
        QCOMPARE(Files(), QStringList({"other.desktop", "text"}));
    }

    /// Made at every start, so what is there is kept wherever it does its work or the user said no.
    void makeAgain()
    {
        const QString bin = Kelvo("bin");
        const QByteArray named = "[Desktop Entry]\nName=Kelvo\n";
        const QByteArray ours = "Exec=\"" + bin.toUtf8() + "/kelvo\"\n";
        const std::pair<QByteArray, bool> entries[] = {
            {named + ours + "X-GNOME-Autostart-Delay=5\n", true}, // with the user's own lines
            {named + "Exec=\"/old/kelvo\"\n", false},
            {named + "Exec=/old\r\nHidden = true\r\n", true},
            {named + "X-GNOME-Autostart-enabled=false\n", true},
            {named + "Hidden=false\nX-GNOME-Autostart-enabled=true\n", false},
            {named + "[Other]\nHidden=true\n", false},
            {"[Desktop Entry]\nName=My Kelvo\nHidden=true\n", true},
            {"[Desktop Ent", false}};
        for (const auto &[entry, bKept] : entries) {
            Write(item, entry);
            Make(bin);
            QCOMPARE(Read(item) == entry, bKept);
            QCOMPARE(Files(), QStringList("Kelvo.desktop"));
        }
        // Under another file name it is the same item, and a link stays a link.
        QFile::remove(item);
        Write("k", named);
        QVERIFY(QFile::link(At("k"), "config/autostart/a.desktop"));
        Make(bin);
        QCOMPARE(Files(), QStringList("a.desktop"));
        QVERIFY(Read("k").contains(ours) && QFileInfo("config/autostart/a.desktop").isSymLink());
    }

    void awkwardDirectories()
    {
        for (const QString directory :
             {"plain", "per%cent %f", "dollar$HOME `id` ' single", "\303\244\316\251\360\237\230\200",
              "semi;colon & | > < ~ # * ? ( )", "a\"b c d\", kind:application}"}) {
            Make(Kelvo(directory));
            // `cat` waits for the program that a desktop starts for the entry, the launcher does not.
            QProcess desktop;
            desktop.start("/bin/sh", {"-c", "gio launch \"$0\" | cat", item});
            QVERIFY(desktop.waitForFinished());
            QCOMPARE(QString(desktop.readAll()), At(directory + "/kelvo"));
        }
    }

    void refusedDirectories()
    {
        for (const QString directory : {"a\rb", "a\nb", "a\\b", "a\x7fz", "a=b", "relative"}) {
            const QString made = Kelvo(directory);
            Make(directory == "relative" ? directory : made);
        }
        Make("/proc"); // not there
        QCOMPARE(Files(), QStringList());
    }

    /// Nothing is written where no session looks.
    void noConfigDirectory()
    {
        const QString bin = Kelvo("bin");
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", At("home").toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", "relative");
        Make(bin);
        qunsetenv("HOME");
        Make(bin);
        qunsetenv("XDG_CONFIG_HOME");
        Make(bin);
        qputenv("HOME", home);
        QVERIFY(QFile::exists("home/.config/autostart/Kelvo.desktop"));
        QVERIFY(!QFile::exists("relative") && !QFile::exists("/.config/autostart/Kelvo.desktop"));
    }

    /// Of what cannot be written nothing is: the old file stays, and it alone.
    void fullDisk()
    {
        const QByteArray old = "[Desktop Entry]\nName=Kelvo\nExec=\"/old/kelvo\"\n";
        Write(item, old);
        const QString bin = Kelvo("bin");
        rlimit usual{};
        getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit little = {60, usual.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &little);
        Make(bin);
        setrlimit(RLIMIT_FSIZE, &usual);
        QCOMPARE(Files(), QStringList("Kelvo.desktop"));
        QCOMPARE(Read(item), old);
    }

private:
    QString At(const QString &path) const { return root->filePath(path); }
    static void Write(const QString &path, const QByteArray &content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    static QByteArray Read(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QStringList Files()
    {
        return QDir("config/autostart").entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }
    /// A program that says its own path, in a directory made for it: the directory.
    QString Kelvo(const QString &directory) const
    {
        QDir().mkpath(directory);
        Write(directory + "/kelvo", "#!/bin/sh\nprintf '%s' \"$0\"\n");
        return At(directory);
    }
    void Make(const QString &path) { Global::RunAppleScript(Global::AddLoginItemScript(path), this, true); }

    const QString item = "config/autostart/Kelvo.desktop";
    std::unique_ptr<QTemporaryDir> root;
};

QTEST_GUILESS_MAIN(TestRunner)
#include "TestRunner.moc"
