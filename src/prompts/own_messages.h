#pragma once

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

} // namespace quarvel
