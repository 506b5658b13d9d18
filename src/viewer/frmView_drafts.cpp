#include "prompts/own_messages.h"
#include "viewer/frmView.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// The beginning of a text, on one line, short enough to be quoted in a box.
QString beginningOf(const QString& text) {
    constexpr qsizetype longest = 30;
    const QString line = text.simplified();
    return line.size() <= longest ? line : line.left(longest) + u'\u2026';
}

} // namespace

QString frmView::draftFor(const NoteKind& kind, const QString& chart) const {
    return draftName(state_.CurrentAirport, familyFolderName(FamilyMode), noteFileName(kind, chart));
}

bool frmView::hasDraft(const QString& chart) const {
    const auto kinds = notesOf(FamilyMode);
    return std::any_of(kinds.begin(), kinds.end(), [&](const NoteKind& kind) {
        return drafts_.newest(draftFor(kind, chart)).has_value();
    });
}

void frmView::beginDrafts(const QString& chart) {
    endDrafts();
    for (const NoteKind& kind : notesOf(FamilyMode))
        keptOf(kind.box).begin(draftFor(kind, chart), boxOf(kind.box).text());
    showOffers();
}

void frmView::endDrafts() {
    for (KeptDraft& kept : kept_) kept.end();
}

void frmView::draftsAreSaved() {
    for (const NotesBox box : allNotesBoxes) keptOf(box).saved(boxOf(box).text());
    showOffers();
}

void frmView::Text_Edited(NotesBox box) {
    keptOf(box).typed(boxOf(box).text());
    showOffer(box);
    c->List1.signsChanged();
}

void frmView::Text_OfferTaken(NotesBox box) {
    const std::optional<QString> draft = keptOf(box).offer();
    if (!draft) return;
    keptOf(box).taken();
    boxOf(box).replaceText(*draft);
}

void frmView::Text_OfferRefused(NotesBox box) {
    keptOf(box).refused();
    showOffer(box);
    c->List1.signsChanged();
}

void frmView::showOffer(NotesBox box) {
    const std::optional<QString> draft = keptOf(box).offer();
    if (!draft || boxOf(box).hasOwnUndo())
        boxOf(box).hideOffer();
    else
        boxOf(box).showOffer({filledIn(standingText(language_, u"0201"_s), beginningOf(*draft)),
                              standingText(language_, u"0202"_s)});
}

void frmView::showOffers() {
    for (const NotesBox box : allNotesBoxes) showOffer(box);
    c->List1.signsChanged();
}

} // namespace quarvel
