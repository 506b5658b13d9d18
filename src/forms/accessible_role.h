#pragma once

#include <QAccessible>

namespace quarvel {

/// A widget of our own that tells assistive tools what it is; the toolkit knows only its own kinds.
class WithAccessibleRole {
public:
    WithAccessibleRole();
    virtual ~WithAccessibleRole() = default;
    WithAccessibleRole(const WithAccessibleRole&) = delete;
    WithAccessibleRole& operator=(const WithAccessibleRole&) = delete;

    [[nodiscard]] virtual QAccessible::Role accessibleRole() const = 0;
    /// Whether assistive tools may press it.
    [[nodiscard]] virtual bool isPressable() const { return false; }
    /// An assistive tool presses it: what a click does.
    virtual void press() {}
};

} // namespace quarvel
