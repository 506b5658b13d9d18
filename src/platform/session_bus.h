#pragma once

#include <QByteArray>
#include <chrono>

namespace quarvel {

/// How long the window's thread waits for another process at most.
inline constexpr std::chrono::milliseconds busPatience{500};

/// Where the session bus is, as the environment tells: addresses as D-Bus writes them, parted by
/// semicolons.
[[nodiscard]] QByteArray sessionBusAddresses();

/// Whether a bus takes a connection, or has its queue full of them, and says nothing within the patience. One
/// that is not there, or refuses, is not silent: whoever asks it knows at once. Only sockets in the file
/// system and abstract ones are asked.
[[nodiscard]] bool isSilentBus(const QByteArray& addresses, std::chrono::milliseconds patience = busPatience);

/// Has the program do without a session bus that is silent: the toolkit waits for its answer without end.
/// Comes before the application object.
void leaveSilentSessionBus();

} // namespace quarvel
