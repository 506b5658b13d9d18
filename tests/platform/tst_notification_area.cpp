#include "platform/desktop_notification_area.h"
#include "platform/session_bus.h"
#include "platform/status_notifier_item.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QPixmap>
#include <QProcess>
#include <QTest>
#include <csignal>
#include <functional>
#include <memory>

using namespace quarvel;
using namespace Qt::StringLiterals;

/// A notification area on the bus, with the registrar where icons put their names down.
class Host : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered MEMBER shows)

public:
    Host() {
        bus.registerObject(u"/StatusNotifierWatcher"_s, this, QDBusConnection::ExportAllContents);
        bus.registerService(u"org.kde.StatusNotifierWatcher"_s);
    }
    ~Host() override { QDBusConnection::disconnectFromBus(u"host"_s); }

    QDBusPendingCall call(const QString& interface, const QString& method, const QVariantList& arguments) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(item, u"/StatusNotifierItem"_s, interface, method);
        message.setArguments(arguments);
        return bus.asyncCall(message);
    }
    QDBusPendingCall click(const QString& method) {
        return call(u"org.kde.StatusNotifierItem"_s, method, {5, 5});
    }

    QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"host"_s);
    bool shows = true;
    QString item; // the last that registered

public Q_SLOTS:
    void RegisterStatusNotifierItem(const QString& service) { item = service; }

Q_SIGNALS:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();
};

struct Window final : IconWindow {
    [[nodiscard]] QIcon icon() const override {
        QPixmap picture(32, 32);
        picture.fill(QColor(1, 2, 3));
        return picture;
    }
    void iconMouse(int message) override {
        messages.append(message);
        if (atMessage) atMessage();
    }
    void iconLost() override { ++losses; }

    QList<int> messages;
    std::function<void()> atMessage;
    int losses = 0;
};

class NotificationAreaTest : public QObject {
    Q_OBJECT

private:
    static NotificationArea::Record record() {
        NotificationArea::Record bytes;
        bytes.fill(' ');
        qstrcpy(bytes.data() + 24, "\xC8 qui");
        return bytes;
    }
    QProcess daemon_;

private Q_SLOTS:
    void initTestCase() { // a session bus of its own, whatever the desktop has
        daemon_.start(u"dbus-daemon"_s, {u"--session"_s, u"--nofork"_s, u"--print-address"_s});
        QTRY_VERIFY2(daemon_.canReadLine(), qPrintable(daemon_.errorString()));
        qputenv("DBUS_SESSION_BUS_ADDRESS", daemon_.readLine().trimmed());
    }
    void cleanupTestCase() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

    void theIconShowsItsTipAndIsClickedUntilItIsDeleted() {
        Host host;
        Window window;
        DesktopNotificationArea area;
        area.notifyIcon(NotifyAction::Add, record(), window);
        QTRY_VERIFY(area.isThere());
        const QDBusPendingReply<QVariantMap> answer =
            host.call(u"org.freedesktop.DBus.Properties"_s, u"GetAll"_s, {u"org.kde.StatusNotifierItem"_s});
        QTRY_VERIFY(answer.isFinished());
        const QVariantMap told = answer.value();
        QCOMPARE(qdbus_cast<NotifierToolTip>(told[u"ToolTip"_s]).title, u"È qui"_s);
        const auto pixmaps = qdbus_cast<NotifierPixmaps>(told[u"IconPixmap"_s]);
        QCOMPARE(pixmaps.last().width, 32); // and not 64 pixels that the picture does not have
        QCOMPARE(pixmaps.first().pixels, QByteArray("\xFF\x01\x02\x03").repeated(256));
        for (const QString& click : {u"Activate"_s, u"SecondaryActivate"_s, u"ContextMenu"_s})
            host.click(click);
        QTRY_COMPARE(window.messages, QList<int>({513, 514, 519, 520, 516, 517}));
        window.messages.clear();
        window.atMessage = [&] { area.notifyIcon(NotifyAction::Delete, record(), window); };
        host.click(u"Activate"_s);
        QTRY_VERIFY(!area.isThere());
        QCOMPARE(window.messages, QList<int>({513})); // the release was on its way already
    }

    void theIconFollowsItsHosts() {
        Window window;
        DesktopNotificationArea area;
        area.notifyIcon(NotifyAction::Add, record(), window);
        auto host = std::make_unique<Host>(); // starts late
        QTRY_VERIFY(area.isThere());
        host.reset(); // and ends
        QTRY_COMPARE(window.losses, 1);
        QVERIFY(!area.isThere());
        host = std::make_unique<Host>(); // and starts again
        QTRY_VERIFY(area.isThere());
        host->shows = false; // its registrar stays
        Q_EMIT host->StatusNotifierHostUnregistered();
        QTRY_COMPARE(window.losses, 2);
        QVERIFY(!area.isThere());
        host->shows = true;
        Q_EMIT host->StatusNotifierHostRegistered();
        QTRY_VERIFY(area.isThere());
        QCOMPARE(window.losses, 2);
    }

    void aSilentBusHoldsNothingUp() {
        const Host host;
        Window window;
        DesktopNotificationArea area;
        area.notifyIcon(NotifyAction::Add, record(), window);
        QTRY_VERIFY(area.isThere());
        area.notifyIcon(NotifyAction::Delete, record(), window);
        const QByteArray addresses = sessionBusAddresses();
        QVERIFY(!isSilentBus(addresses));
        const auto daemon = static_cast<pid_t>(daemon_.processId());
        ::kill(daemon, SIGSTOP);
        area.notifyIcon(NotifyAction::Add, record(), window); // the toolkit alone would wait without end
        leaveSilentSessionBus();
        const QByteArray left = sessionBusAddresses();
        qputenv("DBUS_SESSION_BUS_ADDRESS", addresses);
        ::kill(daemon, SIGCONT);
        QVERIFY(!area.isThere());
        QCOMPARE(left, QByteArrayLiteral("disabled:"));
    }
};

QTEST_MAIN(NotificationAreaTest)
#include "tst_notification_area.moc"
