#include "compat/DesktopEntry.h"

#include <algorithm>

namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view Trimmed(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// Of a value of the type "string", as every value in the file is.
std::string Escaped(std::string_view value)
{
    std::string escaped;
    for (const char c : value) {
        escaped += c == '\\' ? "\\\\" : std::string(1, c);
    }
    return escaped;
}

std::string Unescaped(std::string_view value)
{
    constexpr std::string_view letters = "sntr\\";
    constexpr std::string_view meanings = " \n\t\r\\";
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const std::size_t nLetter =
            value[at] == '\\' && at + 1 < value.size() ? letters.find(value[at + 1]) : std::string_view::npos;
        if (nLetter == std::string_view::npos) {
            text += value[at];
        } else {
            text += meanings[nLetter];
            ++at;
        }
    }
    return text;
}

/// A line by which some desktop, or a user with an editor, says "do not start this". Older files write 1 and
/// 0.
bool IsOff(std::string_view key, std::string_view value)
{
    const auto isOneOf = [](std::string_view text, std::initializer_list<std::string_view> known) {
        return std::ranges::find(known, text) != known.end();
    };
    return key == "Hidden" ? isOneOf(value, {"true", "True", "TRUE", "1"})
                           : isOneOf(key, {"X-GNOME-Autostart-enabled", "X-MATE-Autostart-enabled"}) &&
                                 isOneOf(value, {"false", "False", "FALSE", "0"});
}

/// Well formed as UTF-8 encodes: no stray or missing continuation byte, nothing overlong, no surrogate.
bool IsUtf8(std::string_view text)
{
    const auto byte = [text](std::size_t at) {
        return at < text.size() ? static_cast<unsigned char>(text[at]) : 0U;
    };
    for (std::size_t at = 0; at < text.size();) {
        const unsigned lead = byte(at);
        const std::size_t nFollowing = lead < 0x80 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
        if (lead >= 0x80 && (lead < 0xC2 || lead > 0xF4)) {
            return false;
        }
        const unsigned second = byte(at + 1);
        if ((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
            (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F)) {
            return false;
        }
        for (std::size_t follow = 1; follow <= nFollowing; ++follow) {
            if ((byte(at + follow) & 0xC0) != 0x80) {
                return false;
            }
        }
        at += nFollowing + 1;
    }
    return true;
}

} // namespace

DesktopEntry ParseDesktopEntry(std::string_view text)
{
    DesktopEntry entry;
    bool bInEntry = false;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        if (line.starts_with('[')) {
            bInEntry = Trimmed(line) == "[Desktop Entry]";
        }
        const std::size_t nKey = line.find('=');
        if (!bInEntry || nKey == std::string_view::npos) {
            continue;
        }
        const std::string_view key = Trimmed(line.substr(0, nKey));
        const std::string_view value = Trimmed(line.substr(nKey + 1));
        if (key == "Name" && entry.name.empty()) {
            entry.name = Unescaped(value);
        } else if (key == "Exec" && entry.exec.empty()) {
            entry.exec = value;
        } else if (IsOff(key, value)) {
            entry.bSwitchedOff = true;
        }
    }
    return entry;
}

bool IsExecutableName(std::string_view program)
{
    const auto bad = [](char c) { return (c >= 0 && c < ' ') || c == 0x7F || c == '='; };
    return IsUtf8(program) && std::ranges::none_of(program, bad);
}

std::string ExecValue(const std::string &program)
{
    std::string quoted = "\"";
    for (const char c : program) {
        if (c == '"' || c == '`' || c == '$' || c == '\\') {
            quoted += '\\';
        }
        quoted += c == '%' ? "%%" : std::string(1, c);
    }
    // GLib and systemd look for the first word on the disk before they read "%%" in it, and then drop the
    // entry.
    const bool bPercent = program.find('%') != std::string::npos;
    // Two rules one over the other: an argument in quotes has its own escapes, and the line as a string
    // doubles them.
    return (bPercent ? "env " : "") + Escaped(quoted + '"');
}

std::string DesktopEntryText(const std::string &name, const std::string &comment, const std::string &icon,
                             const std::string &program)
{
    // TryExec: a program that was removed leaves an entry that does nothing.
    return "[Desktop Entry]\n"
           "Type=Application\n"
           "Name=" +
           Escaped(name) +
           "\n"
           "Comment=" +
           Escaped(comment) +
           "\n"
           "Icon=" +
           Escaped(icon) +
           "\n"
           "TryExec=" +
           Escaped(program) +
           "\n"
           "Exec=" +
           ExecValue(program) +
           "\n"
           "Terminal=false\n"
           "StartupNotify=false\n";
}
