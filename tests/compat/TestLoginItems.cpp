#include "platform/Global.h"
#include "tests/compat/RunProgram.h"
#include "tests/memfree/TemporaryTree.h"

#include <QTest>

#include <csignal>
#include <sys/resource.h>

/// The scripts that the application sends, run by the interpreter, seen in the autostart directory.
class TestLoginItems : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void MakeAndDelete();
    void MakeAgain_data();
    void MakeAgain();
    void Path();
    void RefusedPath();
    void Answer();
    void SyntaxError();
    void Failures();

private:
    static QString AutostartFile(const QString &name = "Kelvo.desktop") { return "config/autostart/" + name; }
    /// An executable that says its own path, in a directory made for it; returns the directory.
    QString MakeApplication(const QString &directory = "bin", const QString &executable = "kelvo");
    QString At(const QString &path) const { return QString::fromStdString(root->Path(path)); }
    QStringList AutostartFiles() const
    {
        return QDir(At("config/autostart")).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }
    Outcome Run(const QByteArray &script)
    {
        around.input = script;
        return RunProgram(OSASCRIPT, {"-l", "AppleScript"}, around);
    }
    Outcome RunTold(const QByteArray &statements)
    {
        return Run("tell application \"System Events\"\n" + statements + "\nend tell");
    }
    Outcome Enable(const QString &path) { return Run(Global::AddLoginItemScript(path).toUtf8()); }
    Outcome Disable() { return Run(Global::RemoveLoginItemScript("Kelvo").toUtf8()); }

    std::unique_ptr<TemporaryTree> root;
    Surroundings around;
    const Outcome made = {0, "login item Kelvo\n", ""};
    const Outcome silent = {0, "", ""};
};

void TestLoginItems::init()
{
    root = std::make_unique<TemporaryTree>();
    around = {};
    around.environment.insert("XDG_CONFIG_HOME", At("config"));
}

QString TestLoginItems::MakeApplication(const QString &directory, const QString &executable)
{
    const QString file = directory + '/' + executable;
    root->Write(file, "#!/bin/sh\nprintf '%s' \"$0\"\n");
    QFile::setPermissions(At(file), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return At(directory);
}

void TestLoginItems::MakeAndDelete()
{
    const QString bin = MakeApplication();
    QCOMPARE(Enable(bin), made);
    QVERIFY(root->Read(AutostartFile()).startsWith("[Desktop Entry]\nType=Application\nName=Kelvo\n"));
    QVERIFY(root->Read(AutostartFile()).contains("\nTryExec=" + bin.toUtf8() + "/kelvo\n"));
    root->Write(AutostartFile("other.desktop"), "[Desktop Entry]\nName=Other\nExec=other\n");
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(Disable(), silent);
        QCOMPARE(AutostartFiles(), QStringList("other.desktop"));
    }
}

void TestLoginItems::MakeAgain_data()
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
void TestLoginItems::MakeAgain()
{
    QFETCH(QByteArray, entry);
    QFETCH(const bool, bKept);
    const QString bin = MakeApplication();
    entry.replace("%1", bin.toUtf8() + "/kelvo");
    root->Write(AutostartFile(), entry);
    QCOMPARE(Enable(bin), made);
    QCOMPARE(root->Read(AutostartFile()) == entry, bKept);
    QCOMPARE(AutostartFiles(), QStringList("Kelvo.desktop"));

    // Under another file name it is the same item: it must not be started twice. One that is kept elsewhere
    // and linked here stays linked.
    QFile::remove(At(AutostartFile()));
    root->Write("dotfiles/k", entry);
    QVERIFY(QFile::link(At("dotfiles/k"), At(AutostartFile("a.desktop"))));
    QCOMPARE(Enable(bin), made);
    const bool bFound = entry.contains("Name=Kelvo");
    QCOMPARE(root->Read("dotfiles/k") == entry, bKept || !bFound);
    QVERIFY(QFileInfo(At(AutostartFile("a.desktop"))).isSymLink());
    QCOMPARE(AutostartFiles().size(), bFound ? 1 : 2);
    QCOMPARE(Disable(), silent);
    QVERIFY(!RunTold("get the name of every login item").output.trimmed().split(',').contains("Kelvo"));
}

void TestLoginItems::Path()
{
    // `cat` waits for the program that a desktop starts for the entry, the launcher does not.
    const QString launch = "gio launch \"$1\" | cat";
    for (const QString directory :
         {"plain", "per%cent %f", "dollar$HOME `id` ' single", "\303\244\316\251\360\237\230\200",
          "semi;colon & | > < ~ # * ? ( )", "a\"b\\c d"}) {
        const QString bin = MakeApplication(directory);
        QCOMPARE(Enable(bin), made);
        QCOMPARE(RunProgram("/bin/sh", {"-c", launch, "sh", At(AutostartFile())}).output,
                 bin.toUtf8() + "/kelvo");
    }
    const QString other = MakeApplication("plain", "other") + "/other";
    QCOMPARE(Enable(other), (Outcome{0, "login item other\n", ""}));
    QVERIFY(root->Read(AutostartFile("other.desktop")).contains("\nExec=\"" + other.toUtf8() + "\"\n"));
}

void TestLoginItems::RefusedPath()
{
    for (const QByteArray path : {"/proc", "bin", "/a\rb", "/a\\nb", "/a\x7fz", "/a=b", "/a\xffz"}) {
        const Outcome outcome =
            RunTold("make login item at end with properties {path:\"" + path + "\", kind:application}");
        const QByteArray reason =
            path.startsWith("/a") ? "an equals sign, a control character or broken UTF-8" : '"' + path + '"';
        QVERIFY2(outcome.status == 1 && outcome.errors.contains(reason), outcome.errors.constData());
        QVERIFY(!QFile::exists(At("config")));
    }
}

void TestLoginItems::Answer()
{
    root->Write(AutostartFile("a.desktop"),
                "# a comment\n[Desktop Entry]\nName[de]=Zwei\nName=Two\\sWords\nName=Second\n");
    root->Write(AutostartFile("b.desktop"), "[Desktop Entry]\nHidden=true\nName=One\n");
    root->Write(AutostartFile("c.desktop"), "[Other]\nName=Three\n[Desktop Entry]\nExec=c\n");
    root->Write(AutostartFile("d.txt"), "[Desktop Entry]\nName=Three\n");
    root->Write(AutostartFile("e.desktop/f.desktop"), "[Desktop Entry]\nName=Three\n");
    QFile::link("/nonexistent", At(AutostartFile("f.desktop")));
    const QStringList files = AutostartFiles();
    const QByteArray names = "get the name of every login item";
    const Outcome both = {0, "Two Words, One\n", ""};
    QCOMPARE(RunTold(names), both);
    QCOMPARE(RunTold("if login item \"One\" exists then\n" + names + "\nend if"), both);
    QCOMPARE(RunTold("if login item \"Two\" exists then\n" + names + "\nend if"), silent);
    QCOMPARE(RunTold("delete login item \"Three\""), silent);
    QCOMPARE(AutostartFiles(), files);
}

/// What is not understood to the end is not begun.
void TestLoginItems::SyntaxError()
{
    root->Write(AutostartFile("b.desktop"), "[Desktop Entry]\nName=One\n");
    for (const QByteArray statement :
         {"make", "make login item at end with properties {kind:application}",
          "make login item at end with properties {path:\"/\", path:\"/\"}",
          "make login item at end with properties {path:5}", "delete every login item",
          "get the name of every folder", "if login item \"One\" exists then",
          "if login item \"One\" exists then delete login item \"One\"\nend if", "quit"}) {
        const Outcome outcome = RunTold("delete login item \"One\"\n" + statement);
        QVERIFY2(outcome.errors.contains(": syntax error: Expected "), outcome.errors.constData());
        QCOMPARE(AutostartFiles(), QStringList("b.desktop"));
    }
}

/// Of what cannot be written nothing is: the old file stays, and it alone.
void TestLoginItems::Failures()
{
    const QString bin = MakeApplication();
    const QByteArray old = "[Desktop Entry]\nName=Kelvo\nExec=\"/old/kelvo\"\n";
    root->Write(AutostartFile(), old);
    around.inChild = [] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {60, 60};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    QVERIFY(
        Enable(bin).errors.contains("Cannot write " + At(AutostartFile()).toUtf8() + ": File too large."));
    QCOMPARE(AutostartFiles(), QStringList("Kelvo.desktop"));
    QCOMPARE(root->Read(AutostartFile()), old);

    around.environment.insert("XDG_CONFIG_HOME", bin + "/kelvo");
    const QByteArray error = "Cannot read " + bin.toUtf8() + "/kelvo/autostart: Not a directory. (-10000)\n";
    for (const Outcome &outcome : {Enable(bin), Disable()}) {
        QVERIFY2(outcome.errors.endsWith(error), outcome.errors.constData());
    }
}

QTEST_GUILESS_MAIN(TestLoginItems)
#include "TestLoginItems.moc"
