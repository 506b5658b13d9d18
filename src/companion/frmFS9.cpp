#include "companion/frmFS9.h"

#include "platform/x11.h"
#include "prompts/own_messages.h"
#include "text/rounding.h"

#include <QTimer>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr FormDesign design{.name = "frmFS9",
                            .caption = u"TASTO SX ZOOM IN - TASTO DX ZOOM OUT",
                            .clientWidth = 5760,
                            .clientHeight = 6465,
                            .scale = scalePixels,
                            .background = colour::title,
                            .border = Border::Sizable,
                            .menus = Menus::Bar};

} // namespace

frmFS9::frmFS9(const frmFS9Needs& needs)
    : FormOf(design, needs.windows), state_(needs.state), paths_(needs.paths), language_(needs.language),
      prompts_(needs.prompts), services_(needs.services) {}

void frmFS9::wire() {
    c->Image1.mouseDown.calls(this, &frmFS9::Image1_MouseDown);
    c->Picture1.wheelTurned.calls(this, &frmFS9::Picture1_WheelTurned);
    c->Picture1.dragged.calls(this, &frmFS9::Picture1_Dragged);
    c->HScroll1.scrolled.calls(this, &frmFS9::HScroll1_Scroll);
    c->HScroll1.changed.calls(this, &frmFS9::HScroll1_Change);
    c->VScroll1.scrolled.calls(this, &frmFS9::VScroll1_Scroll);
    c->VScroll1.changed.calls(this, &frmFS9::VScroll1_Change);
    c->mnuAeroporto.clicked.calls(this, &frmFS9::mnuAeroporto_Click);
    c->mnuNuovaproc.clicked.calls(this, &frmFS9::mnuNuovaproc_Click);
    c->mnuProcScelta.clicked.calls(this, &frmFS9::mnuProcScelta_Click);
    c->mnuRipris.clicked.calls(this, &frmFS9::mnuRipris_Click);
    c->mPopExit.clicked.calls(this, &frmFS9::mPopExit_Click);
}

void frmFS9::forgetControls() {
    chart_.reset();
    FormOf::forgetControls();
}

void frmFS9::Form_Load() {
    Resizer = std::make_unique<clsResize>();
    Resizer->setSourceForm(this);
    language_.MLSApplyLanguage(*this);
    if (c == nullptr) return;
    giveOwnTexts();
    TwipsPerPixelX = static_cast<qint32>(roundHalfEven(services_.screen.twipsPerPixelX()));
    TwipsPerPixelY = static_cast<qint32>(roundHalfEven(services_.screen.twipsPerPixelY()));
    ZoomLevel = 0;
    wasMinimised_ = false;
    hasPicture_ = false;
    chart_.emplace(c->Picture1, c->Image1, c->HScroll1, c->VScroll1,
                   TwipsPerPixel{TwipsPerPixelX, TwipsPerPixelY}, ZoomLevel);
    c->Picture1.setFocus();
    centreOn(services_.screen.whole());
    keepOnTop(); // before the icon, which takes the window's handle
    addIcon();
    state_.CompanionMode = showsChart;
    LoadCompanionPicture();
}

void frmFS9::giveOwnTexts() {
    if (c == nullptr) return;
    c->Picture1.setSpokenName(windowCaption()); // which says what the mouse does there
    c->HScroll1.setSpokenName(standingText(language_, u"0163"_s));
    c->VScroll1.setSpokenName(standingText(language_, u"0164"_s));
}

void frmFS9::Form_Resize() {
    if (Resizer) Resizer->ResizeControls();
    if (!isMinimised()) {
        if (std::exchange(wasMinimised_, false)) askToStayAbove(*window());
        return;
    }
    wasMinimised_ = true;
    c->mnuRipris.setUsable(Usable::Yes);
    // Without anybody to show the icon a hidden window would be lost, and with it a box that it shows: it
    // stays in the task bar. The toolkit is still busy with minimising the window and hides it only
    // afterwards.
    if (services_.notificationArea.isThere() && !hasOwnBox())
        QTimer::singleShot(0, window(), [this] {
            if (isMinimised()) hide();
        });
}

Closing frmFS9::Form_QueryUnload(UnloadReason reason) {
    if (reason == UnloadReason::ControlMenu) return Closing::Cancel;
    removeIcon();
    return Closing::GoAhead;
}

void frmFS9::Form_Unload() {
    Resizer.reset();
    setMinimisedState();
    hide();
}

} // namespace quarvel
