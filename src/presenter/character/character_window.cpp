#include "presenter/character/character_window.h"

#include "presenter/character/compositing.h"
#include "presenter/character/drawing.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QBitmap>
#include <QHideEvent>
#include <QPainter>
#include <QShowEvent>
#include <algorithm>

namespace quarvel {
namespace {

using namespace Qt::StringLiterals;

constexpr int frameMs = 33;
constexpr int lookMs = 1000;       // between two looks for a compositor
constexpr double takeOverMs = 180; ///< in which an animation takes over from whatever pose it finds

/// Assistive tools meet the character as what it is; its name is the line that it is speaking.
class AccessibleCharacter : public QAccessibleWidget {
public:
    explicit AccessibleCharacter(QWidget* window) : QAccessibleWidget(window, QAccessible::Animation) {}
};

QAccessibleInterface* accessibleCharacter(const QString& /*className*/, QObject* object) {
    auto* const window = qobject_cast<CharacterWindow*>(object);
    return window != nullptr ? new AccessibleCharacter(window) : nullptr;
}

int within(int value, int least, int most) { return std::max(least, std::min(value, most)); }

} // namespace

CharacterWindow::CharacterWindow()
    : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                           Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput |
                           Qt::NoDropShadowWindowHint) {
    QAccessible::installFactory(accessibleCharacter);
    setObjectName(u"Genie"_s);
    setWindowTitle(u"Genie"_s);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_QuitOnClose, false);
    setFocusPolicy(Qt::NoFocus);
    setFixedSize(characterWidth, characterHeight);
    frames_.setInterval(frameMs);
    connect(&frames_, &QTimer::timeout, this, &CharacterWindow::step);
}

void CharacterWindow::play(Animation animation) {
    from_ = pose_;
    playing_ = animation;
    clock_.start();
    if (!isVisible()) show();
}

void CharacterWindow::setLoudness(double loudness) { loudness_ = std::clamp(loudness, 0.0, 1.0); }

void CharacterWindow::setSpokenLine(const QString& line) {
    if (line != accessibleName())
        setAccessibleName(line); // an event of its own tells assistive tools of the change
}

void CharacterWindow::standBeside(const QRect& window, const QRect& screen) {
    constexpr int gap = 24; // a hand's breadth; where there is no room it stands before the window
    move(
        within(window.x() + window.width() + gap, screen.x(), screen.x() + screen.width() - width()),
        within(window.y() + window.height() - height(), screen.y(), screen.y() + screen.height() - height()));
}

void CharacterWindow::step() {
    const auto ms = static_cast<double>(clock_.elapsed());
    takePose(ms);
    if (looked_.hasExpired(lookMs)) lookForCompositor();
    if (cut_) cutOut();
    update();
    if (playing_.has_value() && ms >= durationOf(*playing_)) endAnimation();
}

/// Takes the pose of a time on the running clock.
void CharacterWindow::takePose(double ms) {
    pose_ = playing_.has_value() ? blend(from_, poseAt(*playing_, ms), std::min(1.0, ms / takeOverMs))
                                 : idlePose(stance_, ms);
    beak_ += 0.6 * (loudness_ - beak_);
    pose_.beak = std::max(pose_.beak, beak_);
    pose_.headNod -= 0.12 * beak_;
}

void CharacterWindow::endAnimation() {
    stance_ = stanceAfter(*playing_);
    playing_.reset();
    clock_.start();
    if (stance_ == Stance::Away) hide();
    Q_EMIT animationEnded();
}

/// A compositor may come and go while a long text is read.
void CharacterWindow::lookForCompositor() {
    cut_ = !compositorRuns();
    if (!cut_) clearMask();
    looked_.start();
}

/// Without a compositor the window is cut along the character's outline, which is dark and so bears a hard
/// edge. The soft shadow and the fading in are left out there.
void CharacterWindow::cutOut() {
    drawn_ = QImage(size() * devicePixelRatio(), QImage::Format_ARGB32_Premultiplied);
    drawn_.setDevicePixelRatio(devicePixelRatio());
    drawn_.fill(Qt::transparent);
    QPainter painter(&drawn_);
    Pose solid = pose_;
    solid.opacity = pose_.opacity < 0.5 ? 0 : 1;
    drawCharacter(painter, solid);
    painter.end();
    const QRegion outline(QBitmap::fromImage(drawn_.createAlphaMask().scaled(size())));
    setMask(outline.isEmpty() ? QRegion(-1, -1, 1, 1) : outline); // an empty mask would mean none at all
}

void CharacterWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    if (cut_)
        painter.drawImage(QPoint(), drawn_);
    else
        drawCharacter(painter, pose_);
}

void CharacterWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous()) return;
    lookForCompositor();
    if (cut_) cutOut();
    frames_.start();
}

void CharacterWindow::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous()) return;
    frames_.stop();
    stance_ = Stance::Away;
    pose_ = idlePose(stance_, 0);
    beak_ = 0;
    if (!playing_.has_value()) return;
    playing_.reset(); // told when the hiding is over: whoever hears it may show the window again
    QMetaObject::invokeMethod(this, &CharacterWindow::animationEnded, Qt::QueuedConnection);
}

} // namespace quarvel
