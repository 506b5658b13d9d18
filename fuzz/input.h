#pragma once

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

} // namespace quarvel
