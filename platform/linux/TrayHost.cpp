#include "platform/TrayHost.h"

#include "platform/linux/Xcb.h"

#include <QAbstractNativeEventFilter>
#include <QDBusConnection>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QSystemTrayIcon>
#include <QTimer>

#include <cstdlib>
#include <memory>
#include <utility>

static const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
static constexpr int msHostQuestion = 100;
static constexpr int msUntilAbsent = 3000;

/// An XEmbed tray owns the selection named after its screen.
static bool HasXEmbedTray()
{
    xcb_connection_t *connection = XcbConnection();
    if (!connection) {
        return false;
    }
    char *host = nullptr;
    int display = 0;
    int screen = 0;
    xcb_parse_display(nullptr, &host, &display, &screen);
    std::free(host);
    const xcb_atom_t selection = XcbAtom("_NET_SYSTEM_TRAY_S" + QByteArray::number(screen));
    const std::unique_ptr<xcb_get_selection_owner_reply_t, decltype(&std::free)> reply(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr),
        std::free);
    return reply && reply->owner != XCB_WINDOW_NONE;
}

/// What Qt asks before it decides for StatusNotifierItem: a watcher without a host that shows the icons does
/// not count.
static QDBusMessage HostQuestion()
{
    auto question = QDBusMessage::createMethodCall(watcherService, QStringLiteral("/StatusNotifierWatcher"),
                                                   QStringLiteral("org.freedesktop.DBus.Properties"),
                                                   QStringLiteral("Get"));
    question.setArguments({watcherService, QStringLiteral("IsStatusNotifierHostRegistered")});
    question.setAutoStartService(false);
    return question;
}

static bool IsYes(const QDBusMessage &reply)
{
    return reply.type() == QDBusMessage::ReplyMessage &&
           reply.arguments().value(0).value<QDBusVariant>().variant().toBool();
}

/// Waits, without polling, for a tray of either kind to announce itself.
class TrayWatch : public QObject, public QAbstractNativeEventFilter
{
    Q_OBJECT

public:
    TrayWatch(std::function<void()> whenReady, QObject *parent)
        : QObject(parent), ready(std::move(whenReady)), managerAtom(XcbConnection() ? XcbAtom("MANAGER") : 0)
    {
        QDBusConnection bus = QDBusConnection::sessionBus();
        auto *watcher =
            new QDBusServiceWatcher(watcherService, bus, QDBusServiceWatcher::WatchForRegistration, this);
        connect(watcher, SIGNAL(serviceRegistered(QString)), this, SLOT(Check()));
        bus.connect(QString(), QStringLiteral("/StatusNotifierWatcher"), watcherService,
                    QStringLiteral("StatusNotifierHostRegistered"), this, SLOT(Check()));
        if (managerAtom) {
            qGuiApp->installNativeEventFilter(this);
        }
    }

    bool nativeEventFilter(const QByteArray &, void *message, qintptr *) override
    {
        // Each new owner of a tray selection sends it to the root window, whose structure events Qt receives.
        const auto *event = static_cast<const xcb_client_message_event_t *>(message);
        if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && event->type == managerAtom) {
            QMetaObject::invokeMethod(this, "Check", Qt::QueuedConnection);
        }
        return false;
    }

public slots:
    void Check()
    {
        if (HasXEmbedTray()) {
            OnFound();
            return;
        }
        auto *answer =
            new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(HostQuestion()), this);
        connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
            answer->deleteLater();
            if (IsYes(answer->reply())) {
                OnFound();
            }
        });
    }

private:
    void OnFound()
    {
        if (ready) {
            deleteLater();
            std::exchange(ready, nullptr)();
        }
    }

    std::function<void()> ready;
    xcb_atom_t managerAtom;
};

TrayHost::TrayHost(QObject *parent) : QObject(parent) {}

static QDBusMessage HostAnswer()
{
    return QDBusConnection::sessionBus().call(HostQuestion(), QDBus::Block, msHostQuestion);
}

static bool KnowsTrays()
{
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
}

bool TrayHost::TakesIconNames()
{
    return IsYes(HostAnswer());
}

bool TrayHost::IsGone()
{
    if (!KnowsTrays() || HasXEmbedTray()) {
        return false;
    }
    const QDBusMessage answer = HostAnswer();
    return !IsYes(answer) && QDBusError(answer).type() != QDBusError::NoReply;
}

void TrayHost::WhenAvailable(std::function<void()> ready)
{
    // The cheaper question first. Where both kinds are there, Qt chooses StatusNotifierItem by itself.
    if (!KnowsTrays() || HasXEmbedTray() || TakesIconNames()) {
        ready();
        return;
    }
    auto *watch = new TrayWatch(std::move(ready), this);
    QTimer::singleShot(msUntilAbsent, watch, [this] { emit Absent(); });
    // A tray may have appeared just before the watch began, or be slow to answer.
    watch->Check();
}

void TrayHost::Attach(QSystemTrayIcon *icon)
{
    connect(icon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger || reason == QSystemTrayIcon::DoubleClick) {
            emit Clicked();
        }
    });
}

#include "TrayHost.moc"
