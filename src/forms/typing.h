#pragma once

#include "forms/text_box.h"

#include <QString>

class QDropEvent;
class QKeyEvent;

namespace quarvel {

/// A text with every character put through a text box's key-press handler, as if typed one by one.
[[nodiscard]] QString filteredKeys(const TextBoxEvents& events, const QString& typed);

/// The same key press with its typed text filtered.
[[nodiscard]] QKeyEvent filteredKeyPress(const TextBoxEvents& events, const QKeyEvent& event);

enum class OwnUndo { Nothing, Something };

/// Tells the window of a key that takes or refuses the draft that it offers; false for any other key.
[[nodiscard]] bool isUsedByOffer(const TextBoxEvents& events, const QKeyEvent& event, OwnUndo undo);

/// Whether a text holds more than blanks and line breaks from a place on: who pastes a cell of a table does
/// not miss the line break behind it.
[[nodiscard]] bool hasWordsFrom(const QString& text, qsizetype place);

/// What a box makes of a drop before the toolkit does.
enum class DropKind {
    Whole,  ///< as it was proposed: all of the text fits
    Copy,   ///< what fits is copied, and the source keeps all of it
    Refused ///< the source lets it only be moved
};

/// Nothing leaves the source of a drop unless all of it arrives. A file never does: what arrives is its name.
[[nodiscard]] DropKind dropKind(const QDropEvent& event, bool fits);
/// Tells the source what becomes of its text, once the toolkit has taken the drop, or the move of one over
/// the box. The event must have been accepted.
void answerDrop(QDropEvent& event, DropKind kind);

/// The line breaks in a text, of whichever kind.
[[nodiscard]] qsizetype lineBreaks(const QString& text);

/// Takes out of a text that was just edited what was inserted from its first line break on, up to the cursor.
void keepFirstLine(QString& text, qsizetype& cursor);

/// Shortens a text that was just edited so that it keeps to `longest` characters: what goes is the end of
/// what was inserted, in front of the cursor. `cursor` follows.
void keepToLength(QString& text, qsizetype& cursor, qsizetype longest);

} // namespace quarvel
