// The three scripts that Kelvo sends, recognised as a whole. This is no AppleScript interpreter.

#include "platform/SystemAnswer.h"

#include "platform/Global.h"
#include "platform/linux/LoginItem.h"
#include "platform/linux/VmStat.h"

namespace {

/// The string literal that begins after a text, up to its closing quote and without its escapes.
QString LiteralAfter(const QString &script, const QString &text)
{
    QString literal;
    qsizetype at = script.indexOf(text) + text.size();
    for (; at < script.size() && script[at] != QLatin1Char('"'); ++at) {
        if (script[at] == QLatin1Char('\\') && at + 1 < script.size()) {
            ++at;
        }
        literal += script[at];
    }
    return literal;
}

} // namespace

QString SystemAnswer(const QString &script)
{
    if (script == QLatin1String("do shell script \"vm_stat\"")) {
        return VmStat();
    }
    // Built again from its argument, a script must be the same to the letter.
    const QString path = LiteralAfter(script, QStringLiteral("{path:\""));
    const QString name = LiteralAfter(script, QStringLiteral("if login item \""));
    if (script == Global::AddLoginItemScript(path)) {
        MakeLoginItem(path);
    } else if (script == Global::RemoveLoginItemScript(name)) {
        DeleteLoginItem(name);
    }
    return QString();
}
