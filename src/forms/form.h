#pragma once

#include "forms/container.h"
#include "forms/core/resizable_window.h"
#include "forms/windows.h"

#include <QColor>
#include <QPointer>
#include <QRect>
#include <functional>
#include <memory>

namespace quarvel {

class FormWidget;

/// Why a window is asked to unload.
enum class UnloadReason {
    ControlMenu, ///< the title bar's close box or the system menu
    Code         ///< the program or the system
};

enum class Closing { GoAhead, Cancel };
enum class Border { Fixed, Sizable };
enum class Menus { PopUp, Bar }; ///< Bar: the top-level menus are shown above the window's inside

/// What a window is before its first loading.
struct FormDesign {
    const char* name;
    const char16_t* caption;
    double clientWidth;  ///< twips
    double clientHeight; ///< twips
    ScaleUnit scale{};
    QColor background{};
    Border border = Border::Fixed;
    Menus menus = Menus::PopUp;
};

/// A key that the focused control has left to its window.
struct KeyDown {
    int key; ///< a Qt::Key
    Qt::KeyboardModifiers modifiers;
    const QWidget* focus; ///< the focused control's widget; null when none has the focus
    bool used = false;    ///< set by the window when the key meant something to it
};

/// A window that outlives its widgets: loading builds them, unloading destroys them, and what the window
/// keeps in its own fields survives. A subclass declares its controls and wires them in build().
class Form : public ResizableWindow {
public:
    Form(const FormDesign& design, Windows& windows);
    ~Form() override;

    /// Shows the window; one that is not loaded is loaded first.
    void show();
    void hide();
    /// Takes the window off the screen; its widgets are destroyed by the event loop. From here on it has no
    /// controls: a handler that runs on after this, or after anything that lets other events in, touches `c`
    /// only after asking for it.
    void unload();

    [[nodiscard]] QString windowName() const override;
    [[nodiscard]] QString windowCaption() const override;
    void setWindowCaption(const QString& text) override;
    [[nodiscard]] QString windowTag() const override;
    void setWindowTag(const QString& text) override;
    [[nodiscard]] std::vector<Control*> controls() const override;
    void processPendingMessages() override;
    [[nodiscard]] bool isLoaded() const override;
    [[nodiscard]] int loading() const override { return loading_; }

    [[nodiscard]] double innerWidth() const override;
    [[nodiscard]] double innerHeight() const override;
    [[nodiscard]] bool isMinimised() const override;
    void suspendDrawing() override;
    void resumeDrawing() override;
    [[nodiscard]] double screenWidth() const override;
    [[nodiscard]] double screenHeight() const override;
    void setOuterMeasure(Measure which, double twips) override;

    /// The window on the screen; none while it is not loaded.
    [[nodiscard]] QWidget* window() const;

    /// Puts on the window what its section of the language file does not hold: the names that assistive tools
    /// read and the hints. Follows every pass of a language.
    virtual void giveOwnTexts() {}

    /// Whether the window shows a box of its own.
    [[nodiscard]] bool hasOwnBox() const;

    /// Shows a message once what is going on has ended: a box in the middle of a change of focus would leave
    /// the button that was just pressed hanging. `show` shows it and does what follows from it; until it
    /// returns, no command begins in the window. It is not called when the window goes before.
    void queueMessage(std::function<void()> show);

    /// While it lives the window shows a box of its own: coming back from that is no activation.
    class OwnBox {
    public:
        explicit OwnBox(Form& form);
        ~OwnBox();
        OwnBox(const OwnBox&) = delete;
        OwnBox& operator=(const OwnBox&) = delete;

    private:
        QPointer<FormWidget> widget_;
    };

protected:
    /// Makes the controls in the window that has just been created, and wires them.
    virtual void build(FormWidget& widget) = 0;
    /// The controls are about to go.
    virtual void forgetControls() = 0;

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual Closing Form_QueryUnload(UnloadReason /*reason*/) { return Closing::GoAhead; }
    /// The window is about to be unloaded; its controls are still there.
    virtual void Form_Unload() {}
    /// The window's size has changed; being minimised and coming back from that count as such.
    virtual void Form_Resize() {}
    /// The pointer moved over a part of the window's inside that no control covers; (x, y) in the window's
    /// scale unit from the inside's top left corner.
    virtual void Form_MouseMove(int /*button*/, int /*shift*/, float /*x*/, float /*y*/) {}

    /// A key that the focused control has no use for. Of what is pressed in a text box, be the box locked,
    /// only Escape comes here.
    virtual void Form_KeyDown(KeyDown& /*key*/) {}

    /// Puts the window, frame included, in the middle of a screen (logical pixels).
    void centreOn(const QRect& screen);
    /// Keeps the window above all others. Comes before the window has a handle: the toolkit would give it
    /// another one.
    void keepOnTop();
    /// Neither minimised nor maximised any more. A hidden window stays hidden, and is so when it is shown.
    void setNormalState();
    void setMinimisedState();
    /// Shows a hidden window as a minimised one.
    void showInTaskBar();
    /// Raises the window and gives it the keyboard; one that is hidden stays so.
    void bringToForeground();
    [[nodiscard]] Windows& windows() const { return windows_; }

private:
    friend class FormWidget;
    void load();
    bool requestUnload(UnloadReason reason);

    FormDesign design_;
    Windows& windows_;
    QString tag_;
    int loading_ = 0;
    QPointer<FormWidget> widget_;
};

} // namespace quarvel
