#include "platform/desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QScreen>
#include <QUrl>
#include <cstdlib>

namespace quarvel {
namespace {

constexpr double twipsPerInch = 1440;
constexpr double usualDotsPerInch = 96;

} // namespace

QRect QtScreen::whole() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->geometry() : QRect();
}

double QtScreen::twipsPerPixelX() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return twipsPerInch / (screen != nullptr ? screen->logicalDotsPerInchX() : usualDotsPerInch);
}

double QtScreen::twipsPerPixelY() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return twipsPerInch / (screen != nullptr ? screen->logicalDotsPerInchY() : usualDotsPerInch);
}

void QtUrlOpener::open(const QString& url) { QDesktopServices::openUrl(QUrl(url)); }

void RealProcessEnd::endNow() {
    finish_();
    std::_Exit(EXIT_SUCCESS);
}

void QtBeeper::beep() { QApplication::beep(); }

} // namespace quarvel
