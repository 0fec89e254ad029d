// settings_tool FILE JSON: stores the keys of the JSON, and prints everything that is stored then. The
// end-to-end tests so read and write what the program itself does. A list of two numbers stands for a point.

#include <QJsonDocument>
#include <QPoint>
#include <QSettings>

#include <cstdio>

int main(int, char *argv[])
{
    QSettings settings(QString::fromLocal8Bit(argv[1]), QSettings::IniFormat);
    const QVariantMap given = QJsonDocument::fromJson(argv[2]).toVariant().toMap();
    for (auto entry = given.begin(); entry != given.end(); ++entry) {
        const QVariantList list = entry->toList();
        settings.setValue(entry.key(), list.size() == 2 ? QPoint(list[0].toInt(), list[1].toInt()) : *entry);
    }

    QVariantMap stored;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        const QVariant value = settings.value(key);
        const QPoint point = value.toPoint();
        stored[key] = value.userType() == QMetaType::QPoint ? QVariantList{point.x(), point.y()} : value;
    }
    std::puts(QJsonDocument::fromVariant(stored).toJson().constData());
    return 0;
}
