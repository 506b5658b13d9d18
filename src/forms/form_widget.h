#pragma once

#include "forms/accessible_role.h"
#include "forms/container.h"
#include "forms/form.h"

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>

namespace quarvel {

/// The control list of one loading of a window; a base of its widget, so that it is there before the
/// controls.
struct ControlListHolder {
    std::vector<Control*> list;
};

/// The widget of a loaded window: it holds the control list and turns the toolkit's events into the window's.
class FormWidget : public QWidget, public WithAccessibleRole, private ControlListHolder, public Container {
public:
    FormWidget(Form& form, const FormDesign& design);
    ~FormWidget() override;

    [[nodiscard]] QAccessible::Role accessibleRole() const override { return QAccessible::Window; }
    [[nodiscard]] const std::vector<Control*>& controls() const { return list; }
    /// Takes the struct of controls, which lives until the widgets are gone.
    void keep(std::shared_ptr<void> controls) { kept_ = std::move(controls); }
    /// The window lets go of this widget, which must not call it any more.
    void detach();

    [[nodiscard]] const QString& caption() const { return caption_; }
    void setCaption(const QString& text);
    [[nodiscard]] QMenuBar* menuBar() override { return menuBar_; }
    /// Grows by the menu bar's height, so that the inside has its designed size. Comes after the menus.
    void makeRoomForMenuBar();

    void centreOn(const QRect& screen);
    [[nodiscard]] bool isMinimisedState() const { return minimised_; }
    void setNormalState();
    void setMinimisedState();
    void showInTaskBar();
    /// Shows the window in the state that it has been given while it was hidden.
    void bringBack();
    void setOuterMeasure(Measure which, double twips);
    /// Calls `show` once what is going on has ended. From now until it returns the window has a message.
    void queueMessage(std::function<void()> show);
    /// Whether a message of the window is due or open.
    [[nodiscard]] bool hasMessage() const { return dueMessages_ > 0 || ownBoxes_ > 0; }
    void beginOwnBox() { ++ownBoxes_; }
    [[nodiscard]] bool hasOwnBox() const { return ownBoxes_ > 0; }
    void endOwnBox();

protected:
    bool event(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void activated();
    void centreOuterFrame();
    void becomeMinimised(bool minimised);
    void putBack();

    Form* form_;
    QString caption_;
    QMenuBar* menuBar_ = nullptr;
    std::shared_ptr<void> kept_;
    int ownBoxes_ = 0;
    int dueMessages_ = 0;
    bool leftForOwnBox_ =
        false; ///< the window became inactive because of its own box and has not come back yet
    // The toolkit's own account of a hidden window's state follows the window manager's, which forgets it.
    bool minimised_ = false;
    bool normalWhenShown_ = false;
    std::optional<QRect> hiddenAt_; ///< place on the screen, without the frame, since the window is hidden
    std::optional<QRect> centreOn_; ///< the screen, until the frame around the window is known
};

} // namespace quarvel
