#include "archive/airport_folders.h"
#include "archive/name_rules.h"
#include "archive/opening.h"
#include "archive/record_file.h"
#include "forms/command.h"
#include "pictures/picture.h"
#include "shell/frmMain.h"
#include "text/key_filter.h"
#include "text/strings.h"

#include <QPointer>
#include <memory>

using namespace Qt::StringLiterals;

namespace quarvel {

/// What a failed opening puts back, so that the window is as it was before the command.
struct frmMain::Before {
    QString currentAirport;
    QString currentIcao;
    QString name;
    int cursor;              ///< in the name box
    QPointer<QWidget> focus; ///< the widget that had it
    Shown results;
    Shown firstDecoration;
    Editing fields;
};

frmMain::Before frmMain::before() const {
    const auto shown = [](const WidgetControl& control) {
        return control.isShown() ? Shown::Yes : Shown::No;
    };
    return {state_.CurrentAirport,      state_.CurrentIcao,
            c->txtNomeAeroporto.text(), c->txtNomeAeroporto.cursor(),
            window()->focusWidget(),    shown(c->fraRicerca),
            shown(c->Image1[1]),        c->txtRwy[0].isLocked() ? Editing::Locked : Editing::Free};
}

void frmMain::putBack(const Before& before) {
    state_.CurrentAirport = before.currentAirport;
    state_.CurrentIcao = before.currentIcao;
    c->txtNomeAeroporto.setText(before.name);
    c->txtNomeAeroporto.placeCursor(before.cursor);
    c->fraRicerca.setShown(before.results);
    c->Image1[1].setShown(before.firstDecoration);
    before.fields == Editing::Locked ? LockFields() : UnlockFields();
    if (before.focus) before.focus->setFocus();
}

void frmMain::txtNomeAeroporto_KeyPress(char16_t& key) { key = UpperCaseKey(key); }

void frmMain::txtNomeAeroporto_KeyUp(int key) {
    c->cmdElabora.setUsable(Usable::Yes);
    c->Image1[1].setShown(Shown::No);
    c->fraRicerca.setShown(Shown::Yes);
    const auto listing = std::make_shared<const ArchiveListing>(
        search_.list(paths_.archiveFolder(), c->txtNomeAeroporto.text()));
    c->lstWords.setRows(listing->size(), [listing](int row) { return listing->text(row); });
    if (listing->size() == 0)
        c->lstWords.setHint(listing->isReadable() ? emptyListHint() : hintFor(ArchiveState::Unreadable));
    if (key == Qt::Key_Down && listing->size() > 0) c->lstWords.setFocus();
}

void frmMain::lstWords_Click() {
    const Before asItWas = before();
    const QString entry = c->lstWords.selectedText();
    c->txtNomeAeroporto.setText(entry.mid(1, entry.size() - 2)); // without the brackets of a folder
    c->fraRicerca.setShown(Shown::No);
    c->Image1[1].setShown(Shown::Yes);
    OpenAirport(asItWas);
}

void frmMain::cmdElabora_Click() { OpenAirport(before()); }

/// Return in the name box: the button below it. Where there is nothing to open it is a key like any other.
void frmMain::openTypedName() {
    if (!c->cmdElabora.isUsable() || c->txtNomeAeroporto.text().isEmpty()) return;
    if (beginsCommand(c->txtNomeAeroporto.widget())) cmdElabora_Click();
}

void frmMain::OpenAirport(const Before& before) {
    const QString name = c->txtNomeAeroporto.text();
    if (const Result<void> allowed = checkAirportName(name, NameUse::Existing); !allowed) {
        putBack(before);
        prompts_.tell(*this, Task::NameAirport, allowed.failure());
        return;
    }
    state_.CurrentAirport = name;
    const Result<bool> hasData = hasDataFile(paths_, name);
    if (!hasData) {
        putBack(before);
        prompts_.tell(*this, Task::ReadRecord, hasData.failure());
        return;
    }
    hasData.value() ? showAirport(name, before) : offerNewAirport(name, before);
}

void frmMain::offerNewAirport(const QString& name, const Before& before) {
    UnlockFields();
    const Answer answer = prompts_.ask(*this, u"0013"_s, u"0014"_s, Buttons::OkCancel, BoxIcon::Critical);
    if (c == nullptr) return;
    answer == Answer::Ok ? startNewAirport(name, before) : backToSearch();
}

void frmMain::backToSearch() {
    HideAirportData();
    c->Frame3.setShown(Shown::No);
    endDraft();
    ShowDecorations();
    c->txtNomeAeroporto.setText({});
    c->txtRwy[IcaoCode].setText({});
    c->txtNomeAeroporto.setUsable(Usable::Yes);
    c->txtNomeAeroporto.setFocus();
    c->cmdElabora.setUsable(Usable::No);
}

void frmMain::startNewAirport(const QString& name, const Before& before) {
    const Result<AirportFolders> made = createAirportFolders(paths_, name);
    if (!made) {
        putBack(before);
        const bool refusedName = made.failure().fault == Fault::BadName;
        prompts_.tell(*this, refusedName ? Task::NameAirport : Task::MakeFolders, made.failure());
        return;
    }
    recordShown_.reset();
    if (made.value() == AirportFolders::Made) madeFolders_.append(paths_.airportFolder(name).valueOr({}));
    ShowAirportData();
    c->Frame5.setShown(Shown::No);
    c->lstWords.setHint({}); // what it said has been done
    c->cmdElabora.setUsable(Usable::No);
    c->Frame3.setShown(Shown::Yes);
    c->txtNomeAeroporto.setUsable(Usable::Yes);
    c->txtRwy[IcaoCode].setFocus();
    beginNewDraft(name);
}

void frmMain::showAirport(const QString& name, const Before& before) {
    const Result<AirportRecord> record = paths_.dataFile(name).then(readRecord);
    if (!record) {
        putBack(before);
        prompts_.tell(*this, Task::ReadRecord, record.failure());
        return;
    }
    // The picture is read before anything is shown, so that a damaged one leaves the window as it was.
    const QString icao = record.value().values[IcaoCode];
    const Result<bool> pictured = hasPicture(paths_, name, icao);
    const Result<Picture> picture = pictured.then([&](bool is) {
        return is ? paths_.picture(name, icao).then(Picture::read) : Result<Picture>(Picture());
    });
    if (!picture) {
        putBack(before);
        prompts_.tell(*this, Task::ReadAirportPicture, picture.failure());
        return;
    }
    recordShown_ = record.value();
    fillFields(record.value());
    c->Frame3.isShown() ? beginDraft(name, typedFields()) : endDraft();
    presentAirport(name);
    HideDecorations();
    ShowAirportData();
    c->txtRwy[IcaoCode].setFocus(); // what was used to open the airport is hidden or disabled
    if (!pictured.value()) {
        endWithoutPicture(name);
        return;
    }
    c->imgAeroporto.setPicture(picture.value());
    c->cmdElabora.setUsable(Usable::No);
    c->txtNomeAeroporto.setUsable(Usable::No);
    if (const auto& shortfall = picture.value().shortfall())
        prompts_.tell(*this, Task::ShowAirportPictureInPart, *shortfall);
}

void frmMain::fillFields(const AirportRecord& record) {
    state_.CurrentIcao = record.values[IcaoCode];
    c->txtRwy.forEach([&](int position, TextBox& field) {
        field.setText(record.values[static_cast<std::size_t>(position)]);
    });
}

void frmMain::presentAirport(const QString& name) {
    if (state_.MLSCurrentLanguage != u"Italiano"_s || !staysInFolder(state_.CurrentIcao)) return;
    presenterTextPath_ = paths_.presenterText(name, state_.CurrentIcao).valueOr({});
    c->TxtFile.setText({}); // without a file of its own, no other airport's text is read
    presenter_.LoadTextFile(presenterTextPath_, c->TxtFile);
    presenter_.PresentAirport(c->TxtFile);
}

void frmMain::endWithoutPicture(const QString& name) {
    // The name that is looked for: a picture that differs in letter case may well lie there.
    const QString folder = paths_.generalFolder(name).valueOr(paths_.archiveFolder());
    const QString wanted = folder + u'/' + trimBlanks(state_.CurrentIcao) + u".gif"_s;
    const QString detail = prompts_.textOn(u"0222"_s, wanted);
    static_cast<void>(prompts_.ask(*this, u"0031"_s, u"0032"_s, Buttons::Ok, BoxIcon::Information, detail));
    unload();
    services_.process.endNow();
}

} // namespace quarvel
