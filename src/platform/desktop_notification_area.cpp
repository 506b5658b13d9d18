#include "platform/desktop_notification_area.h"

#include "platform/embedded_icon.h"
#include "platform/embedding_host.h"
#include "platform/status_notifier_host.h"
#include "platform/status_notifier_item.h"
#include "text/code_page.h"

#include <QApplication>
#include <QTimer>
#include <QtEndian>
#include <algorithm>
#include <utility>

namespace quarvel {
namespace {

constexpr int replacementMilliseconds = 2000; // in which another notification area takes over an icon

/// The icon that a record is about: its window and its identifier.
using IconKey = std::pair<quint32, quint32>;

IconKey keyOf(const NotificationArea::Record& record) {
    return {qFromLittleEndian<quint32>(record.data() + 4), qFromLittleEndian<quint32>(record.data() + 8)};
}

void bringForward(QWidget& box, int message) {
    if (message == iconMessage::mouseMove) return;
    box.showNormal();
    box.raise();
    box.activateWindow();
}

QString tipOf(const NotificationArea::Record& record) {
    constexpr qsizetype tipOffset = 24;
    const QByteArrayView field = QByteArrayView(record).sliced(tipOffset);
    const auto end = std::find(field.begin(), field.end(), '\0');
    return decodeCodePage(field.first(end - field.begin()));
}

} // namespace

/// An icon that has been added, and its face on the desktop where it has one.
class DesktopNotificationArea::Icon : public QObject, public ShownIconEvents {
public:
    Icon(const Record& record, IconWindow& window)
        : key_(keyOf(record)), tip_(tipOf(record)), picture_(window.icon()), window_(window) {
        loss_.setSingleShot(true);
        connect(&loss_, &QTimer::timeout, this, [this] { window_.iconLost(); });
    }

    [[nodiscard]] IconKey key() const { return key_; }
    [[nodiscard]] bool isShown() const { return shown_; }

    void showNowhere() { change(Place::Nowhere, nullptr); }
    void showOnBus() {
        if (place_ != Place::OnBus) {
            showNowhere(); // in no instant are there two
            change(Place::OnBus, std::make_unique<StatusNotifierItem>(picture_, tip_, *this));
        }
    }
    void showEmbedded(const EmbeddingHost& host) {
        if (place_ != Place::Embedded) {
            showNowhere();
            change(Place::Embedded, std::make_unique<EmbeddedIcon>(host, picture_, tip_, *this));
        }
    }

    void iconTaken() override {
        shown_ = true;
        loss_.stop();
    }

    void iconDropped() override { showNowhere(); }

    void iconMouse(int message) override {
        const auto tell = [&window = window_, message] {
            // Behind a modal box no window gets the mouse: a click asks for the box, which may be covered.
            if (QWidget* const box = QApplication::activeModalWidget())
                bringForward(*box, message);
            else
                window.iconMouse(message);
        };
        // What is still queued goes with the icon's face: a notification area that ends may leave some.
        if (face_) QMetaObject::invokeMethod(face_.get(), tell, Qt::QueuedConnection);
    }

private:
    enum class Place { Nowhere, OnBus, Embedded };

    void change(Place place, std::unique_ptr<QObject> face) {
        face_ = std::move(face);
        place_ = place;
        if (std::exchange(shown_, false) || loss_.isActive())
            loss_.start(place == Place::Nowhere ? 0 : replacementMilliseconds);
    }

    IconKey key_;
    QString tip_;
    QIcon picture_;
    IconWindow& window_;
    Place place_ = Place::Nowhere;
    bool shown_ = false;
    std::unique_ptr<QObject> face_;
    QTimer loss_; // runs while the icon was to be seen and is not taken by another notification area
};

DesktopNotificationArea::DesktopNotificationArea() = default;
DesktopNotificationArea::~DesktopNotificationArea() = default;

void DesktopNotificationArea::notifyIcon(NotifyAction action, const Record& record, IconWindow& window) {
    const auto found = std::find_if(icons_.begin(), icons_.end(),
                                    [&](const auto& icon) { return icon->key() == keyOf(record); });
    if (action == NotifyAction::Delete && found != icons_.end()) icons_.erase(found);
    if (action == NotifyAction::Add && found == icons_.end()) {
        watchHosts();
        icons_.push_back(std::make_unique<Icon>(record, window));
        showIcons();
    }
}

bool DesktopNotificationArea::isThere() const {
    return std::any_of(icons_.begin(), icons_.end(), [](const auto& icon) { return icon->isShown(); });
}

void DesktopNotificationArea::watchHosts() {
    if (notifierHost_ != nullptr) return;
    notifierHost_ = std::make_unique<StatusNotifierHost>([this] { showIcons(); });
    embeddingHost_ = std::make_unique<EmbeddingHost>([this] { offerIconsAgain(); });
}

void DesktopNotificationArea::showIcons() {
    const StatusNotifierHost::Presence onBus = notifierHost_->presence();
    if (onBus == StatusNotifierHost::Presence::Unknown) return; // it is asked; an icon is not to hop
    for (const auto& icon : icons_) {
        if (onBus == StatusNotifierHost::Presence::Yes)
            icon->showOnBus();
        else if (embeddingHost_->isThere())
            icon->showEmbedded(*embeddingHost_);
        else
            icon->showNowhere();
    }
}

/// A notification area that takes windows has started; it knows nothing of those that another one had.
void DesktopNotificationArea::offerIconsAgain() {
    if (notifierHost_->presence() != StatusNotifierHost::Presence::Yes)
        for (const auto& icon : icons_) icon->showNowhere();
    showIcons();
}

} // namespace quarvel
