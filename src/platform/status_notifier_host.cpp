#include "platform/status_notifier_host.h"

#include <QDBusMessage>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QTimer>
#include <limits>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr int patienceMilliseconds = 2000; // with a registrar: until then no icon is shown elsewhere
constexpr int unlimited = std::numeric_limits<int>::max();

QString watcherService() { return QString::fromUtf16(statusNotifier::watcherService); }

} // namespace

StatusNotifierHost::StatusNotifierHost(std::function<void()> changed)
    : changed_(std::move(changed)), bus_(QDBusConnection::sessionBus()),
      ownership_(watcherService(), bus_, QDBusServiceWatcher::WatchForOwnerChange) {
    if (!bus_.isConnected()) {
        presence_ = Presence::No;
        return;
    }
    connect(&ownership_, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString&, const QString&, const QString& newOwner) { ownerChanged(newOwner); });
    // Without a service name, because Qt would wait for the bus to tell the name's owner.
    for (const QString& signal : {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s})
        bus_.connect(QString(), QString::fromUtf16(statusNotifier::watcherPath), watcherService(), signal,
                     this, SLOT(ask()));
    ask();
}

void StatusNotifierHost::ownerChanged(const QString& newOwner) {
    asking_.reset();
    settle(Presence::No);
    if (!newOwner.isEmpty()) ask();
}

void StatusNotifierHost::ask() {
    QDBusMessage question =
        QDBusMessage::createMethodCall(watcherService(), QString::fromUtf16(statusNotifier::watcherPath),
                                       u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question << watcherService() << u"IsStatusNotifierHostRegistered"_s;
    question.setAutoStartService(false);
    asking_ = std::make_unique<QDBusPendingCallWatcher>(bus_.asyncCall(question, unlimited));
    connect(asking_.get(), &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* asked) {
        const QDBusPendingReply<QDBusVariant> answer = *asked;
        const bool registered = !answer.isError() && answer.value().variant().toBool();
        settle(registered ? Presence::Yes : Presence::No);
    });
    // One that is slow to answer is not there until it does.
    QTimer::singleShot(patienceMilliseconds, asking_.get(), [this] {
        if (!asking_->isFinished()) settle(Presence::No);
    });
}

void StatusNotifierHost::settle(Presence presence) {
    if (std::exchange(presence_, presence) != presence) changed_();
}

} // namespace quarvel
