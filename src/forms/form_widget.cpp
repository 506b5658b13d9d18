#include "forms/form_widget.h"

#include "forms/look.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QWindow>
#include <algorithm>

namespace quarvel {
namespace {

int pixels(double twips) { return static_cast<int>(twips / twipsPerPixel); }

/// The top left corner of a window in the middle of a screen; on a screen smaller than the window, the
/// screen's own, so that the title bar can be reached.
QPoint centredOn(const QRect& screen, const QSize& window) {
    return screen.topLeft() + QPoint(std::max(0, (screen.width() - window.width()) / 2),
                                     std::max(0, (screen.height() - window.height()) / 2));
}

} // namespace

FormWidget::FormWidget(Form& form, const FormDesign& design)
    : Container(*this, design.scale, list), form_(&form) {
    setObjectName(QString::fromLatin1(design.name));
    setWindowTitle(QString::fromUtf16(design.caption));
    if (design.background.isValid()) setPalette(QPalette(colour::face, design.background));
    const QSize client(pixels(design.clientWidth), pixels(design.clientHeight));
    if (design.border == Border::Fixed)
        setFixedSize(client);
    else
        resize(client);
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
    showProgramIcon();
    if (centreOn_) centreOuterFrame();
    if (leftForOwnBox_) {
        if (ownBoxes_ == 0) leftForOwnBox_ = false;
        return;
    }
    if (form_ != nullptr) form_->Form_Activate();
}

void FormWidget::closeEvent(QCloseEvent* event) {
    const UnloadReason reason = event->spontaneous() ? UnloadReason::ControlMenu : UnloadReason::Code;
    if (form_ != nullptr && !form_->requestUnload(reason)) event->ignore();
}

void FormWidget::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    if (centreOn_) centreOuterFrame();
}

void FormWidget::centreOn(const QRect& screen) {
    centreOn_ = screen;
    move(centredOn(screen, size()));
}

void FormWidget::centreOuterFrame() {
    // A window manager tells its frame's size only some time after the window is on the screen.
    if (windowHandle() == nullptr || windowHandle()->frameMargins().isNull()) return;
    const QRect screen = *centreOn_;
    centreOn_.reset();
    move(centredOn(screen, frameGeometry().size()));
}

} // namespace quarvel
