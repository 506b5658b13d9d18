#include "platform/status_notifier_item.h"

#include "platform/notification_area.h"
#include "platform/session_bus.h"
#include "platform/status_notifier_host.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QImage>
#include <QPixmap>
#include <QtEndian>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// A number that no earlier icon of this process has had: a name that was just given back may still be known.
int nextNumber() {
    static int last = 0;
    return ++last;
}

NotifierPixmaps pixmapsOf(const QIcon& picture) {
    NotifierPixmaps pixmaps;
    for (const int side :
         {16, 22, 24, 32, 48, 64}) { // pixels; the sizes of usual panels, once and twice scaled
        const QImage image =
            picture.pixmap(QSize(side, side), 1.0).toImage().convertToFormat(QImage::Format_ARGB32);
        // A picture that has no such size comes smaller, and then the same one again and again.
        if (image.isNull() || (!pixmaps.isEmpty() && pixmaps.last().width >= image.width())) continue;
        QByteArray pixels(image.sizeInBytes(), Qt::Uninitialized);
        qToBigEndian<quint32>(image.constBits(), qsizetype{image.width()} * image.height(), pixels.data());
        pixmaps.append({image.width(), image.height(), pixels});
    }
    return pixmaps;
}

/// A connection to the session bus; one that is not connected where the bus is silent, for Qt would wait for
/// it.
QDBusConnection connectUnlessSilent(const QString& name) {
    return isSilentBus(sessionBusAddresses())
               ? QDBusConnection(name)
               : QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
}

} // namespace

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.pixels;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.pixels;
    argument.endStructure();
    return argument;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip) {
    argument.beginStructure();
    argument << toolTip.iconName << toolTip.iconPixmap << toolTip.title << toolTip.text;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip) {
    argument.beginStructure();
    argument >> toolTip.iconName >> toolTip.iconPixmap >> toolTip.title >> toolTip.text;
    argument.endStructure();
    return argument;
}

StatusNotifierItem::StatusNotifierItem(const QIcon& picture, const QString& tip, ShownIconEvents& events)
    : events_(events), connectionName_(u"icon-%1"_s.arg(nextNumber())),
      bus_(connectUnlessSilent(connectionName_)), category_(u"ApplicationStatus"_s), id_(u"quarvel"_s),
      title_(u"Quarvel"_s), status_(u"Active"_s),
      iconPixmap_(pixmapsOf(picture)), toolTip_{QString(), {}, tip, QString()}, menu_(u"/NO_DBUSMENU"_s) {
    qDBusRegisterMetaType<NotifierPixmap>();
    qDBusRegisterMetaType<NotifierPixmaps>();
    qDBusRegisterMetaType<NotifierToolTip>();
    bus_.registerObject(QString::fromUtf16(statusNotifier::itemPath), this,
                        QDBusConnection::ExportAllProperties | QDBusConnection::ExportAllSlots);
    registerItem(u"org.kde.StatusNotifierItem-%1-%2"_s.arg(QCoreApplication::applicationPid())
                     .arg(connectionName_.section(u'-', 1)));
}

StatusNotifierItem::~StatusNotifierItem() { QDBusConnection::disconnectFromBus(connectionName_); }

void StatusNotifierItem::registerItem(const QString& service) {
    // The bus keeps the order of a connection's calls: the name is there when the registrar looks for it.
    QDBusMessage naming = QDBusMessage::createMethodCall(
        u"org.freedesktop.DBus"_s, u"/org/freedesktop/DBus"_s, u"org.freedesktop.DBus"_s, u"RequestName"_s);
    bus_.asyncCall(naming << service << uint{0});
    const QString watcher = QString::fromUtf16(statusNotifier::watcherService);
    QDBusMessage registration = QDBusMessage::createMethodCall(
        watcher, QString::fromUtf16(statusNotifier::watcherPath), watcher, u"RegisterStatusNotifierItem"_s);
    auto* const registering = new QDBusPendingCallWatcher(bus_.asyncCall(registration << service), this);
    const auto registered = [this](QDBusPendingCallWatcher* call) {
        if (QDBusPendingReply<>(*call).isError())
            events_.iconDropped();
        else
            events_.iconTaken();
    };
    // From the event loop, because a dropped item is deleted, and its call with it.
    connect(registering, &QDBusPendingCallWatcher::finished, this, registered, Qt::QueuedConnection);
}

void StatusNotifierItem::Activate(int, int) {
    events_.iconMouse(iconMessage::leftDown);
    events_.iconMouse(iconMessage::leftUp);
}

void StatusNotifierItem::SecondaryActivate(int, int) {
    events_.iconMouse(iconMessage::middleDown);
    events_.iconMouse(iconMessage::middleUp);
}

void StatusNotifierItem::ContextMenu(int, int) {
    events_.iconMouse(iconMessage::rightDown);
    events_.iconMouse(iconMessage::rightUp);
}

void StatusNotifierItem::Scroll(int, const QString&) { events_.iconMouse(iconMessage::wheel); }

} // namespace quarvel
