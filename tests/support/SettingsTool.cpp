// settings_tool FILE [JSON]: prints Kelvo's stored settings as JSON; with JSON, stores its keys first. The
// end-to-end tests so read and write what the program itself does. A list of two numbers stands for a point.

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPoint>
#include <QSettings>

#include <cstdio>

int main(int argc, char *argv[])
{
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
        const QPoint point = value.toPoint();
        stored[key] = value.userType() == QMetaType::QPoint ? QJsonArray{point.x(), point.y()}
                                                            : QJsonValue::fromVariant(value);
    }
    std::puts(QJsonDocument(stored).toJson().constData());
    return 0;
}
