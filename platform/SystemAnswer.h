#pragma once

#include <QString>

/// Answers a script inside the process, for systems without an AppleScript interpreter. Each system has a
/// file of its own.
/// @return what the interpreter would print; the empty string for a script that the system cannot answer
QString SystemAnswer(const QString &script);
