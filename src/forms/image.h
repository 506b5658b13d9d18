#pragma once

#include "forms/event.h"
#include "forms/widget_control.h"
#include "pictures/picture.h"

#include <QPixmap>

namespace quarvel {

/// A stretched picture: one compiled into the program, or one of the user's. Only the part that shows is
/// painted, from the picture as it was decoded.
class Image : public WidgetControl {
public:
    Image(Container& container, const ControlSpec& spec);

    /// Shows a picture stretched to the image's place.
    void setPicture(const Picture& picture);
    /// Makes a command of it: the keyboard reaches it, and Space and Return click it.
    void makeCommand();

    Event<> clicked; ///< the left button was released on it
    /// A button went down on it: 1 left, 2 right, 4 middle; the point in pixels from its top left corner.
    Event<int, float, float> mouseDown;
};

} // namespace quarvel
