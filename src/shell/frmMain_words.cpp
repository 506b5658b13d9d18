#include "archive/listing.h"
#include "prompts/own_messages.h"
#include "shell/frmMain.h"

#include <array>

using namespace Qt::StringLiterals;

namespace quarvel {

void frmMain::giveOwnTexts() {
    if (c == nullptr) return;
    const auto name = [this](int position, const Label& heading, const QString& row = {}) {
        c->txtRwy[position].setSpokenName(*heading.caption() + row);
    };
    name(IcaoCode, c->Label2);
    name(TransitionAltitude, c->Label11);
    name(Longitude, c->Label3);
    name(Latitude, c->Label4);
    name(Elevation, c->Label5);
    name(VorIdent, c->Label9);
    name(VorFrequency, c->Label10);
    name(NdbIdent, c->Label12);
    name(NdbFrequency, c->Label13);
    const std::array<const Label*, valuesPerRunwayRow> columns = {&c->Label6_0, &c->Label6_1, &c->Label6_2,
                                                                  &c->Label7, &c->Label8};
    for (int row = 0; row < runwayRows; ++row)
        for (int column = 0; column < valuesPerRunwayRow; ++column)
            name(runwayPosition(row, static_cast<RunwayColumn>(column)),
                 *columns[static_cast<std::size_t>(column)], u" "_s + QString::number(row + 1));
    c->txtNomeAeroporto.setSpokenName(*c->Label1.caption());
    c->lstWords.setSpokenName(*c->Label16.caption());
    c->fraRicerca.setSpokenName(*c->Label16.caption());
    c->ImgLingua.forEach([](int /*index*/, Image& flag) { flag.setSpokenName(*flag.toolTip()); });
    const QString decorationName = standingText(language_, u"0161"_s);
    c->Image1.forEach([&](int /*index*/, Image& decoration) { decoration.setSpokenName(decorationName); });
    c->imgAeroporto.setSpokenName(standingText(language_, u"0160"_s));
    showHints();
    showOffer();
}

void frmMain::showHints() {
    // A new airport has cleared what the list said: the next key in the name box says it again.
    if (c->lstWords.hasHint()) c->lstWords.setHint(emptyListHint());
    showSearchHint();
}

void frmMain::showSearchHint() {
    if (c->Label2.isShown()) { // the data stand in its place
        c->searchHint.showText({});
        return;
    }
    const ArchiveState archive = archiveState(paths_.archiveFolder());
    c->searchHint.showText(archive == ArchiveState::Filled ? standingText(language_, u"0151"_s)
                                                           : hintFor(archive));
}

QString frmMain::emptyListHint() { return hintFor(archiveState(paths_.archiveFolder())); }

QString frmMain::hintFor(ArchiveState archive) {
    switch (archive) {
    case ArchiveState::Filled: return standingText(language_, u"0152"_s);
    case ArchiveState::Empty: return standingText(language_, u"0150"_s);
    case ArchiveState::Unreadable: break;
    }
    return filledIn(standingText(language_, u"0153"_s), breakablePath(paths_.archiveFolder()));
}

} // namespace quarvel
