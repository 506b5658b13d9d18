#pragma once

#include "safekeeping/drafts.h"

#include <QString>
#include <optional>

namespace quarvel {

/// What becomes of the text of one file while it stands where it can be typed over. What differs from the
/// saved text is a draft from the first key on. A draft from before is never put in by itself: it is offered
/// until something is typed, and stays beside what is then typed.
class KeptDraft {
public:
    explicit KeptDraft(Drafts& drafts) : drafts_(&drafts) {}

    /// A file's saved text is shown, and what was typed before it is now a draft to be offered.
    void begin(const QString& file, const QString& saved);
    /// The same, while a text that another file left still stands there. Where it was typed it is a draft of
    /// this file, too, unless that has one already; else only once the user goes on with it.
    void beginOver(const QString& file, const QString& saved, const QString& standing);
    /// The saved text is shown again, by the user's wish.
    void beginAgain();
    /// No file's text is shown any more.
    void end() { file_.clear(); }
    [[nodiscard]] bool isEnded() const { return file_.isEmpty(); }

    /// The user has changed the text to this.
    void typed(const QString& text);
    /// The draft that may be taken; none while the user's own typing stands there.
    [[nodiscard]] std::optional<QString> offer() const;
    /// The offered draft is about to be put in.
    void taken() { own_ = Own::Taken; }
    /// The user does not want the offered draft.
    void refused();
    /// The text was saved. What was typed or taken is no draft any more; one that is only offered stays,
    /// and so does one from before that was passed over.
    void saved(const QString& text);

private:
    /// Whose the newest draft is.
    enum class Own {
        Not,   ///< it is from before
        Typed, ///< what the user has typed since
        Taken  ///< the offered one, which the user has taken and may have gone on with
    };

    void dropSaved();

    Drafts* drafts_;
    QString file_;
    QString saved_;
    std::optional<QString> standing_; ///< what another file left, untouched
    Own own_ = Own::Not;
};

} // namespace quarvel
