#pragma once

#include <QString>

namespace quarvel {

/// Where programs keep their data for this user: $XDG_DATA_HOME, else ~/.local/share. Absolute.
[[nodiscard]] QString userDataFolder();

/// Where programs keep what they remember for this user: $XDG_STATE_HOME, else ~/.local/state. Absolute.
[[nodiscard]] QString userStateFolder();

} // namespace quarvel
