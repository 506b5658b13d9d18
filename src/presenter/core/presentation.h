#pragma once

#include "presenter/core/agent.h"

#include <QString>
#include <QStringList>

namespace quarvel {

/// As many pieces as a character is asked to speak, some hours of reading: each is a request that waits.
inline constexpr qsizetype mostPieces = 20'000;

/// The pieces of a text that are spoken one after the other: it is split at every carriage return plus line
/// feed, and empty pieces count. What comes behind the first mostPieces is left out.
[[nodiscard]] QStringList spokenPieces(const QString& text);

/// Asks for one presentation of a text: the character appears, greets, reads the text piece by piece, or says
/// that there is none, waves and leaves. Returns without waiting for any of it.
///
/// `Genie` is the character of an earlier presentation, nullptr before the first, and is set anew. What
/// cannot be done is passed over.
void presentText(AgentControl& Agent, AgentCharacter*& Genie, const QString& text);

} // namespace quarvel
