#include "figures/FormatSizeString.h"

#include <QCoreApplication>
#include <QLocale>

QString FormatSizeString(qlonglong size)
{
    const QLocale locale;
    const auto rounded = [&](int shift, int decimals) {
        const auto unit = static_cast<double>(1LL << shift);
        return locale.toString(static_cast<double>(size) / unit, 'f', decimals);
    };

    if (size >= 1LL << 40) {
        return QCoreApplication::translate("MainDialog", "%1 TB").arg(rounded(40, 3));
    }
    if (size >= 1LL << 30) {
        return QCoreApplication::translate("MainDialog", "%1 GB").arg(rounded(30, 2));
    }
    if (size >= 1LL << 20) {
        return QCoreApplication::translate("MainDialog", "%1 MB").arg(rounded(20, 1));
    }
    if (size >= 1LL << 10) {
        return QCoreApplication::translate("MainDialog", "%1 KB").arg(locale.toString(size >> 10));
    }
    return QCoreApplication::translate("MainDialog", "%1 bytes").arg(locale.toString(size));
}
