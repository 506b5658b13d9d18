#include "viewer/frmView.h"

#include "prompts/own_messages.h"
#include "text/rounding.h"
#include "text/strings.h"

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr double clientWidth = frmView::insideTwips.width();
constexpr double clientHeight = frmView::insideTwips.height();

// The window measures itself in a scale of its own, 12.2888 by 15 units; the chart frame's size in these
// units is what the viewport compares the chart's pixels with.
constexpr FormDesign design{.name = "frmView",
                            .caption = u"Quarvel - LE CARTINE PROCEDURALI SEMPRE A PORTATA DI MANO           "
                                       u"TASTO SX ZOOM IN - TASTO DX ZOOM OUT",
                            .clientWidth = clientWidth,
                            .clientHeight = clientHeight,
                            .scale = customScale(12.2888, 15, clientWidth, clientHeight),
                            .background = colour::window};

} // namespace

frmView::frmView(const frmViewNeeds& needs)
    : FormOf(design, needs.windows), state_(needs.state), paths_(needs.paths), language_(needs.language),
      prompts_(needs.prompts), services_(needs.services), beforeReplacing_(needs.beforeReplacing),
      drafts_(needs.drafts), kept_{KeptDraft(drafts_), KeptDraft(drafts_), KeptDraft(drafts_)} {}

void frmView::wire() {
    c->Option1.forEach([this](int index, OptionButton& option) {
        option.chosen.calls(this, &frmView::Option1_Click, index);
    });
    c->List1.clicked.calls(this, &frmView::List1_Click);
    c->List1.lostFocus.calls(this, &frmView::keepChosenChart);
    c->Text1.events.keyPress.calls(this, &frmView::Text1_KeyPress);
    c->Text2.events.keyPress.calls(this, &frmView::Text2_KeyPress);
    c->Text3.events.keyPress.calls(this, &frmView::Text3_KeyPress);
    for (const NotesBox box : allNotesBoxes) {
        TextBoxEvents& events = boxOf(box).events;
        events.cut.calls(this, &frmView::tellCutText);
        events.edited.calls(this, &frmView::Text_Edited, box);
        events.offerTaken.calls(this, &frmView::Text_OfferTaken, box);
        events.offerRefused.calls(this, &frmView::Text_OfferRefused, box);
    }
    c->cmdSave.clicked.calls(this, &frmView::cmdSave_Click);
    c->Command1.clicked.calls(this, &frmView::Command1_Click);
    c->Command2.clicked.calls(this, &frmView::Command2_Click);
    c->Command3.clicked.calls(this, &frmView::Command3_Click);
    c->Command4.clicked.calls(this, &frmView::Command4_Click);
    c->cmdStampa.clicked.calls(this, &frmView::cmdStampa_Click);
    c->Image1.mouseDown.calls(this, &frmView::Image1_MouseDown);
    c->Picture1.wheelTurned.calls(this, &frmView::Picture1_WheelTurned);
    c->Picture1.dragged.calls(this, &frmView::Picture1_Dragged);
    c->HScroll1.scrolled.calls(this, &frmView::HScroll1_Scroll);
    c->HScroll1.changed.calls(this, &frmView::HScroll1_Change);
    c->VScroll1.scrolled.calls(this, &frmView::VScroll1_Scroll);
    c->VScroll1.changed.calls(this, &frmView::VScroll1_Change);
}

void frmView::forgetControls() {
    chart_.reset();
    FormOf::forgetControls();
}

void frmView::Form_Load() {
    chosenRow_ = -1;
    endDrafts();
    language_.MLSApplyLanguage(*this);
    if (c == nullptr) return;
    giveOwnTexts();
    c->Option1[0].setFocus(); // where the work begins
    TwipsPerPixelX = static_cast<qint32>(roundHalfEven(services_.screen.twipsPerPixelX()));
    TwipsPerPixelY = static_cast<qint32>(roundHalfEven(services_.screen.twipsPerPixelY()));
    chart_.emplace(c->Picture1, c->Image1, c->HScroll1, c->VScroll1,
                   TwipsPerPixel{TwipsPerPixelX, TwipsPerPixelY}, ZoomLevel);
    centreOn(services_.screen.whole());
}

void frmView::Form_Activate() {
    if (c == nullptr) return;
    setWindowCaption(language_.MLSGetString(u"0001"_s) + u' ' + trimBlanks(state_.CurrentAirport) +
                     language_.MLSGetString(u"0002"_s));
    c->Option1.forEach([](int /*index*/, OptionButton& option) { option.clear(); });
    chosenOption_ = -1;
}

Closing frmView::Form_QueryUnload(UnloadReason reason) {
    return reason == UnloadReason::ControlMenu ? Closing::Cancel : Closing::GoAhead;
}

void frmView::giveOwnTexts() {
    if (c == nullptr) return;
    c->List1.setSpokenName(*c->Frame2.caption());
    nameNotes(c->Frame3, c->Text1);
    nameNotes(c->Frame1, c->Text2);
    nameNotes(c->Frame4, c->Text3);
    c->HScroll1.setSpokenName(standingText(language_, u"0163"_s));
    c->VScroll1.setSpokenName(standingText(language_, u"0164"_s));
    nameChart();
    showHints();
    c->List1.setSigns([this](const QString& chart) { return hasDraft(chart); },
                      standingText(language_, u"0204"_s));
    showOffers();
}

void frmView::nameNotes(Frame& frame, MultiLineTextBox& notes) {
    const QString caption = *frame.caption();
    const QString name = caption.isEmpty() ? standingText(language_, u"0165"_s) : caption;
    frame.setSpokenName(name);
    notes.setSpokenName(name);
}

void frmView::nameChart() {
    const QString name = showsChart() ? ChartName : standingText(language_, u"0162"_s);
    c->Image1.setSpokenName(name);
    c->Picture1.setSpokenName(name);
}

void frmView::showHints() {
    if (!showsChart()) c->chartHint.showText(standingText(language_, u"0156"_s));
    const QString folder = c->File1.path();
    c->List1.setHint(folder.isEmpty() ? standingText(language_, u"0154"_s)
                                      : filledIn(standingText(language_, u"0155"_s), breakablePath(folder)));
    const int others = countOtherFormats(c->File1.files());
    c->List1.setRemark(others == 0 ? QString()
                                   : filledIn(standingText(language_, u"0210"_s), QString::number(others)));
}

void frmView::beepIf(ZoomOutcome outcome) {
    if (outcome == ZoomOutcome::Refused) services_.beeper.beep();
}

void frmView::Command1_Click() { beepIf(chart_->zoomInByButton()); }

void frmView::Command2_Click() { beepIf(chart_->zoomOutByButton()); }

void frmView::Image1_MouseDown(int button, float x, float y) { beepIf(chart_->mouseDown(button, x, y)); }

void frmView::Picture1_WheelTurned(const WheelTurn& turn) { beepIf(chart_->wheelTurned(turn)); }

void frmView::Picture1_Dragged(Drag part, QPointF pointer) {
    if (chart_) chart_->dragged(part, pointer); // a drag may end with the window
}

void frmView::Form_KeyDown(KeyDown& key) {
    if (chart_) beepIf(chart_->keyDown(key));
}

void frmView::HScroll1_Scroll() { chart_->horizontalMoved(); }

void frmView::HScroll1_Change() { HScroll1_Scroll(); }

void frmView::VScroll1_Scroll() { chart_->verticalMoved(); }

void frmView::VScroll1_Change() { VScroll1_Scroll(); }

void frmView::Command3_Click() {
    unload();
    windows().show(WindowName::frmMain);
}

void frmView::Command4_Click() {
    hide();
    windows().show(WindowName::frmFS9);
}

void frmView::cmdStampa_Click() { prompts_.printWindow(*this, services_.printer); }

} // namespace quarvel
