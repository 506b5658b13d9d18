#pragma once

#include "state/tray_icon_data.h"

#include <QString>
#include <array>

namespace quarvel {

/// Length of the tip's field, in characters while the record is held and in bytes when it is handed over.
inline constexpr qsizetype tipLength = 64;

/// The tip field for a text: the text and a NUL, left-aligned, padded with blanks and cut at 64 characters.
[[nodiscard]] QString tipField(const QString& text);

/// A record for an icon whose mouse messages reach the window as mouse moves. The handles are the window's
/// and its picture's.
[[nodiscard]] TrayIconData trayIcon(quintptr window, quintptr icon, const QString& tip);

/// The record as the desktop takes it: six little-endian 32-bit fields in their declared order and 64 bytes
/// of Windows-1252. A handle wider than 32 bits gives its low 32; a character that the code page lacks
/// becomes a question mark.
[[nodiscard]] std::array<char, 88> encodeTrayIcon(const TrayIconData& icon);

/// How a window measures its horizontal coordinate.
enum class HorizontalUnit { Pixels, Twips };

/// What a mouse move over the window or its icon asks for.
enum class IconCommand { OpenMenu, ComeBack };

/// Decodes the horizontal coordinate of a mouse move, where the icon's mouse message arrives as a number:
/// the release of the right button opens the menu, everything else calls the window back.
[[nodiscard]] IconCommand decodeMouseMove(float x, HorizontalUnit unit, double twipsPerPixelX);

} // namespace quarvel
