#pragma once

#include <QString>
#include <chrono>

namespace quarvel {

/// How long the synthesiser's Italian voice takes for a text, about: 0 for one without a visible character.
[[nodiscard]] std::chrono::milliseconds readingTime(const QString& text);

} // namespace quarvel
