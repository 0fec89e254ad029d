#include "platform/linux/DesktopEntry.h"

#include <QList>

#include <algorithm>

namespace {

/// A value of the type "string", which every value in the file is.
QString Escaped(QString value)
{
    return value.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
}

QString Unescaped(QStringView value)
{
    const QLatin1String letters("sntr\\");
    const QLatin1String meanings(" \n\t\r\\");
    QString text;
    for (qsizetype at = 0; at < value.size(); ++at) {
        const bool bEscape = value[at] == QLatin1Char('\\') && at + 1 < value.size();
        const qsizetype letter = bEscape ? letters.indexOf(value[at + 1]) : -1;
        text += letter < 0 ? value[at] : QChar(meanings[letter]);
        at += letter < 0 ? 0 : 1;
    }
    return text;
}

/// A line by which a desktop or the user says "do not start this". Older files write 1 and 0.
bool IsOff(QStringView key, QStringView value)
{
    const auto is = [value](const char *word, QLatin1Char digit) {
        return value.compare(QLatin1String(word), Qt::CaseInsensitive) == 0 || value == digit;
    };
    if (key == QLatin1String("Hidden")) {
        return is("true", QLatin1Char('1'));
    }
    return (key == QLatin1String("X-GNOME-Autostart-enabled") ||
            key == QLatin1String("X-MATE-Autostart-enabled")) &&
           is("false", QLatin1Char('0'));
}

} // namespace

DesktopEntry ParseDesktopEntry(const QByteArray &text)
{
    DesktopEntry entry;
    bool bInEntry = false;
    const QString decoded = QString::fromUtf8(text);
    for (const QStringView line : QStringView(decoded).split(QLatin1Char('\n'))) {
        if (line.startsWith(QLatin1Char('['))) {
            bInEntry = line.trimmed() == QLatin1String("[Desktop Entry]");
        }
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (!bInEntry || equals < 0) {
            continue;
        }
        const QStringView key = line.first(equals).trimmed();
        const QStringView value = line.sliced(equals + 1).trimmed();
        if (key == QLatin1String("Name") && entry.name.isEmpty()) {
            entry.name = Unescaped(value);
        } else if (key == QLatin1String("Exec") && entry.exec.isEmpty()) {
            entry.exec = value.toString();
        } else if (IsOff(key, value)) {
            entry.bSwitchedOff = true;
        }
    }
    return entry;
}

bool IsExecutableName(const QString &program)
{
    return std::none_of(program.begin(), program.end(), [](QChar c) {
        return c.unicode() < ' ' || c.unicode() == 0x7F || c == QLatin1Char('=') || c == QLatin1Char('\\');
    });
}

QString ExecValue(const QString &program)
{
    QString quoted;
    for (const QChar c : program) {
        if (QStringLiteral("\"`$").contains(c)) {
            quoted += QLatin1Char('\\');
        }
        quoted += c;
    }
    // GLib and systemd look for the first word on the disk before they read "%%" in it, and drop the entry.
    const bool bPercent = quoted.contains(QLatin1Char('%'));
    quoted.replace(QLatin1Char('%'), QLatin1String("%%"));
    // Two rules, one on top of the other: a quoted argument has escapes of its own, and the line is a string.
    return (bPercent ? QStringLiteral("env ") : QString()) +
           Escaped(QLatin1Char('"') + quoted + QLatin1Char('"'));
}

QByteArray DesktopEntryText(const QString &name, const QString &program)
{
    // TryExec makes the entry of a removed program harmless.
    return QStringLiteral("[Desktop Entry]\n"
                          "Type=Application\n"
                          "Name=%1\n"
                          "Comment=Shows and frees the machine's memory\n"
                          "Icon=kelvo\n"
                          "TryExec=%2\n"
                          "Exec=%3\n"
                          "Terminal=false\n"
                          "StartupNotify=false\n")
        .arg(Escaped(name), Escaped(program), ExecValue(program))
        .toUtf8();
}
