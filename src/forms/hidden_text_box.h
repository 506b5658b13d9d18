#pragma once

#include "forms/widget_control.h"

#include <QString>

namespace quarvel {

/// A text box that is never shown. It keeps a text as it is, line ends included; no editor is made for it, so
/// that a text of any length is set at once.
class HiddenTextBox : public WidgetControl {
public:
    /// `spec` says that it is not shown.
    HiddenTextBox(Container& container, const ControlSpec& spec)
        : WidgetControl(container, spec, new QWidget) {}

    [[nodiscard]] const QString& text() const { return text_; }
    void setText(const QString& text) { text_ = text; }

private:
    QString text_;
};

} // namespace quarvel
