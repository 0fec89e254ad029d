// settings_tool FILE [JSON]: prints Kelvo's stored settings as JSON; with JSON, stores its keys first. For
// the end-to-end tests, which so read and write what the program itself does. A list of two numbers stands
// for a point.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPoint>
#include <QSettings>

#include <cstdio>

int main(int argc, char *argv[])
{
    if (argc < 2) {
        std::fputs("settings_tool: no file named\n", stderr);
        return 2;
    }
    QSettings settings(QString::fromLocal8Bit(argv[1]), QSettings::IniFormat);
    const QJsonObject given = QJsonDocument::fromJson(argc > 2 ? argv[2] : "{}").object();
    for (auto entry = given.begin(); entry != given.end(); ++entry) {
        const QJsonArray point = entry.value().toArray();
        settings.setValue(entry.key(), point.size() == 2 ? QPoint(point[0].toInt(), point[1].toInt())
                                                         : entry.value().toVariant());
    }

    QJsonObject stored;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        const QVariant value = settings.value(key);
        if (value.userType() == QMetaType::QPoint) {
            stored[key] = QJsonArray{value.toPoint().x(), value.toPoint().y()};
        } else {
            stored[key] = QJsonValue::fromVariant(value);
        }
    }
    std::puts(QJsonDocument(stored).toJson().constData());
    return 0;
}
