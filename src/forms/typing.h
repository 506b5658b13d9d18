#pragma once

#include "forms/text_box.h"

#include <QString>

class QKeyEvent;

namespace quarvel {

/// A text with every character put through a text box's key-press handler, as if typed one by one.
[[nodiscard]] QString filteredKeys(const TextBoxEvents& events, const QString& typed);

/// The same key press with its typed text filtered.
[[nodiscard]] QKeyEvent filteredKeyPress(const TextBoxEvents& events, const QKeyEvent& event);

/// The line breaks in a text, of whichever kind.
[[nodiscard]] qsizetype lineBreaks(const QString& text);

/// Takes out of a text that was just edited what was inserted from its first line break on, up to the cursor.
void keepFirstLine(QString& text, qsizetype& cursor);

/// Shortens a text that was just edited so that it keeps to `longest` characters: what goes is the end of
/// what was inserted, in front of the cursor. `cursor` follows.
void keepToLength(QString& text, qsizetype& cursor, qsizetype longest);

} // namespace quarvel
