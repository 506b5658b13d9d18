#include "companion/core/tray_record.h"

#include "text/code_page.h"
#include "text/rounding.h"

#include <QtEndian>

namespace quarvel {
namespace {

constexpr quint32 recordSize = 88; // bytes
constexpr quint32 onlyIcon = 1;
constexpr quint32 hasMessage = 1;
constexpr quint32 hasIcon = 2;
constexpr quint32 hasTip = 4;
constexpr quint32 mouseMoved = 0x200;
constexpr int rightButtonUp = 0x205;

} // namespace

QString tipField(const QString& text) { return (text + QChar(u'\0')).leftJustified(tipLength, u' ', true); }

TrayIconData trayIcon(quintptr window, quintptr icon, const QString& tip) {
    return {.recordSize = recordSize,
            .window = window,
            .identifier = onlyIcon,
            .flags = hasMessage | hasIcon | hasTip,
            .callbackMessage = mouseMoved,
            .icon = icon,
            .tip = tipField(tip)};
}

std::array<char, 88> encodeTrayIcon(const TrayIconData& icon) {
    std::array<char, 88> record{};
    const std::array<quint32, 6> fields = {icon.recordSize,      static_cast<quint32>(icon.window),
                                           icon.identifier,      icon.flags,
                                           icon.callbackMessage, static_cast<quint32>(icon.icon)};
    qToLittleEndian<quint32>(fields.data(), static_cast<qsizetype>(fields.size()), record.data());
    const QString tip = icon.tip.leftJustified(tipLength, u' ', true);
    char* place = record.data() + sizeof fields;
    for (const QChar character : tip) *place++ = codePageByte(character.unicode()).value_or('?');
    return record;
}

IconCommand decodeMouseMove(float x, HorizontalUnit unit, double twipsPerPixelX) {
    const double pixels = unit == HorizontalUnit::Pixels ? x : x / twipsPerPixelX;
    return roundHalfEven(pixels) == rightButtonUp ? IconCommand::OpenMenu : IconCommand::ComeBack;
}

} // namespace quarvel
