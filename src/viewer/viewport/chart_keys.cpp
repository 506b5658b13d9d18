#include "viewer/viewport/chart_keys.h"

#include <algorithm>
#include <array>

namespace quarvel {
namespace {

struct Row {
    Qt::Key key;
    Qt::KeyboardModifiers held; ///< the keypad's own mark aside
    ChartKey meaning;
};

constexpr Qt::KeyboardModifiers alone;

// The plus may need Shift to be typed, and then shares its key with the equals sign.
constexpr std::array<Row, 22> keys = {{
    {Qt::Key_Plus, alone, ChartKey::ZoomIn},
    {Qt::Key_Plus, Qt::ShiftModifier, ChartKey::ZoomIn},
    {Qt::Key_Plus, Qt::ControlModifier, ChartKey::ZoomIn},
    {Qt::Key_Plus, Qt::ControlModifier | Qt::ShiftModifier, ChartKey::ZoomIn},
    {Qt::Key_Equal, alone, ChartKey::ZoomIn},
    {Qt::Key_Equal, Qt::ControlModifier, ChartKey::ZoomIn},
    {Qt::Key_Minus, alone, ChartKey::ZoomOut},
    {Qt::Key_Minus, Qt::ControlModifier, ChartKey::ZoomOut},
    {Qt::Key_Left, alone, ChartKey::Left},
    {Qt::Key_Right, alone, ChartKey::Right},
    {Qt::Key_Up, alone, ChartKey::Up},
    {Qt::Key_Down, alone, ChartKey::Down},
    {Qt::Key_PageUp, alone, ChartKey::PageUp},
    {Qt::Key_PageDown, alone, ChartKey::PageDown},
    {Qt::Key_PageUp, Qt::ShiftModifier, ChartKey::PageLeft},
    {Qt::Key_PageDown, Qt::ShiftModifier, ChartKey::PageRight},
    {Qt::Key_Home, alone, ChartKey::Top},
    {Qt::Key_End, alone, ChartKey::Bottom},
    {Qt::Key_Home, Qt::ShiftModifier, ChartKey::LeftEnd},
    {Qt::Key_End, Qt::ShiftModifier, ChartKey::RightEnd},
    {Qt::Key_Home, Qt::ControlModifier, ChartKey::LeftEnd},
    {Qt::Key_End, Qt::ControlModifier, ChartKey::RightEnd},
}};

} // namespace

std::optional<ChartKey> chartKey(int key, Qt::KeyboardModifiers modifiers) {
    const Qt::KeyboardModifiers held = modifiers & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
    const auto* const row = std::find_if(keys.begin(), keys.end(), [&](const Row& candidate) {
        return candidate.key == key && candidate.held == held;
    });
    return row == keys.end() ? std::nullopt : std::optional(row->meaning);
}

bool isArrow(ChartKey key) {
    return key == ChartKey::Left || key == ChartKey::Right || key == ChartKey::Up || key == ChartKey::Down;
}

} // namespace quarvel
