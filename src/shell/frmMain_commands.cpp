#include "files/lookup.h"
#include "forms/compiled_pictures.h"
#include "shell/frmMain.h"

#include <QCursor>

using namespace Qt::StringLiterals;

namespace quarvel {

void frmMain::cmdEsci_Click() {
    if (prompts_.ask(*this, u"0011"_s, u"0012"_s, Buttons::YesNo, BoxIcon::Question) == Answer::Yes)
        services_.process.endNow();
}

void frmMain::cmdInfo_Click() { c->showInformation(); }

void frmMain::cmdEsciMail_Click() {
    // The focus would go on to the first entry field: it goes back to where it came from.
    const QWidget* const focused = window()->focusWidget();
    const bool focusGoes = focused != nullptr && c->fraMail.widget().isAncestorOf(focused);
    if (focusGoes && c->cmdInfo.widget().isVisible()) c->cmdInfo.setFocus();
    c->fraMail.setShown(Shown::No);
}

void frmMain::Label15_MouseMove() {
    c->Label15.setTextColour(QColor(255, 0, 0));
    c->Label15.setCursor(QCursor(compiledPicture("pointer"), 3, 2));
}

void frmMain::Label15_Click() {
    services_.urls.open(u"mailto:"_s + QString::fromUtf16(frmMainControls::supportAddress));
}

void frmMain::cmdStampa_Click() { prompts_.printWindow(*this, services_.printer); }

void frmMain::cmdGrafica_Click() {
    services_.sounds.play(resolvePath(paths_.programFolder(), u"dallas9.wav"_s).valueOr({}));
    unload();
    windows().show(WindowName::frmView);
}

void frmMain::cmdAzzera_Click() {
    ClearAllFields();
    HideAirportData();
    c->txtNomeAeroporto.setUsable(Usable::Yes);
    ShowDecorations();
    c->txtNomeAeroporto.setFocus(); // the command that had it is gone
}

} // namespace quarvel
