#include "safekeeping/kept_draft.h"

namespace quarvel {

void KeptDraft::begin(const QString& file, const QString& saved) {
    file_ = file;
    saved_ = saved;
    own_ = Own::Not;
    while (drafts_->newest(file) == saved) drafts_->dropNewest(file); // saved meanwhile, whoever did it
}

void KeptDraft::beginAgain() {
    if (!isEnded()) begin(file_, saved_);
}

void KeptDraft::typed(const QString& text) {
    if (isEnded()) return;
    if (text == saved_) {
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

void KeptDraft::refused() { drafts_->dropNewest(file_); }

void KeptDraft::saved(const QString& text) {
    if (isEnded()) return;
    saved_ = text;
    if (own_ == Own::Not) return; // what is offered and was not taken has not been saved
    drafts_->dropAll(file_);
    own_ = Own::Not;
}

} // namespace quarvel
