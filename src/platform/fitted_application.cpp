#include "platform/fitted_application.h"

#include <QScreen>
#include <algorithm>

namespace quarvel {
namespace {

constexpr const char* scaleVariable = "QT_SCALE_FACTOR";
constexpr const char* startVariable = "DESKTOP_STARTUP_ID";

// What usual window managers draw around a window, in logical pixels. It is known only of windows that are
// already on the screen.
constexpr double titleBar = 38;
constexpr double border = 5;

constexpr int exactDigits = 17; // of a double

/// A variable of the environment, given another value for a while.
class Lent {
public:
    Lent(const char* name, const QByteArray& value)
        : name_(name), wasSet_(qEnvironmentVariableIsSet(name)), before_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~Lent() {
        if (wasSet_)
            qputenv(name_, before_);
        else
            qunsetenv(name_);
    }
    Lent(const Lent&) = delete;
    Lent& operator=(const Lent&) = delete;

private:
    const char* name_;
    bool wasSet_;
    QByteArray before_;
};

/// The longest stretch with the same middle as `[from, to]` that lies in `[workFrom, workTo]`.
double aroundMiddle(double from, double to, double workFrom, double workTo) {
    const double middle = (from + to) / 2;
    return 2 * std::min(middle - workFrom, workTo - middle);
}

} // namespace

double fittingPart(QSizeF client, const QRectF& screen, const QRectF& work, double scale) {
    const double width = aroundMiddle(screen.left(), screen.right(), work.left(), work.right());
    const double height = aroundMiddle(screen.top(), screen.bottom(), work.top(), work.bottom());
    const double part =
        std::min((width - 2 * border) / client.width(), (height - titleBar - border) / client.height());
    return std::clamp(part, std::min(1.0, 1 / scale), 1.0);
}

FittedApplication::FittedApplication(int& argc, char** argv)
    : argc_(argc), argv_(argv), startId_(qgetenv(startVariable)) {
    application_.emplace(argc_, argv_);
}

void FittedApplication::fit(QSizeF largest) {
    const QScreen* screen = QGuiApplication::primaryScreen();
    if (screen == nullptr) return;
    const double part =
        fittingPart(largest, screen->geometry(), screen->availableGeometry(), screen->devicePixelRatio());
    if (part == 1) return;
    bool isNumber = false;
    const double set = qgetenv(scaleVariable).toDouble(&isNumber);
    const double wanted = part * (isNumber && set > 0 ? set : 1);
    application_.reset();
    // Programs that this one starts keep the scale that the user has chosen.
    const Lent scale(scaleVariable, QByteArray::number(wanted, 'g', exactDigits));
    if (!startId_.isEmpty()) qputenv(startVariable, startId_);
    application_.emplace(argc_, argv_);
}

} // namespace quarvel
