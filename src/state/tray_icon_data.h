#pragma once

#include <QString>
#include <QtGlobal>

namespace quarvel {

/// The companion window's icon in the notification area. Kept in its fields; its 88-byte form is made from
/// them for each call (companion/core/tray_record.h).
struct TrayIconData {
    quint32 recordSize = 0; ///< bytes
    quintptr window = 0;    ///< the window's handle
    quint32 identifier = 0;
    quint32 flags = 0;           ///< which of the next three fields hold something
    quint32 callbackMessage = 0; ///< under which the icon's mouse reaches the window
    quintptr icon = 0;           ///< the handle of the icon's picture
    QString tip;                 ///< 64 characters: the text, a NUL, blanks
};

} // namespace quarvel
