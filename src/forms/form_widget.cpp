#include "forms/form_widget.h"

#include "forms/command.h"
#include "forms/focus_ring.h"
#include "forms/held_keys.h"
#include "forms/look.h"
#include "text/strings.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPalette>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <utility>

namespace quarvel {
namespace {

int pixels(double twips) { return static_cast<int>(twips / twipsPerPixel); }

/// What the controls lie in: all of the window, or the part of it below its menu bar.
QWidget& insideOf(QWidget& window, const FormDesign& design) {
    return design.menus == Menus::Bar ? *new QWidget(&window) : window;
}

/// A window that cannot grow has no button for it.
constexpr Qt::WindowFlags fixedWindow = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                        Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                                        Qt::WindowCloseButtonHint;

int buttonCode(Qt::MouseButtons buttons) {
    return (buttons & Qt::LeftButton ? 1 : 0) | (buttons & Qt::RightButton ? 2 : 0) |
           (buttons & Qt::MiddleButton ? 4 : 0);
}

int shiftCode(Qt::KeyboardModifiers modifiers) {
    return (modifiers & Qt::ShiftModifier ? 1 : 0) | (modifiers & Qt::ControlModifier ? 2 : 0) |
           (modifiers & Qt::AltModifier ? 4 : 0);
}

/// The top left corner of a window in the middle of a screen; on a screen smaller than the window, the
/// screen's own, so that the title bar can be reached.
QPoint centredOn(const QRect& screen, const QSize& window) {
    return screen.topLeft() + QPoint(std::max(0, (screen.width() - window.width()) / 2),
                                     std::max(0, (screen.height() - window.height()) / 2));
}

} // namespace

FormWidget::FormWidget(Form& form, const FormDesign& design)
    : Container(insideOf(*this, design), design.scale, list), form_(&form) {
    setObjectName(QString::fromLatin1(design.name));
    setCaption(QString::fromUtf16(design.caption));
    if (design.background.isValid()) setPalette(QPalette(colour::face, design.background));
    const QSize client(pixels(design.clientWidth), pixels(design.clientHeight));
    if (design.border == Border::Fixed) {
        setFixedSize(client);
        setWindowFlags(fixedWindow);
    } else {
        resize(client);
    }
    setMouseTracking(
        true); // beneath a menu bar the inside is a widget of its own, and leaves its moves to this
    inside().setMouseTracking(true);
    if (design.menus == Menus::Bar) {
        menuBar_ = new QMenuBar(this);
        menuBar_->setNativeMenuBar(false);
        menuBar_->setPalette(QGuiApplication::palette()); // not the colours of the window's inside
        menuBar_->setAutoFillBackground(true);
        marksItsFocus(*menuBar_);
    }
    new FocusRing(*this); // the window's own, as any child
    HeldKeys::watched();
    // Another program in between makes the next activation one from outside, whatever went before it.
    connect(qApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state != Qt::ApplicationActive && ownBoxes_ == 0) leftForOwnBox_ = false;
    });
}

FormWidget::~FormWidget() {
    // The widgets go first: on their way they may still reach for the controls that own their handlers.
    qDeleteAll(findChildren<QWidget*>(Qt::FindDirectChildrenOnly));
    kept_.reset();
}

void FormWidget::detach() { form_ = nullptr; }

void FormWidget::queueMessage(std::function<void()> show) {
    ++dueMessages_;
    QTimer::singleShot(0, this, [window = QPointer(this), show = std::move(show)] {
        show();
        if (window != nullptr) --window->dueMessages_;
    });
}

void FormWidget::setCaption(const QString& text) {
    caption_ = text;
    setWindowTitle(toolkitTitle(text));
}

void FormWidget::endOwnBox() {
    --ownBoxes_;
    if (isActiveWindow()) leftForOwnBox_ = false;
}

bool FormWidget::event(QEvent* event) {
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::WindowDeactivate && ownBoxes_ > 0) leftForOwnBox_ = true;
    if (event->type() == QEvent::WindowActivate) activated();
    return handled;
}

void FormWidget::activated() {
    QTimer::singleShot(0, qApp, showProgramIcon); // once the window itself is painted
    if (centreOn_) centreOuterFrame();
    if (leftForOwnBox_) {
        if (ownBoxes_ == 0) leftForOwnBox_ = false;
        return;
    }
    if (form_ != nullptr) form_->Form_Activate();
}

void FormWidget::closeEvent(QCloseEvent* event) {
    const UnloadReason reason = event->spontaneous() ? UnloadReason::ControlMenu : UnloadReason::Code;
    const bool command = reason == UnloadReason::ControlMenu;
    if (form_ != nullptr && ((command && !beginsCommand(*this)) || !form_->requestUnload(reason)))
        event->ignore();
}

void FormWidget::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (centreOn_) centreOuterFrame();
}

void FormWidget::centreOn(const QRect& screen) {
    centreOn_ = screen;
    move(centredOn(screen, size()));
}

void FormWidget::makeRoomForMenuBar() {
    if (menuBar_ != nullptr) resize(width(), height() + menuBar_->sizeHint().height());
}

void FormWidget::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (menuBar_ != nullptr) {
        const int bar = menuBar_->sizeHint().height();
        menuBar_->setGeometry(0, 0, width(), bar);
        inside().setGeometry(0, bar, width(), std::max(0, height() - bar));
    }
    if (form_ != nullptr) form_->Form_Resize();
}

void FormWidget::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (!event->spontaneous()) hiddenAt_ = isMaximized() ? normalGeometry() : geometry();
}

void FormWidget::putBack() {
    // Some window managers take the frame off a hidden window and leave the window where the frame was, a
    // title bar higher up.
    if (const auto place = std::exchange(hiddenAt_, {})) setGeometry(*place);
}

void FormWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || !isVisible()) return;
    becomeMinimised(windowState().testFlag(Qt::WindowMinimized));
}

void FormWidget::becomeMinimised(bool minimised) {
    if (minimised == minimised_) return;
    minimised_ = minimised;
    if (form_ != nullptr) form_->Form_Resize();
}

void FormWidget::setNormalState() {
    if (isVisible()) {
        if ((windowState() & ~Qt::WindowActive) != Qt::WindowNoState) showNormal();
        return;
    }
    // Asking the toolkit now would put the window on the screen.
    normalWhenShown_ = true;
    becomeMinimised(false);
}

void FormWidget::setMinimisedState() {
    if (isVisible())
        showMinimized();
    else
        becomeMinimised(true);
}

void FormWidget::showInTaskBar() {
    normalWhenShown_ = false;
    putBack();
    // The window manager minimises what it manages: a window that is shown minimised comes up as it was.
    setAttribute(Qt::WA_ShowWithoutActivating);
    showNormal();
    showMinimized();
    setAttribute(Qt::WA_ShowWithoutActivating, false);
}

void FormWidget::bringBack() {
    putBack();
    if (std::exchange(normalWhenShown_, false))
        showNormal();
    else
        show();
}

void FormWidget::setOuterMeasure(Measure which, double twips) {
    const QRect outer = frameGeometry();
    const QSize border = outer.size() - size();
    switch (which) {
    case Measure::Left: move(pixels(twips), outer.top()); break;
    case Measure::Top: move(outer.left(), pixels(twips)); break;
    case Measure::Width: resize(pixels(twips) - border.width(), height()); break;
    case Measure::Height: resize(width(), pixels(twips) - border.height()); break;
    }
}

void FormWidget::mouseMoveEvent(QMouseEvent* event) {
    QWidget* const under = childAt(event->position().toPoint());
    if (form_ == nullptr || (under != nullptr && under != &inside())) return;
    const QPointF at = inside().mapFrom(this, event->position());
    form_->Form_MouseMove(buttonCode(event->buttons()), shiftCode(event->modifiers()),
                          static_cast<float>(at.x() * unit().perPixelX),
                          static_cast<float>(at.y() * unit().perPixelY));
}

void FormWidget::keyPressEvent(QKeyEvent* event) {
    const QWidget* const focus = focusWidget();
    const bool typing = qobject_cast<const QPlainTextEdit*>(focus) || qobject_cast<const QLineEdit*>(focus);
    KeyDown key{event->key(), event->modifiers(), focus == this ? nullptr : focus};
    const bool forWindow = key.key == Qt::Key_Escape ? !event->isAutoRepeat() : !typing;
    if (form_ != nullptr && forWindow && !hasMessage()) form_->Form_KeyDown(key);
    if (key.used)
        HeldKeys::watched().commandBegins();
    else
        QWidget::keyPressEvent(event);
}

void FormWidget::centreOuterFrame() {
    // A window manager tells its frame's size only some time after the window is on the screen.
    if (windowHandle() == nullptr || windowHandle()->frameMargins().isNull()) return;
    const QRect screen = *centreOn_;
    centreOn_.reset();
    move(centredOn(screen, frameGeometry().size()));
}

} // namespace quarvel
