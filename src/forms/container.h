#pragma once

#include "forms/core/control.h"
#include "forms/core/twips.h"

#include <QWidget>
#include <vector>

class QMenuBar;

namespace quarvel {

/// What controls lie in: a window's inside, a frame or a picture box. All containers of a window share the
/// window's control list.
class Container {
public:
    Container(QWidget& inside, ScaleUnit unit, std::vector<Control*>& list)
        : inside_(inside), unit_(unit), list_(list) {}
    Container(const Container&) = delete;
    Container& operator=(const Container&) = delete;

    [[nodiscard]] QWidget& inside() const { return inside_; }
    [[nodiscard]] ScaleUnit unit() const { return unit_; }
    [[nodiscard]] std::vector<Control*>& controlList() const { return list_; }
    /// Where top-level menus are shown; none for a window whose menus only pop up.
    [[nodiscard]] virtual QMenuBar* menuBar() { return nullptr; }

protected:
    ~Container() = default;

private:
    QWidget& inside_;
    ScaleUnit unit_;
    std::vector<Control*>& list_;
};

} // namespace quarvel
