#pragma once

#include <QString>

namespace quarvel {

/// The characters of a text in reverse order.
[[nodiscard]] QString ReverseString(QString text);

/// A file name without its last four characters; empty for four characters or fewer.
[[nodiscard]] QString StripExtension(const QString& name);

/// The last three characters of a file name, or all of a shorter one.
[[nodiscard]] QString GetExtension(const QString& name);

/// A window's title as the toolkit is to get it, so that it shows just this: for no title it would show the
/// program's name, and it takes "[*]" for a sign of its own.
[[nodiscard]] QString toolkitTitle(QString title);

/// A text without the blanks (U+0020 only) at its two ends.
[[nodiscard]] QString trimBlanks(const QString& text);

} // namespace quarvel
