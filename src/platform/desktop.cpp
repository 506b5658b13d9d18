#include "platform/desktop.h"

#include <QApplication>
#include <QDesktopServices>
#include <QScreen>
#include <QUrl>
#include <cstdlib>

namespace quarvel {
namespace {

constexpr double twipsPerInch = 1440;

} // namespace

QRect QtScreen::whole() const {
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? screen->geometry() : QRect();
}

double QtScreen::twipsPerPixelX() const {
    return twipsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchX();
}

double QtScreen::twipsPerPixelY() const {
    return twipsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

void QtUrlOpener::open(const QString& url) { QDesktopServices::openUrl(QUrl(url)); }

void RealProcessEnd::endNow() { std::_Exit(EXIT_SUCCESS); }

void QtBeeper::beep() { QApplication::beep(); }

} // namespace quarvel
