#include "shell/frmMain.h"

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr FormDesign design{.name = "frmMain",
                            .caption = u"Quarvel - LE CARTINE PROCEDURALI SEMPRE A PORTATA DI MANO",
                            .clientWidth = frmMain::insideTwips.width(),
                            .clientHeight = frmMain::insideTwips.height(),
                            .background = colour::window};

} // namespace

frmMain::frmMain(const frmMainNeeds& needs)
    : FormOf(design, needs.windows), state_(needs.state), paths_(needs.paths), language_(needs.language),
      prompts_(needs.prompts), services_(needs.services), beforeReplacing_(needs.beforeReplacing),
      presenter_(needs.presenter), newAirport_(needs.drafts) {}

void frmMain::wire() {
    c->txtNomeAeroporto.events.keyPress.calls(this, &frmMain::txtNomeAeroporto_KeyPress);
    c->txtNomeAeroporto.events.keyUp.calls(this, &frmMain::txtNomeAeroporto_KeyUp);
    c->txtNomeAeroporto.events.cut.calls(this, &frmMain::tellCutText);
    c->txtNomeAeroporto.events.entered.calls(this, &frmMain::openTypedName);
    c->lstWords.clicked.calls(this, &frmMain::lstWords_Click);
    c->cmdElabora.clicked.calls(this, &frmMain::cmdElabora_Click);
    c->txtRwy.forEach([this](int index, TextBox& field) {
        field.events.keyPress.calls(this, &frmMain::txtRwy_KeyPress, index);
        field.events.lostFocus.calls(this, &frmMain::txtRwy_LostFocus, index);
        field.events.cut.calls(this, &frmMain::tellCutText);
        field.events.edited.calls(this, &frmMain::txtRwy_Edited);
        field.events.offerTaken.calls(this, &frmMain::txtRwy_OfferTaken);
        field.events.offerRefused.calls(this, &frmMain::txtRwy_OfferRefused);
    });
    c->cmdSave.clicked.calls(this, &frmMain::cmdSave_Click);
    c->cmdReset.clicked.calls(this, &frmMain::cmdReset_Click);
    c->cmdGrafica.clicked.calls(this, &frmMain::cmdGrafica_Click);
    c->cmdStampa.clicked.calls(this, &frmMain::cmdStampa_Click);
    c->cmdAzzera.clicked.calls(this, &frmMain::cmdAzzera_Click);
    c->cmdInfo.clicked.calls(this, &frmMain::cmdInfo_Click);
    c->cmdEsci.clicked.calls(this, &frmMain::cmdEsci_Click);
    c->cmdEsciMail.clicked.calls(this, &frmMain::cmdEsciMail_Click);
    c->Label15.clicked.calls(this, &frmMain::Label15_Click);
    c->Label15.mouseMoved.calls(this, &frmMain::Label15_MouseMove);
    c->ImgLingua.forEach(
        [this](int index, Image& flag) { flag.clicked.calls(this, &frmMain::ImgLingua_Click, index); });
}

void frmMain::Form_Load() {
    presenterTextPath_.clear();
    madeFolders_.clear();
    newAirport_.end();
    MLSFillMenuLanguages();
    language_.MLSApplyLanguage(*this);
    giveOwnTexts();
    centreOn(services_.screen.whole());
}

void frmMain::Form_Activate() {
    if (c != nullptr && c->txtNomeAeroporto.isUsable()) c->txtNomeAeroporto.setFocus();
}

void frmMain::setAirportDataShown(Shown shown) {
    c->Frame4.setShown(shown);
    c->Frame5.setShown(shown);
    c->imgAeroporto.setShown(shown);
    for (Label* heading : {&c->Label2, &c->Label11, &c->Label3, &c->Label4, &c->Label5})
        heading->setShown(shown);
    for (const int position : {Longitude, Latitude, Elevation, TransitionAltitude, IcaoCode})
        c->txtRwy[position].setShown(shown);
    showSearchHint();
}

void frmMain::ShowAirportData() { setAirportDataShown(Shown::Yes); }

void frmMain::HideAirportData() { setAirportDataShown(Shown::No); }

void frmMain::ShowDecorations() {
    c->Image1.forEach([](int /*index*/, Image& decoration) { decoration.setShown(Shown::Yes); });
    c->Frame2.setShown(Shown::Yes);
}

void frmMain::HideDecorations() {
    c->Image1.forEach([](int /*index*/, Image& decoration) { decoration.setShown(Shown::No); });
    c->Frame2.setShown(Shown::No);
}

void frmMain::UnlockFields() {
    c->txtRwy.forEach([](int /*index*/, TextBox& field) { field.setEditing(Editing::Free); });
}

void frmMain::LockFields() {
    c->txtRwy.forEach([](int /*index*/, TextBox& field) { field.setEditing(Editing::Locked); });
}

void frmMain::ClearAllFields() {
    c->txtRwy.forEach([](int /*index*/, TextBox& field) { field.setText({}); });
    c->txtNomeAeroporto.setText({});
    c->cmdElabora.setUsable(Usable::No);
}

} // namespace quarvel
