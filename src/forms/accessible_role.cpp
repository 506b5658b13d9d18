#include "forms/accessible_role.h"

#include <QAccessibleWidget>
#include <QStringList>
#include <QWidget>

namespace quarvel {
namespace {

class RoleWidget : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;

    // Asked each time: a widget may become a command after a tool has met it.
    [[nodiscard]] QAccessible::Role role() const override {
        const auto* const its = own();
        return its != nullptr ? its->accessibleRole() : QAccessibleWidget::role();
    }
    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (isPressable()) names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& action) override {
        if (action == pressAction() && isPressable())
            own()->press();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    /// The widget. None while it is being destroyed: the toolkit tells that it hides when all that is ours in
    /// it is gone.
    [[nodiscard]] WithAccessibleRole* own() const { return dynamic_cast<WithAccessibleRole*>(object()); }
    [[nodiscard]] bool isPressable() const { return own() != nullptr && own()->isPressable(); }
};

QAccessibleInterface* withOwnRole(const QString& /*className*/, QObject* object) {
    const auto* const own = dynamic_cast<WithAccessibleRole*>(object);
    return own != nullptr ? new RoleWidget(static_cast<QWidget*>(object), own->accessibleRole()) : nullptr;
}

} // namespace

WithAccessibleRole::WithAccessibleRole() {
    static const bool installed = [] {
        QAccessible::installFactory(withOwnRole);
        return true;
    }();
    static_cast<void>(installed);
}

} // namespace quarvel
