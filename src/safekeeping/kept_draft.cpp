#include "safekeeping/kept_draft.h"

namespace quarvel {

void KeptDraft::begin(const QString& file, const QString& saved) {
    file_ = file;
    saved_ = saved;
    standing_.reset();
    own_ = Own::Not;
    dropSaved(); // whoever saved it meanwhile
}

void KeptDraft::beginOver(const QString& file, const QString& saved, const QString& standing) {
    const bool wasTyped = !isEnded() && own_ != Own::Not;
    begin(file, saved);
    const std::optional<QString> newest = drafts_->newest(file);
    if (newest == standing)
        own_ = Own::Taken;
    else if (wasTyped && !newest)
        typed(standing);
    else
        standing_ = standing;
}

void KeptDraft::beginAgain() {
    if (!isEnded()) begin(file_, saved_);
}

void KeptDraft::typed(const QString& text) {
    if (isEnded()) return;
    if (text == saved_ || text == standing_) {
        // Who takes a draft back out has not refused it.
        if (own_ == Own::Typed) drafts_->dropNewest(file_);
        own_ = Own::Not;
        return;
    }
    drafts_->keep(file_, text, own_ == Own::Not ? Drafts::Beside::Others : Drafts::Beside::Older);
    if (own_ == Own::Not) own_ = Own::Typed;
}

std::optional<QString> KeptDraft::offer() const {
    return isEnded() || own_ != Own::Not ? std::nullopt : drafts_->newest(file_);
}

void KeptDraft::refused() {
    const std::optional<QString> text = drafts_->newest(file_);
    while (text && drafts_->newest(file_) == text)
        drafts_->dropNewest(file_); // typed twice, it is there twice
    dropSaved();
}

void KeptDraft::saved(const QString& text) {
    if (isEnded()) return;
    saved_ = text;
    standing_.reset();
    if (own_ == Own::Not) return; // what is offered and was not taken has not been saved
    drafts_->dropNewest(file_);   // one from before that was passed over stays
    own_ = Own::Not;
    dropSaved();
}

void KeptDraft::dropSaved() {
    while (drafts_->newest(file_) == saved_) drafts_->dropNewest(file_);
}

} // namespace quarvel
