#pragma once

#include <QUrl>

/// The web pages that Kelvo can open, only ever after a click.
namespace Links {

/// The store page on which a user leaves a review.
inline QUrl ReviewPage()
{
    return QUrl(QStringLiteral("https://store.orvanta.example/kelvo?view=reviews"));
}

/// The maker's web site.
inline QUrl MakerPage()
{
    return QUrl(QStringLiteral("https://orvanta.example/"));
}

} // namespace Links
