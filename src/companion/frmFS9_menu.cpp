#include "companion/core/tray_record.h"
#include "companion/frmFS9.h"
#include "platform/x11.h"

#include <QCursor>
#include <QMenu>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {

void frmFS9::addIcon() {
    const auto picture = static_cast<quintptr>(icon().cacheKey());
    state_.TrayIconData = trayIcon(window()->winId(), picture, language_.MLSGetString(u"0023"_s));
    services_.notificationArea.notifyIcon(NotifyAction::Add, encodeTrayIcon(state_.TrayIconData), *this);
}

void frmFS9::removeIcon() {
    services_.notificationArea.notifyIcon(NotifyAction::Delete, encodeTrayIcon(state_.TrayIconData), *this);
}

QIcon frmFS9::icon() const { return window()->windowIcon(); }

void frmFS9::iconMouse(int message) { Form_MouseMove(0, 0, static_cast<float>(message), 0); }

void frmFS9::iconLost() {
    if (c != nullptr && !window()->isVisible()) showInTaskBar();
}

void frmFS9::Form_MouseMove(int /*button*/, int /*shift*/, float x, float /*y*/) {
    if (c == nullptr) return;
    switch (decodeMouseMove(x, HorizontalUnit::Pixels, services_.screen.twipsPerPixelX())) {
    case IconCommand::OpenMenu: c->mApps.menu()->popup(QCursor::pos()); break;
    case IconCommand::ComeBack: comeBack(); break;
    }
}

void frmFS9::comeBack() {
    setNormalState();
    bringToForeground();
}

void frmFS9::showAbove() {
    show();
    askToStayAbove(*window());
}

void frmFS9::mnuAeroporto_Click() { switchTo(showsAirport); }

void frmFS9::mnuProcScelta_Click() { switchTo(showsChart); }

void frmFS9::switchTo(qint16 mode) {
    const qint16 before = std::exchange(state_.CompanionMode, mode);
    // What cannot be shown leaves everything with the picture on display, the menu included.
    if (LoadCompanionPicture() == Loaded::No) state_.CompanionMode = before;
    const bool chart = state_.CompanionMode == showsChart;
    c->mnuAeroporto.setUsable(chart ? Usable::Yes : Usable::No);
    c->mnuProcScelta.setUsable(chart ? Usable::No : Usable::Yes);
    comeBack();
    showAbove();
}

void frmFS9::mnuRipris_Click() {
    LoadCompanionPicture();
    comeBack();
    c->mnuRipris.setUsable(Usable::No);
    showAbove();
}

void frmFS9::mnuNuovaproc_Click() {
    clearImages();
    removeIcon();
    unload();
    windows().show(WindowName::frmView);
}

void frmFS9::mPopExit_Click() {
    if (prompts_.ask(*this, u"0025"_s, u"0026"_s, Buttons::YesNo, BoxIcon::Question) != Answer::Yes) return;
    removeIcon();
    services_.process.endNow();
}

} // namespace quarvel
