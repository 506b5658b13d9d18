#include "archive/airport_folders.h"
#include "shell/frmMain.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {

/// Escape drops a draft that is offered. Else it takes away what lies on top: the information, then the list
/// that still lies over an airport, then the airport that is being entered. In the search state it is a key
/// like any other.
void frmMain::Form_KeyDown(KeyDown& key) {
    if (key.key != Qt::Key_Escape || key.modifiers != Qt::NoModifier) return;
    key.used = true;
    if (newAirport_.offer())
        txtRwy_OfferRefused();
    else if (c->fraMail.isShown())
        cmdEsciMail_Click();
    else if (c->fraRicerca.isShown() && c->Frame4.isShown())
        takeResultsAway();
    else if (c->Frame3.isShown())
        leaveNewAirport();
    else
        key.used = false;
}

void frmMain::takeResultsAway() {
    // The focus would go on to the name box, or nowhere.
    if (c->lstWords.widget().hasFocus()) c->txtRwy[IcaoCode].setFocus();
    c->fraRicerca.setShown(Shown::No);
    c->Image1[1].setShown(c->Image1[0].isShown() ? Shown::Yes : Shown::No); // its place, among the others
}

void frmMain::leaveNewAirport() {
    if (isAnythingTyped() && prompts_.askOwn(*this, u"0221"_s) != Answer::Yes) return;
    if (c == nullptr) return;
    endDraft();       // what was typed stays
    ClearAllFields(); // before the focus moves: a field that held something would be judged when it is left
    LockFields();
    backToSearch();
    for (const QString& airport : std::exchange(madeFolders_, {})) removeEmptyAirportFolders(airport);
}

bool frmMain::isAnythingTyped() const {
    bool typed = false;
    c->txtRwy.forEach([&](int /*index*/, const TextBox& field) { typed = typed || !field.text().isEmpty(); });
    return typed;
}

} // namespace quarvel
