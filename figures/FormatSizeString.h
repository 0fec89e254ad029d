#pragma once

#include <QString>

/// A byte count as the short text of every figure: "8.00 GB", "5.1 MB", "1,023 KB", "-5 bytes".
///
/// Units are powers of 1024. TB, GB and MB are rounded to 3, 2 and 1 decimals, so that the byte below 1 GB
/// reads "1,024.0 MB"; KB and bytes are whole numbers with the remainder cut off. Digits and separators are
/// those of the default QLocale; the words are translated in the main window's context.
QString FormatSizeString(qlonglong size);
