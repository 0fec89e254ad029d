// The scripts that the application sends, answered without an interpreter, seen in the autostart directory.

#include "platform/Global.h"
#include "tests/support/FailOnWarnings.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>

class TestLoginItem : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        FailOnWarnings();
        QCoreApplication::setApplicationName("Kelvo");
        root = std::make_unique<QTemporaryDir>();
        qputenv("XDG_CONFIG_HOME", At("config").toLocal8Bit());
    }

    void makeAndDelete()
    {
        Enable(MakeKelvo("bin"));
        QVERIFY(Read(item).contains("\nTryExec=" + At("bin/kelvo").toUtf8() + '\n'));
        Write("config/autostart/other.desktop", "[Desktop Entry]\nName=Other\n[x]\nName=Kelvo\n");
        Write("config/autostart/text", "[Desktop Entry]\nName=Kelvo\n");
        QFile::link("/nonexistent", At("config/autostart/a.desktop"));
        Global::RunAppleScript("delete login item \"Kelvo\"", this, true); // no script of ours
        QVERIFY(Files().contains("Kelvo.desktop"));
        Global::RunAppleScript(Global::RemoveLoginItemScript("Kelvo"), this, false);
        QVERIFY(Files().contains("Kelvo.desktop")); // not waited for
        QCoreApplication::processEvents();
        QCOMPARE(Files(), QStringList({"a.desktop", "other.desktop", "text"}));
    }

    void makeAgain_data()
    {
        QTest::addColumn<QByteArray>("entry"); // %1: the program
        QTest::addColumn<bool>("bKept");
        const QByteArray named = "[Desktop Entry]\nName=Kelvo\n";
        const auto row = [](const char *name, const QByteArray &entry, bool bKept) {
            QTest::newRow(name) << entry << bKept;
        };
        row("with the user's own lines", named + "Exec=\"%1\"\nX-GNOME-Autostart-Delay=5\n", true);
        row("another program", named + "Exec=\"/old/kelvo\"\n", false);
        row("hidden, CRLF", named + "Exec=/old\r\nHidden = true\r\n", true);
        row("switched off by the desktop", named + "X-GNOME-Autostart-enabled=false\n", true);
        row("not hidden", named + "Hidden=false\nX-GNOME-Autostart-enabled=true\n", false);
        row("hidden elsewhere", named + "[Other]\nHidden=true\n", false);
        row("hidden, renamed", "[Desktop Entry]\nName=My Kelvo\nHidden=true\n", true);
        row("cut short", "[Desktop Ent", false);
    }
    /// Made at every start, so what is there is kept wherever it does its work or the user said no.
    void makeAgain()
    {
        QFETCH(QByteArray, entry);
        QFETCH(const bool, bKept);
        const QString bin = MakeKelvo("bin");
        entry.replace("%1", bin.toUtf8() + "/kelvo");
        Write(item, entry);
        Enable(bin);
        QCOMPARE(Read(item) == entry, bKept);
        QCOMPARE(Files(), QStringList("Kelvo.desktop"));

        // Under another file name it is the same item: it must not be started twice. One that is kept
        // elsewhere and linked here stays linked.
        QFile::remove(At(item));
        Write("dotfiles/k", entry);
        QVERIFY(QFile::link(At("dotfiles/k"), At("config/autostart/a.desktop")));
        Enable(bin);
        const bool bFound = entry.contains("Name=Kelvo");
        QCOMPARE(Read("dotfiles/k") == entry, bKept || !bFound);
        QVERIFY(QFileInfo(At("config/autostart/a.desktop")).isSymLink());
        QCOMPARE(Files().size(), bFound ? 1 : 2);
    }

    void awkwardDirectories()
    {
        for (const QString directory :
             {"plain", "per%cent %f", "dollar$HOME `id` ' single", "\303\244\316\251\360\237\230\200",
              "semi;colon & | > < ~ # * ? ( )", "a\"b c d\", kind:application}"}) {
            Enable(MakeKelvo(directory));
            // `cat` waits for the program that a desktop starts for the entry, the launcher does not.
            QProcess desktop;
            desktop.start("/bin/sh", {"-c", "gio launch \"$1\" | cat", "sh", At(item)});
            QVERIFY(desktop.waitForFinished());
            QCOMPARE(QString(desktop.readAll()), At(directory + "/kelvo"));
        }
    }

    void refusedDirectories()
    {
        for (const QString directory : {"a\rb", "a\nb", "a\\b", "a\x7fz", "a=b"}) {
            Enable(MakeKelvo(directory));
        }
        QDir::setCurrent(At("a=b/.."));
        MakeKelvo("relative");
        Enable("relative");
        Enable("/proc"); // not there
        QVERIFY(!QFile::exists(At("config")));
    }

    /// Nothing is written where no session looks.
    void noConfigDirectory()
    {
        const QString bin = MakeKelvo("bin");
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", At("home").toLocal8Bit());
        qputenv("XDG_CONFIG_HOME", "relative");
        QDir::setCurrent(root->path());
        Enable(bin);
        QVERIFY(QFile::exists(At("home/.config/autostart/Kelvo.desktop")));
        qunsetenv("HOME");
        Enable(bin);
        qunsetenv("XDG_CONFIG_HOME");
        Enable(bin);
        qputenv("HOME", home);
        QVERIFY(!QFile::exists(At("relative")) && !QFile::exists("/.config/autostart/Kelvo.desktop"));
    }

    /// Of what cannot be written nothing is: the old file stays, and it alone.
    void fullDisk()
    {
        const QString bin = MakeKelvo("bin");
        const QByteArray old = "[Desktop Entry]\nName=Kelvo\nExec=\"/old/kelvo\"\n";
        Write(item, old);
        rlimit usual{};
        getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit little = {60, usual.rlim_max};
        std::signal(SIGXFSZ, SIG_IGN);
        setrlimit(RLIMIT_FSIZE, &little);
        Enable(bin);
        setrlimit(RLIMIT_FSIZE, &usual);
        QCOMPARE(Files(), QStringList("Kelvo.desktop"));
        QCOMPARE(Read(item), old);
    }

private:
    QString At(const QString &path) const { return root->filePath(path); }
    void Write(const QString &path, const QByteArray &content) const
    {
        QDir().mkpath(QFileInfo(At(path)).path());
        QFile file(At(path));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QByteArray Read(const QString &path) const
    {
        QFile file(At(path));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList Files() const
    {
        return QDir(At("config/autostart")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }
    /// An executable that says its own path, in a directory made for it: the directory.
    QString MakeKelvo(const QString &directory) const
    {
        Write(directory + "/kelvo", "#!/bin/sh\nprintf '%s' \"$0\"\n");
        return At(directory);
    }
    void Enable(const QString &path) { Global::RunAppleScript(Global::AddLoginItemScript(path), this, true); }

    const QString item = "config/autostart/Kelvo.desktop";
    std::unique_ptr<QTemporaryDir> root;
};

QTEST_GUILESS_MAIN(TestLoginItem)
#include "TestLoginItem.moc"
