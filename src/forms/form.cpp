#include "forms/form.h"

#include "forms/form_widget.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <utility>

namespace quarvel {

Form::Form(const FormDesign& design, Windows& windows) : design_(design), windows_(windows) {}

Form::~Form() {
    if (widget_) {
        widget_->detach();
        delete widget_.data();
    }
}

void Form::load() {
    ++loading_;
    tag_.clear();
    widget_ = new FormWidget(*this, design_);
    build(*widget_);
    widget_->makeRoomForMenuBar();
    Form_Load();
}

void Form::show() {
    if (!widget_) load();
    if (!widget_) return; // a handler that ran while the texts were set has unloaded it again
    widget_->bringBack();
    bringToForeground();
}

void Form::hide() {
    if (widget_) widget_->hide();
}

void Form::unload() {
    if (!widget_) return;
    Form_Unload();
    FormWidget* const old = widget_;
    widget_.clear();
    forgetControls();
    old->detach();
    old->hide();
    old->setEnabled(false); // keys and clicks may still be on their way to it
    old->deleteLater();
    windows_.unloaded(*this);
}

bool Form::requestUnload(UnloadReason reason) {
    if (Form_QueryUnload(reason) == Closing::Cancel) return false;
    unload();
    return true;
}

QString Form::windowName() const { return QString::fromLatin1(design_.name); }

QString Form::windowCaption() const { return widget_ ? widget_->caption() : QString(); }

void Form::setWindowCaption(const QString& text) {
    if (widget_) widget_->setCaption(text);
}

QString Form::windowTag() const { return tag_; }

void Form::setWindowTag(const QString& text) { tag_ = text; }

std::vector<Control*> Form::controls() const {
    return widget_ ? widget_->controls() : std::vector<Control*>();
}

void Form::processPendingMessages() {
    // A window that is not on the screen has nothing to paint and no input to take.
    if (widget_ && widget_->isVisible()) QCoreApplication::processEvents();
}

bool Form::isLoaded() const { return !widget_.isNull(); }

QWidget* Form::window() const { return widget_; }

void Form::centreOn(const QRect& screen) {
    if (widget_) widget_->centreOn(screen);
}

void Form::keepOnTop() {
    if (widget_) widget_->setWindowFlag(Qt::WindowStaysOnTopHint);
}

void Form::setNormalState() {
    if (widget_) widget_->setNormalState();
}

void Form::setMinimisedState() {
    if (widget_) widget_->setMinimisedState();
}

void Form::showInTaskBar() {
    if (widget_) widget_->showInTaskBar();
}

void Form::bringToForeground() {
    if (!widget_ || !widget_->isVisible()) return;
    widget_->raise();
    widget_->activateWindow();
}

double Form::innerWidth() const { return widget_ ? widget_->inside().width() * design_.scale.perPixelX : 0; }

double Form::innerHeight() const {
    return widget_ ? widget_->inside().height() * design_.scale.perPixelY : 0;
}

bool Form::isMinimised() const { return widget_ && widget_->isMinimisedState(); }

void Form::suspendDrawing() {
    if (widget_) widget_->setUpdatesEnabled(false);
}

void Form::resumeDrawing() {
    if (widget_) widget_->setUpdatesEnabled(true);
}

double Form::screenWidth() const { return QGuiApplication::primaryScreen()->size().width() * twipsPerPixel; }

double Form::screenHeight() const {
    return QGuiApplication::primaryScreen()->size().height() * twipsPerPixel;
}

void Form::setOuterMeasure(Measure which, double twips) {
    if (widget_) widget_->setOuterMeasure(which, twips);
}

void Form::queueMessage(std::function<void()> show) {
    if (widget_) widget_->queueMessage(std::move(show));
}

bool Form::hasOwnBox() const { return widget_ && widget_->hasOwnBox(); }

Form::OwnBox::OwnBox(Form& form) : widget_(form.widget_) {
    if (widget_) widget_->beginOwnBox();
}

Form::OwnBox::~OwnBox() {
    if (widget_) widget_->endOwnBox();
}

} // namespace quarvel
