#pragma once

#include "platform/shown_icon.h"

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QIcon>
#include <QList>
#include <QObject>
#include <QString>

class QDBusArgument;

namespace quarvel {

/// One size of a picture on the bus, (iiay): width and height in pixels, then its pixels row by row from the
/// top, each as the four bytes alpha, red, green, blue, not premultiplied.
struct NotifierPixmap {
    int width = 0;
    int height = 0;
    QByteArray pixels;
};
using NotifierPixmaps = QList<NotifierPixmap>;

/// A tool tip on the bus, (sa(iiay)ss).
struct NotifierToolTip {
    QString iconName;
    NotifierPixmaps iconPixmap;
    QString title;
    QString text;
};

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap);
QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip);

/// An icon in a notification area that speaks the StatusNotifier protocol: an object on the session bus, on a
/// connection of its own because every icon has the same path there. It registers itself without waiting for
/// the answer and is gone when its connection closes, with the object.
class StatusNotifierItem : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierItem")
    Q_PROPERTY(QString Category MEMBER category_ CONSTANT)
    Q_PROPERTY(QString Id MEMBER id_ CONSTANT)
    Q_PROPERTY(QString Title MEMBER title_ CONSTANT)
    Q_PROPERTY(QString Status MEMBER status_ CONSTANT)
    Q_PROPERTY(int WindowId MEMBER windowId_ CONSTANT)
    Q_PROPERTY(QString IconName MEMBER iconName_ CONSTANT)
    Q_PROPERTY(quarvel::NotifierPixmaps IconPixmap MEMBER iconPixmap_ CONSTANT)
    Q_PROPERTY(quarvel::NotifierToolTip ToolTip MEMBER toolTip_ CONSTANT)
    Q_PROPERTY(bool ItemIsMenu MEMBER itemIsMenu_ CONSTANT)
    Q_PROPERTY(QDBusObjectPath Menu MEMBER menu_ CONSTANT)

public:
    StatusNotifierItem(const QIcon& picture, const QString& tip, ShownIconEvents& events);
    ~StatusNotifierItem() override;

public Q_SLOTS:
    // The host says what a click means, not which button moved: a click was a press and a release. Its
    // position is that of the icon on the screen, which nobody needs.
    void Activate(int x, int y);
    void SecondaryActivate(int x, int y);
    void ContextMenu(int x, int y);
    void Scroll(int delta, const QString& orientation);

private:
    void registerItem(const QString& service);

    ShownIconEvents& events_;
    QString connectionName_;
    QDBusConnection bus_;
    QString category_;
    QString id_;
    QString title_;
    QString status_;
    int windowId_ = 0;
    QString iconName_; // none: a host would prefer it to the picture
    NotifierPixmaps iconPixmap_;
    NotifierToolTip toolTip_;
    bool itemIsMenu_ = false;
    QDBusObjectPath menu_;
};

} // namespace quarvel
