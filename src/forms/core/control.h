#pragma once

#include <QString>
#include <optional>
#include <vector>

namespace quarvel {

/// How setting a property of a control went.
enum class Setting { Done, NoSuchProperty, Failed };

/// The four measures of a control; of a line control, its X1, Y1, X2 and Y2.
enum class Measure { Left, Top, Width, Height };

/// A control as the language pass and the proportional layout see it: a name, an index when it belongs to a
/// control array, and properties that it has or has not. Nothing here knows a widget.
class Control {
public:
    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;
    virtual ~Control() = default;

    [[nodiscard]] virtual QString name() const = 0;
    /// The place in its control array; none for a control of its own.
    [[nodiscard]] virtual std::optional<int> index() const { return std::nullopt; }

    [[nodiscard]] virtual std::optional<QString> caption() const { return std::nullopt; }
    virtual Setting setCaption(const QString& text);
    [[nodiscard]] virtual std::optional<QString> toolTip() const { return std::nullopt; }
    virtual Setting setToolTip(const QString& text);
    [[nodiscard]] virtual std::optional<QString> tag() const { return std::nullopt; }
    virtual Setting setTag(const QString& text);

    /// How many tabs a tab control has; 0 for every other control.
    [[nodiscard]] virtual int tabCount() const { return 0; }
    virtual Setting setTabCaption(int tab, const QString& text);

    /// A measure in the unit of the control's container; none for a menu item and its like. A line gives the
    /// coordinates of its two ends as its four measures.
    [[nodiscard]] virtual std::optional<double> measure(Measure which) const;
    virtual Setting setMeasure(Measure which, double value);
};

/// A window as the same two see it: its own texts, its inner size and its controls in the order in which they
/// were declared, menus included.
class ControlWindow {
public:
    ControlWindow() = default;
    ControlWindow(const ControlWindow&) = delete;
    ControlWindow& operator=(const ControlWindow&) = delete;
    virtual ~ControlWindow() = default;

    [[nodiscard]] virtual QString windowName() const = 0;
    [[nodiscard]] virtual QString windowCaption() const = 0;
    virtual void setWindowCaption(const QString& text) = 0;
    [[nodiscard]] virtual QString windowTag() const = 0;
    virtual void setWindowTag(const QString& text) = 0;

    /// The controls now in the list. A window that has been unloaded has none.
    [[nodiscard]] virtual std::vector<Control*> controls() const = 0;

    /// Lets the window paint and take the user's input. Other handlers may run inside, and may unload the
    /// window.
    virtual void processPendingMessages() = 0;
    [[nodiscard]] virtual bool isLoaded() const = 0;
    /// Counts the loadings of the window, so that a pass can tell that its controls are gone.
    [[nodiscard]] virtual int loading() const = 0;
};

/// The key stem of a control: its name, followed by its index in parentheses when it has one (`txtRwy(38)`).
[[nodiscard]] QString controlKey(const Control& control);

} // namespace quarvel
