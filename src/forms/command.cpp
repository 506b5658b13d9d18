#include "forms/command.h"

#include "forms/form_widget.h"
#include "forms/held_keys.h"

namespace quarvel {

bool beginsCommand(const QWidget& in) {
    const auto* const window = dynamic_cast<const FormWidget*>(in.window());
    if (window != nullptr && window->hasMessage()) return false;
    HeldKeys::watched().commandBegins();
    return true;
}

} // namespace quarvel
