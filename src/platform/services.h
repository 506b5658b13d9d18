#pragma once

#include "platform/desktop.h"
#include "platform/form_printer.h"
#include "platform/message_boxes.h"
#include "platform/notification_area.h"
#include "platform/sound_player.h"

namespace quarvel {

/// The desktop's services that the windows use.
struct Services {
    MessageBoxes& messageBoxes;
    SoundPlayer& sounds;
    FormPrinter& printer;
    UrlOpener& urls;
    Screen& screen;
    ProcessEnd& process;
    Beeper& beeper;
    NotificationArea& notificationArea;
};

} // namespace quarvel
