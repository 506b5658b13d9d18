#pragma once

namespace quarvel {

/// Runs the program through X11 where the session offers it beside Wayland, on which no program may keep
/// itself on top or place itself. What the user's environment chose stays. Menu bars stand in their windows.
/// Comes before the application object.
void chooseWindowSystem();

} // namespace quarvel
