#pragma once

#include "forms/container.h"
#include "forms/look.h"

#include <QString>

class QLabel;

namespace quarvel {

/// A short text that says what to do where there is nothing else to see. It is no control of its window: the
/// language pass and the layout do not meet it, and it takes neither clicks nor the focus. Its label belongs
/// to what it stands in.
class Hint {
public:
    /// Stands at a place (twips) of a container, in front of what was made there before it.
    Hint(Container& container, const Place& place, const Look& look);
    /// Fills another widget.
    explicit Hint(QWidget& over);

    /// Shows a text, in as many lines as it takes; an empty one hides the hint.
    void showText(const QString& text);

private:
    QLabel* label_;
};

/// A line of text along the lower edge of a widget, in colours that stand out from it.
class Strip {
public:
    explicit Strip(QWidget& in);

    /// An empty text hides the strip.
    void showText(const QString& text);
    /// In pixels; 0 while it is hidden.
    [[nodiscard]] int height() const;
    /// Places it under a part of the widget.
    void placeBelow(const QRect& part);

private:
    QLabel* label_;
};

/// A path as people read it, which a narrow text can break after any of its folders.
[[nodiscard]] QString breakablePath(const QString& path);

} // namespace quarvel
