#pragma once

#include "forms/container.h"
#include "forms/form.h"

#include <QWidget>
#include <memory>
#include <optional>

namespace quarvel {

/// The control list of one loading of a window; a base of its widget, so that it is there before the
/// controls.
struct ControlListHolder {
    std::vector<Control*> list;
};

/// The widget of a loaded window: it holds the control list and turns the toolkit's events into the window's.
class FormWidget : public QWidget, private ControlListHolder, public Container {
public:
    FormWidget(Form& form, const FormDesign& design);
    ~FormWidget() override;

    [[nodiscard]] const std::vector<Control*>& controls() const { return list; }
    /// Takes the struct of controls, which lives until the widgets are gone.
    void keep(std::shared_ptr<void> controls) { kept_ = std::move(controls); }
    /// The window lets go of this widget, which must not call it any more.
    void detach();

    void centreOn(const QRect& screen);
    void beginOwnBox() { ++ownBoxes_; }
    void endOwnBox();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

private:
    void activated();
    void centreOuterFrame();

    Form* form_;
    std::shared_ptr<void> kept_;
    int ownBoxes_ = 0;
    bool leftForOwnBox_ =
        false; ///< the window became inactive because of its own box and has not come back yet
    std::optional<QRect> centreOn_; ///< the screen, until the frame around the window is known
};

} // namespace quarvel
