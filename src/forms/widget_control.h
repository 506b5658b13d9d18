#pragma once

#include "forms/container.h"
#include "forms/look.h"

#include <QWidget>
#include <array>
#include <optional>

namespace quarvel {

enum class Shown { Yes, No };
enum class Usable { Yes, No };

/// One row of a window's table of controls.
struct ControlSpec {
    const char* name;
    std::optional<int> index{};
    Place place{};
    const char16_t* caption = u"";
    const char16_t* toolTip = u"";
    Shown shown = Shown::Yes;
    Usable usable = Usable::Yes;
    Look look{};
    Qt::Alignment align = Qt::AlignCenter; ///< of the text of a label or of a box of many lines
    const char* picture = "";              ///< a compiled-in picture's name, for the kinds that show one
};

/// The row with a ground of the control's own, where it names none.
[[nodiscard]] ControlSpec opaque(ControlSpec spec);

/// A control that is a widget. It joins its window's control list when it is made, and stands behind those
/// declared before it, as rows of a window's table do. The widget belongs to the container's.
class WidgetControl : public Control {
public:
    WidgetControl(Container& container, const ControlSpec& spec, QWidget* widget);

    [[nodiscard]] QString name() const override { return name_; }
    [[nodiscard]] std::optional<int> index() const override { return index_; }
    [[nodiscard]] std::optional<QString> toolTip() const override { return widget_->toolTip(); }
    Setting setToolTip(const QString& text) override;
    [[nodiscard]] std::optional<QString> tag() const override { return tag_; }
    Setting setTag(const QString& text) override;

    /// Measures are kept unrounded in the container's unit and rounded to pixels once, when put on the
    /// screen.
    [[nodiscard]] std::optional<double> measure(Measure which) const override;
    Setting setMeasure(Measure which, double value) override;
    /// Sets left, top, width and height, and moves on the screen once.
    void setMeasures(const std::array<double, 4>& measures);

    void setShown(Shown shown) { widget_->setVisible(shown == Shown::Yes); }
    /// Whether the control itself is shown, also while its container or window is not.
    [[nodiscard]] bool isShown() const { return !widget_->isHidden(); }
    void setUsable(Usable usable) { widget_->setEnabled(usable == Usable::Yes); }
    [[nodiscard]] bool isUsable() const { return widget_->isEnabled(); }
    void setFocus() { widget_->setFocus(Qt::OtherFocusReason); }
    void bringToFront() { widget_->raise(); }
    void sendToBack() { widget_->lower(); }
    void setCursor(const QCursor& cursor) { widget_->setCursor(cursor); }
    /// What a person would call the control; assistive tools read it.
    void setSpokenName(const QString& text) { widget_->setAccessibleName(text); }

    [[nodiscard]] QWidget& widget() const { return *widget_; }

private:
    void putOnScreen();

    QString name_;
    std::optional<int> index_;
    QString tag_;
    QWidget* widget_;
    ScaleUnit unit_;
    std::array<double, 4> measures_{}; ///< left, top, width, height in unit_
};

/// Paints a widget's background and text in a look's colours.
void applyLook(QWidget& widget, const Look& look);

} // namespace quarvel
