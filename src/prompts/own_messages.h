#pragma once

#include "files/result.h"
#include "language/language_support.h"

#include <QString>
#include <span>

namespace quarvel {

/// A numbered message of the program's own, with the Italian text that stands in for it when the language
/// file lacks it.
struct OwnMessage {
    const char16_t* number;
    const char16_t* italian;
};

/// All of them, by number.
[[nodiscard]] std::span<const OwnMessage> ownMessages();

/// The built-in Italian text of a number; empty for a number that is not the program's own.
[[nodiscard]] QString builtInText(const QString& number);

/// A message's text in the current language, or its built-in one. The two characters \n in a language file
/// are a line break.
[[nodiscard]] QString ownText(modLanguageSupport& language, const QString& number);

/// A text with its places %1 and %2 filled in, as far as it has them: a language file may lack either, and
/// what is filled in may itself hold a percent sign.
[[nodiscard]] QString filledIn(const QString& text, const QString& first, const QString& second = {});

/// Why something failed, to which file, and what to do about it.
[[nodiscard]] QString reasonText(modLanguageSupport& language, const Failure& failure);

/// A message's text for a place on a window: while no language is current it is the built-in one, as the
/// window's other texts are, and the setting file is not asked for a language.
[[nodiscard]] QString standingText(modLanguageSupport& language, const QString& number);

} // namespace quarvel
