#pragma once

#include "files/result.h"

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace quarvel {

inline QByteArray inputBytes(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)};
}

/// What must hold of whatever was read; the input of a run in which it does not is kept as a finding.
inline void mustHold(bool claim) {
    if (!claim) std::abort();
}

/// Whether what was read can be written; what cannot is refused for characters that the user is told.
inline bool isWritten(const Result<QByteArray>& saved) {
    if (saved) return true;
    mustHold(saved.failure().fault == Fault::NotInCodePage || saved.failure().fault == Fault::Ambiguous);
    mustHold(!saved.failure().detail.isEmpty());
    return false;
}

} // namespace quarvel
