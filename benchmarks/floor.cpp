// The least that a Qt program with a live tray icon can cost: every two seconds one static child through
// QProcess, and the icon drawn again from what it said. No window, no settings, nothing skipped.
//   bench_floor CHILD

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QPixmap>
#include <QProcess>
#include <QSystemTrayIcon>
#include <QTimer>

namespace {

/// A pie of two slices whose border follows the first figure in the text.
QIcon Draw(const QByteArray &text)
{
    const qsizetype digits = text.indexOf(':') + 1;
    const qlonglong nPages = text.mid(digits, text.indexOf('.', digits) - digits).trimmed().toLongLong();

    QPixmap pixmap(64, 64);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const int nSpan = static_cast<int>(nPages % 5760LL);
    painter.setBrush(Qt::green);
    painter.drawPie(pixmap.rect(), 0, nSpan);
    painter.setBrush(Qt::red);
    painter.drawPie(pixmap.rect(), nSpan, 360 * 16 - nSpan);
    painter.end();
    return QIcon(pixmap);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    const QString child = QString::fromLocal8Bit(argc > 1 ? argv[1] : "true");
    QSystemTrayIcon icon(&app);
    const auto sample = [&] {
        QProcess process;
        process.start(child, {});
        process.waitForFinished();
        icon.setIcon(Draw(process.readAll()));
    };
    sample();
    icon.show();

    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &app, sample);
    timer.start(2000);
    return QApplication::exec();
}
