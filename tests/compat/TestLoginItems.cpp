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
    void Directory();
    void BadDirectory();
    void SymbolicLink();
    void FullDisk();

private:
    static QString AutostartFile(const QString &name = "Kelvo.desktop") { return "config/autostart/" + name; }
    /// An executable that says its own path, in a directory made for it; returns the directory.
    QString MakeApplication(const QString &directory, const QString &executable = "kelvo");
    QString At(const QString &path) const { return QString::fromStdString(root->Path(path)); }
    void Write(const QString &path, const QByteArray &content) { root->Write(path, content); }
    QByteArray Read(const QString &path) const { return root->Read(path); }
    QStringList AutostartFiles() const
    {
        return QDir(At("config/autostart"))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    Outcome Run(const QByteArray &script)
    {
        around.input = script;
        return RunProgram(OSASCRIPT, {"-l", "AppleScript"}, around);
    }
    Outcome Enable(const QString &path) { return Run(Global::AddLoginItemScript(path).toUtf8()); }
    Outcome Disable() { return Run(Global::RemoveLoginItemScript("Kelvo").toUtf8()); }

    std::unique_ptr<TemporaryTree> root;
    Surroundings around;
};

namespace {

const Outcome made = {0, "login item Kelvo\n", ""};
const Outcome silent = {0, "", ""};

/// What the program that a desktop starts for the entry writes. `cat` waits for it, the launcher does not.
QByteArray Started(const QString &entry)
{
    return RunProgram("/bin/sh", {"-c", "gio launch \"$1\" | cat", "sh", entry}).output;
}

QByteArray Told(const QByteArray &statements)
{
    return "tell application \"System Events\"\n" + statements + "\nend tell";
}

} // namespace

void TestLoginItems::init()
{
    root = std::make_unique<TemporaryTree>();
    around = {};
    around.environment.insert("XDG_CONFIG_HOME", At("config"));
}

QString TestLoginItems::MakeApplication(const QString &directory, const QString &executable)
{
    QString path = At(directory);
    Write(directory + '/' + executable, "#!/bin/sh\nprintf '%s' \"$0\"\n");
    QFile::setPermissions(path + '/' + executable, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void TestLoginItems::MakeAndDelete()
{
    const QString bin = MakeApplication("opt/kelvo/bin");
    QCOMPARE(Enable(bin), made);
    const QByteArray program = bin.toUtf8() + "/kelvo";
    for (const QByteArray &line :
         {QByteArray("Type=Application"), QByteArray("Name=Kelvo"), "TryExec=" + program}) {
        QVERIFY2(Read(AutostartFile()).split('\n').contains(line), line.constData());
    }
    Write(AutostartFile("other.desktop"), "[Desktop Entry]\nName=Other\nExec=other\n");
    QCOMPARE(Disable(), silent);
    QCOMPARE(AutostartFiles(), QStringList("other.desktop"));
    QCOMPARE(Disable(), silent);
}

void TestLoginItems::MakeAgain_data()
{
    QTest::addColumn<QByteArray>("entry"); // %1: the program
    QTest::addColumn<bool>("bKept");
    const auto row = [](const char *name, const QByteArray &lines, bool bKept) {
        QTest::newRow(name) << "[Desktop Entry]\nName=Kelvo\n" + lines << bKept;
    };
    row("with the user's own lines", "Exec=\"%1\"\nX-GNOME-Autostart-Delay=5\n", true);
    row("another program", "Exec=\"/old/kelvo\"\n", false);
    row("hidden, CRLF", "Exec=/old\r\nHidden = true\r\n", true);
    row("switched off by the desktop", "X-GNOME-Autostart-enabled=false\n", true);
    row("not hidden", "Hidden=false\nX-GNOME-Autostart-enabled=true\n", false);
    row("hidden elsewhere", "[Other]\nHidden=true\n", false);
    QTest::newRow("hidden, renamed") << QByteArray("[Desktop Entry]\nName=My Kelvo\nHidden=true\n") << true;
    QTest::newRow("cut short") << QByteArray("[Desktop Ent") << false;
}

/// Made at every start, so what is there is kept wherever it does its work or the user said no.
void TestLoginItems::MakeAgain()
{
    QFETCH(QByteArray, entry);
    QFETCH(const bool, bKept);
    const QString bin = MakeApplication("bin");
    entry.replace("%1", bin.toUtf8() + "/kelvo");
    Write(AutostartFile(), entry);
    QCOMPARE(Enable(bin), made);
    QCOMPARE(Read(AutostartFile()) == entry, bKept);
    QCOMPARE(AutostartFiles(), QStringList("Kelvo.desktop"));

    // Under another file name it is the same item: it must not be started twice.
    QFile::remove(At(AutostartFile()));
    Write(AutostartFile("a.desktop"), entry);
    QCOMPARE(Enable(bin), made);
    QCOMPARE(AutostartFiles().size(), entry.contains("Name=Kelvo") ? 1 : 2);
    QCOMPARE(Disable(), silent);
    QVERIFY(!Run(Told("get the name of every login item")).output.trimmed().split(',').contains("Kelvo"));
}

void TestLoginItems::Path()
{
    for (const QString directory :
         {"plain", "per%cent %f", "dollar$HOME `id` ' single", "\303\244\316\251\360\237\230\200",
          "semi;colon & | > < ~ # * ? ( )", "a\"b\\c d"}) {
        const QString bin = MakeApplication(directory);
        QCOMPARE(Enable(bin), made);
        QCOMPARE(Started(At(AutostartFile())), bin.toUtf8() + "/kelvo");
    }
    const QString other = MakeApplication("plain", "other");
    QCOMPARE(Enable(other + "/other"), (Outcome{0, "login item other\n", ""}));
    QCOMPARE(Started(At(AutostartFile("other.desktop"))), other.toUtf8() + "/other");
}

void TestLoginItems::RefusedPath()
{
    QMap<QByteArray, QByteArray> errors = {
        {"/nonexistent", "No application was found at \"/nonexistent\". (-43)\n"},
        {"/proc", "No application was found at \"/proc\". (-43)\n"},
        {"bin", "Not an absolute path: \"bin\". (-43)\n"},
    };
    for (const char *path : {"/a\rb", "/a\\nb", "/a\x7fz", "/a=b", "/a\xffz"}) {
        errors[path] = "broken UTF-8 in it. (-10000)\n";
    }
    for (auto it = errors.begin(); it != errors.end(); ++it) {
        const Outcome outcome =
            Run(Told("make login item at end with properties {path:\"" + it.key() + "\", kind:application}"));
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.endsWith(it.value()), outcome.errors.constData());
        QVERIFY(!QFile::exists(At("config")));
    }
}

void TestLoginItems::Answer()
{
    Write(AutostartFile("a.desktop"),
          "# a comment\n[Desktop Entry]\nName[de]=Zwei\nName=Two\\sWords\nName=Second\n");
    Write(AutostartFile("b.desktop"), "[Desktop Entry]\nHidden=true\nName=One\n");
    Write(AutostartFile("c.desktop"), "[Other]\nName=Three\n[Desktop Entry]\nExec=c\n");
    Write(AutostartFile("d.txt"), "[Desktop Entry]\nName=Three\n");
    Write(AutostartFile("e.desktop/f.desktop"), "[Desktop Entry]\nName=Three\n");
    QFile::link("/nonexistent", At(AutostartFile("f.desktop")));
    const QStringList files = AutostartFiles();
    const QByteArray names = "get the name of every login item";
    const Outcome both = {0, "Two Words, One\n", ""};
    QCOMPARE(Run(Told(names)), both);
    QCOMPARE(Run(Told("if login item \"One\" exists then\n" + names + "\nend if")), both);
    QCOMPARE(Run(Told("if login item \"Two\" exists then\n" + names + "\nend if")), silent);
    QCOMPARE(Run(Told("delete login item \"Three\"")), silent);
    QCOMPARE(AutostartFiles(), files);
}

/// What is not understood to the end is not begun.
void TestLoginItems::SyntaxError()
{
    Write(AutostartFile("b.desktop"), "[Desktop Entry]\nName=One\n");
    for (const QByteArray statement :
         {"make", "make login item at end with properties {kind:application}",
          "make login item at end with properties {path:\"/\", path:\"/\"}",
          "make login item at end with properties {path:5}", "delete every login item",
          "get the name of every folder", "if login item \"One\" exists then",
          "if login item \"One\" exists then delete login item \"One\"", "quit"}) {
        const Outcome outcome = Run(Told("delete login item \"One\"\n" + statement));
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.errors.contains(": syntax error: Expected "), outcome.errors.constData());
        QCOMPARE(AutostartFiles(), QStringList("b.desktop"));
    }
}

void TestLoginItems::Directory()
{
    around.environment.insert("HOME", At("home"));
    const QString bin = MakeApplication("bin");
    for (const QString &config : {At("a/b"), QString("a/b"), QString()}) { // a relative one is none
        around.environment.insert("XDG_CONFIG_HOME", config);
        QCOMPARE(Enable(bin), made);
        const QString used = config.startsWith('/') ? config : At("home/.config");
        QVERIFY2(QFile::remove(used + "/autostart/Kelvo.desktop"), qPrintable(config));
    }
}

void TestLoginItems::BadDirectory()
{
    Write("config/autostart", "");
    const QByteArray error =
        "Cannot read " + At("config/autostart").toUtf8() + ": Not a directory. (-10000)\n";
    for (const Outcome &outcome : {Enable(MakeApplication("bin")), Disable()}) {
        QVERIFY2(outcome.errors.endsWith(error), outcome.errors.constData());
    }
}

/// Settings kept elsewhere and linked here stay linked.
void TestLoginItems::SymbolicLink()
{
    const QString bin = MakeApplication("bin");
    Write("dotfiles/k", "");
    QDir().mkpath(At("config/autostart"));
    QVERIFY(QFile::link(At("dotfiles/k"), At(AutostartFile())));
    QCOMPARE(Enable(bin), made);
    QVERIFY(QFileInfo(At(AutostartFile())).isSymLink());
    QVERIFY(Read("dotfiles/k").contains("Name=Kelvo"));
}

void TestLoginItems::FullDisk()
{
    const QString bin = MakeApplication("bin");
    const QByteArray old = "[Desktop Entry]\nName=Kelvo\nExec=\"/old/kelvo\"\n";
    Write(AutostartFile(), old);
    around.inChild = [] {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlimit limit = {60, 60};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    const QByteArray error = "Cannot write " + At(AutostartFile()).toUtf8() + ": File too large.";
    QVERIFY(Enable(bin).errors.contains(error));
    QCOMPARE(AutostartFiles(), QStringList("Kelvo.desktop"));
    QCOMPARE(Read(AutostartFile()), old);
}

QTEST_GUILESS_MAIN(TestLoginItems)
#include "TestLoginItems.moc"
