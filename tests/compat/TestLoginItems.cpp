#include "platform/Global.h"
#include "tests/compat/RunProgram.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>

/// The scripts that the application sends, run by the interpreter, seen in the autostart directory.
class TestLoginItems : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QTest::failOnWarning(QRegularExpression(".*")); }
    void init();
    void MakeAndDelete();
    void MakeAgain_data();
    void MakeAgain();
    void Path_data();
    void Path();
    void RefusedPath_data();
    void RefusedPath();
    void Answer_data();
    void Answer();
    void SyntaxError_data();
    void SyntaxError();
    void Directory_data();
    void Directory();
    void BadDirectory_data();
    void BadDirectory();
    void PathLikeAScript();
    void TwoDeleteAtOnce();
    void SymbolicLink();
    void FullDisk();

private:
    QString AutostartFile(const QString &name = "Kelvo.desktop") const
    {
        return root->filePath("config/autostart/" + name);
    }
    /// An executable that says its own path, in a directory made for it; returns the directory.
    QString MakeApplication(const QString &directory, const QString &executable = "kelvo");
    void Write(const QString &path, const QByteArray &content);
    QByteArray Read(const QString &path);
    QStringList AutostartFiles() const;
    Outcome Run(const QByteArray &script);
    Outcome Enable(const QString &path) { return Run(Global::AddLoginItemScript(path).toUtf8()); }
    Outcome Disable() { return Run(Global::RemoveLoginItemScript("Kelvo").toUtf8()); }

    std::unique_ptr<QTemporaryDir> root;
    Surroundings around;
};

namespace {

const Outcome made = {0, "login item Kelvo\n", ""};
const Outcome silent = {0, "", ""};

/// What the program that a desktop starts for the entry writes. The launcher does not wait for it, `cat`
/// does.
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
    root = std::make_unique<QTemporaryDir>();
    around = {};
    around.environment.insert("XDG_CONFIG_HOME", root->filePath("config"));
}

QString TestLoginItems::MakeApplication(const QString &directory, const QString &executable)
{
    QString path = root->filePath(directory);
    QDir().mkpath(path);
    Write(path + '/' + executable, "#!/bin/sh\nprintf '%s' \"$0\"\n");
    QFile::setPermissions(path + '/' + executable, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return path;
}

void TestLoginItems::Write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    QVERIFY2(file.open(QIODevice::WriteOnly), qPrintable(path));
    file.write(content);
}

QByteArray TestLoginItems::Read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList TestLoginItems::AutostartFiles() const
{
    return QDir(root->filePath("config/autostart"))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

Outcome TestLoginItems::Run(const QByteArray &script)
{
    around.input = script;
    return RunProgram(OSASCRIPT, {"-l", "AppleScript"}, around);
}

void TestLoginItems::MakeAndDelete()
{
    const QString bin = MakeApplication("opt/kelvo/bin");
    QCOMPARE(Disable(), silent);
    QVERIFY(!QFile::exists(root->filePath("config")));

    QCOMPARE(Enable(bin), made);
    const QByteArray program = bin.toUtf8() + "/kelvo";
    QCOMPARE(Read(AutostartFile()), "[Desktop Entry]\n"
                                    "Type=Application\n"
                                    "Name=Kelvo\n"
                                    "Comment=Shows and frees the machine's memory\n"
                                    "Icon=kelvo\n"
                                    "TryExec=" +
                                        program +
                                        "\n"
                                        "Exec=\"" +
                                        program +
                                        "\"\n"
                                        "Terminal=false\n"
                                        "StartupNotify=false\n");
    QCOMPARE(AutostartFiles(), QStringList("Kelvo.desktop"));

    Write(AutostartFile("other.desktop"), "[Desktop Entry]\nName=Other\nExec=other\n");
    QCOMPARE(Disable(), silent);
    QCOMPARE(AutostartFiles(), QStringList("other.desktop"));
    QCOMPARE(Disable(), silent);
}

void TestLoginItems::MakeAgain_data()
{
    QTest::addColumn<QByteArray>("entry"); // %1: the program
    QTest::addColumn<bool>("bKept");
    const QByteArray start = "[Desktop Entry]\nName=Kelvo\nExec=\"%1\"\n";
    QTest::newRow("as it is") << start << true;
    QTest::newRow("with the user's own lines") << start + "X-GNOME-Autostart-Delay=5\n" << true;
    QTest::newRow("another program") << QByteArray("[Desktop Entry]\nName=Kelvo\nExec=\"/old/kelvo\"\n")
                                     << false;
    QTest::newRow("no program") << QByteArray("[Desktop Entry]\nName=Kelvo\n") << false;
    QTest::newRow("cut short") << QByteArray("[Desktop Ent") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("hidden") << QByteArray("[Desktop Entry]\nName = Kelvo\nExec=/old\nHidden = true\n")
                            << true;
    QTest::newRow("hidden, nothing else") << QByteArray("[Desktop Entry]\nHidden=true\n") << true;
    QTest::newRow("hidden, renamed") << QByteArray("[Desktop Entry]\nName=My Kelvo\nHidden=true\n") << true;
    QTest::newRow("hidden, CRLF") << QByteArray("[Desktop Entry]\r\nName=Kelvo\r\nHidden=true\r\n") << true;
    QTest::newRow("not enabled")
        << QByteArray("[Desktop Entry]\nX-GNOME-Autostart-enabled=false\nName=Kelvo\nExec=/old\n") << true;
    for (const char *off :
         {"Hidden=1", "Hidden=True", "X-MATE-Autostart-enabled=false", "X-GNOME-Autostart-enabled=0"}) {
        QTest::newRow(off) << QByteArray("[Desktop Entry]\nName=Kelvo\n") + off << true;
    }
    for (const char *on : {"Hidden=0", "Hidden=", "X-MATE-Autostart-enabled=true", "X-Hidden=true"}) {
        QTest::newRow(on) << QByteArray("[Desktop Entry]\nName=Kelvo\n") + on << false;
    }
    QTest::newRow("not hidden")
        << QByteArray("[Desktop Entry]\nName=Kelvo\nHidden=false\nX-GNOME-Autostart-enabled=true\n") << false;
    QTest::newRow("hidden elsewhere")
        << QByteArray("[Desktop Entry]\nName=Kelvo\n[Other]\nHidden=true\n") << false;
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
    QFile::remove(AutostartFile());
    Write(AutostartFile("a.desktop"), entry);
    QCOMPARE(Enable(bin), made);
    QCOMPARE(AutostartFiles().size(), entry.contains("Name=Kelvo") || entry.contains("Name = Kelvo") ? 1 : 2);
    QCOMPARE(Disable(), silent);
    QVERIFY(!Run(Told("get the name of every login item")).output.trimmed().split(',').contains("Kelvo"));
}

void TestLoginItems::Path_data()
{
    QTest::addColumn<QString>("directory");
    for (const char *directory :
         {"plain", "with blank", "per%cent %f", "dollar$HOME `id` ' single",
          "\303\244\316\251\360\237\230\200", "semi;colon & | > < ~ # * ? ( )", "Foo.app", "[brackets]",
          "a\"b\\c d%\303\251", "\"", "\\", "\\\\n", "a\", kind:application}"}) {
        QTest::newRow(directory) << QString::fromUtf8(directory);
    }
}

void TestLoginItems::Path()
{
    QFETCH(const QString, directory);
    const QString bin = MakeApplication(directory);
    QCOMPARE(Enable(bin), made);
    QCOMPARE(Started(AutostartFile()), bin.toUtf8() + "/kelvo");
    const QByteArray before = Read(AutostartFile());
    QCOMPARE(Enable(bin + "//"), made);
    QCOMPARE(Read(AutostartFile()), before);

    const QString other = MakeApplication(directory, "other");
    QCOMPARE(Enable(other + "/other"), (Outcome{0, "login item other\n", ""}));
    QCOMPARE(Started(AutostartFile("other.desktop")), other.toUtf8() + "/other");
}

void TestLoginItems::RefusedPath_data()
{
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QByteArray>("errors");
    const QByteArray refused = "broken UTF-8 in it. (-10000)";
    QTest::newRow("not there") << QByteArray("/nonexistent")
                               << QByteArray("No application was found at \"/nonexistent\". (-43)");
    QTest::newRow("nothing in it") << QByteArray("/proc")
                                   << QByteArray("No application was found at \"/proc\". (-43)");
    QTest::newRow("not executable") << QByteArray("/proc/version")
                                    << QByteArray("No application was found at \"/proc/version\". (-43)");
    QTest::newRow("relative") << QByteArray("bin") << QByteArray("Not an absolute path: \"bin\". (-43)");
    QTest::newRow("empty") << QByteArray() << QByteArray("Not an absolute path: \"\". (-43)");
    for (const char *path :
         {"/a\nb", "/a\\nb", "/a\\tb", "/a\x7fz", "/a=b", "/a\xffz", "/\xc0\xaf", "/\xed\xa0\x80", "/\xc3"}) {
        QTest::newRow(QByteArray(path).toPercentEncoding().constData()) << QByteArray(path) << refused;
    }
    QTest::newRow("open string") << QByteArray("/a\\c")
                                 << QByteArray("Expected \"\"\" but found unknown token. (-2741)");
}

void TestLoginItems::RefusedPath()
{
    QFETCH(const QByteArray, path);
    QFETCH(const QByteArray, errors);
    const Outcome outcome =
        Run(Told("make login item at end with properties {path:\"" + path + "\", kind:application}"));
    QCOMPARE(outcome.status, 1);
    QCOMPARE(outcome.output, "");
    QVERIFY2(outcome.errors.trimmed().endsWith(errors), outcome.errors.constData());
    QVERIFY(!QFile::exists(root->filePath("config")));
}

void TestLoginItems::Answer_data()
{
    QTest::addColumn<QByteArray>("statement");
    QTest::addColumn<Outcome>("expected");
    const auto row = [](const QByteArray &statement, const QByteArray &output) {
        QTest::newRow(statement.constData()) << statement << Outcome{0, output + '\n', ""};
    };
    row("get the name of every login item", "Two Words, One");
    row("if login item \"One\" exists then\nget the name of every login item\nend if", "Two Words, One");
    row("if login item \"Two\" exists then\nend if\nget the name of every login item", "Two Words, One");
    for (const char *statement :
         {"if login item \"Two\" exists then\nget the name of every login item\nend if",
          "delete login item \"Three\"", "tell application \"System Events\"\nend tell"}) {
        QTest::newRow(statement) << QByteArray(statement) << silent;
    }
}

void TestLoginItems::Answer()
{
    QFETCH(const QByteArray, statement);
    QFETCH(const Outcome, expected);
    Write(AutostartFile("a.desktop"),
          "# a comment\n[Desktop Entry]\nName[de]=Zwei\nName=Two\\sWords\nName=Second\n");
    Write(AutostartFile("b.desktop"), "[Desktop Entry]\nHidden=true\nName=One\n");
    Write(AutostartFile("c.desktop"), "[Other]\nName=Three\n[Desktop Entry]\nExec=c\n");
    Write(AutostartFile("d.txt"), "[Desktop Entry]\nName=Three\n");
    Write(AutostartFile("e.desktop/f.desktop"), "[Desktop Entry]\nName=Three\n");
    QFile::link("/nonexistent", AutostartFile("f.desktop"));
    const QStringList files = AutostartFiles();
    QCOMPARE(Run(Told(statement)), expected);
    QCOMPARE(AutostartFiles(), files);
}

void TestLoginItems::SyntaxError_data()
{
    QTest::addColumn<QByteArray>("statement");
    for (const char *statement :
         {"make",
          "make login item",
          "make new folder at end with properties {path:\"/\"}",
          "make login item at end with properties {}",
          "make login item at end with properties {kind:application}",
          "make login item at end with properties {path:\"/\"",
          "make login item at end with properties {path:\"/\", path:\"/\"}",
          "make login item at end with properties {path:\"/\", hidden:true}",
          "make login item at end with properties {path:5}",
          "make login item at end with properties {path:\"/\", kind:document}",
          "make login item at beginning with properties {path:\"/\", kind:application}",
          "delete",
          "delete every login item",
          "delete login item",
          "delete login item 1",
          "delete login item \"One\" exists",
          "get",
          "get the name of every folder",
          "if login item \"One\" exists delete login item \"One\"",
          "if login item \"One\" exists then delete login item \"One\"",
          "if login item \"One\" exists then",
          "if login item \"One\" exists then\ndelete login item \"One\"\nelse\nend if",
          "if then delete login item \"One\"",
          "login item \"One\" exists",
          "quit"}) {
        QTest::newRow(statement) << QByteArray(statement);
    }
}

/// What is not understood to the end is not begun.
void TestLoginItems::SyntaxError()
{
    QFETCH(const QByteArray, statement);
    Write(AutostartFile("b.desktop"), "[Desktop Entry]\nName=One\n");
    const Outcome outcome = Run(Told("delete login item \"One\"\n" + statement));
    QCOMPARE(outcome.status, 1);
    QVERIFY2(QRegularExpression("^\\d+:\\d+: syntax error: Expected .* but found .*\\. \\(-2741\\)\n$")
                 .match(outcome.errors)
                 .hasMatch(),
             outcome.errors.constData());
    QCOMPARE(AutostartFiles(), QStringList("b.desktop"));
}

void TestLoginItems::Directory_data()
{
    QTest::addColumn<QString>("config"); // "-": unset; %1: the test's directory
    QTest::addColumn<QString>("home");
    QTest::addColumn<QString>("autostart");
    QTest::newRow("configuration directory") << "%1/a/b"
                                             << "%1/home"
                                             << "a/b/autostart";
    QTest::newRow("home directory") << "-"
                                    << "%1/home"
                                    << "home/.config/autostart";
    QTest::newRow("relative") << "a/b"
                              << "%1/home"
                              << "home/.config/autostart";
    QTest::newRow("empty") << ""
                           << "%1/home"
                           << "home/.config/autostart";
}

void TestLoginItems::Directory()
{
    QFETCH(const QString, config);
    QFETCH(const QString, home);
    QFETCH(const QString, autostart);
    if (config == "-") {
        around.environment.remove("XDG_CONFIG_HOME");
    } else {
        around.environment.insert("XDG_CONFIG_HOME",
                                  config.contains('%') ? config.arg(root->path()) : config);
    }
    around.environment.insert("HOME", home.arg(root->path()));
    QCOMPARE(Enable(MakeApplication("bin")), made);
    QCOMPARE(QDir(root->filePath(autostart)).entryList(QDir::Files), QStringList("Kelvo.desktop"));
}

void TestLoginItems::BadDirectory_data()
{
    QTest::addColumn<QString>("error");
    QTest::newRow("file") << "Not a directory";
    QTest::newRow("link to nothing") << "No such file or directory";
    QTest::newRow("circle of links") << "Too many levels of symbolic links";
    QTest::newRow("configuration is a file") << "Not a directory";
}

void TestLoginItems::BadDirectory()
{
    QFETCH(const QString, error);
    const QString autostart = root->filePath("config/autostart");
    const QString kind = QTest::currentDataTag();
    if (kind == "configuration is a file") {
        Write(root->filePath("config"), "");
    } else if (kind == "file") {
        Write(autostart, "");
    } else {
        QDir().mkpath(root->filePath("config"));
        QVERIFY(QFile::link(kind.startsWith("circle") ? autostart : "/nonexistent", autostart));
    }
    for (const Outcome &outcome : {Enable(MakeApplication("bin")), Disable()}) {
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.output, "");
        const QString expected =
            "System Events got an error: Cannot read " + autostart + ": " + error + ". (-10000)\n";
        QVERIFY2(outcome.errors.endsWith(expected.toUtf8()), outcome.errors.constData());
    }
}

/// A directory named like a script is a directory.
void TestLoginItems::PathLikeAScript()
{
    const QString trace = root->filePath("trace");
    const QString bin =
        MakeApplication("x\", kind:application}\rend tell\rdo shell script \"cat >'" + trace + "'\"\r--");
    QVERIFY(Enable(bin).errors.contains("cannot have"));
    QVERIFY(!QFile::exists(trace));
}

/// Each finds entries that the other has deleted by then.
void TestLoginItems::TwoDeleteAtOnce()
{
    for (int file = 0; file < 300; ++file) {
        Write(AutostartFile(QString("%1.desktop").arg(file)), "[Desktop Entry]\nName=Kelvo\n");
    }
    const QString script = Global::RemoveLoginItemScript("Kelvo");
    QProcess other;
    other.setProcessEnvironment(around.environment);
    other.start(OSASCRIPT, {"-e", script});
    QCOMPARE(Disable(), silent);
    QVERIFY(other.waitForFinished());
    QCOMPARE(other.readAllStandardError(), "");
    QCOMPARE(AutostartFiles(), QStringList());
}

/// Settings kept elsewhere and linked here stay linked.
void TestLoginItems::SymbolicLink()
{
    const QString bin = MakeApplication("bin");
    Write(root->filePath("dotfiles/k"), "");
    QDir().mkpath(root->filePath("config/autostart"));
    QVERIFY(QFile::link(root->filePath("dotfiles/k"), AutostartFile()));
    QCOMPARE(Enable(bin), made);
    QVERIFY(QFileInfo(AutostartFile()).isSymLink());
    QVERIFY(Read(root->filePath("dotfiles/k")).contains("Name=Kelvo"));

    QFile::remove(root->filePath("dotfiles/k"));
    const Outcome outcome = Enable(bin);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains("Cannot follow " + AutostartFile().toUtf8()),
             outcome.errors.constData());
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
    const Outcome outcome = Enable(bin);
    QCOMPARE(outcome.status, 1);
    QVERIFY2(outcome.errors.contains("Cannot write " + AutostartFile().toUtf8() + ": File too large."),
             outcome.errors.constData());
    QCOMPARE(AutostartFiles(), QStringList("Kelvo.desktop"));
    QCOMPARE(Read(AutostartFile()), old);
}

QTEST_GUILESS_MAIN(TestLoginItems)
#include "TestLoginItems.moc"
