#include "forms/accessible_role.h"

#include <QAccessibleWidget>
#include <QStringList>
#include <QWidget>

namespace quarvel {
namespace {

class RoleWidget : public QAccessibleWidget {
public:
    RoleWidget(QWidget* widget, WithAccessibleRole& own)
        : QAccessibleWidget(widget, own.accessibleRole()), own_(own) {}

    // Asked each time: a widget may become a command after a tool has met it.
    [[nodiscard]] QAccessible::Role role() const override { return own_.accessibleRole(); }
    [[nodiscard]] QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (own_.isPressable()) names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& action) override {
        if (action == pressAction() && own_.isPressable())
            own_.press();
        else
            QAccessibleWidget::doAction(action);
    }

private:
    WithAccessibleRole& own_; ///< the widget itself, without which this is never asked
};

QAccessibleInterface* withOwnRole(const QString& /*className*/, QObject* object) {
    auto* const own = dynamic_cast<WithAccessibleRole*>(object);
    return own != nullptr ? new RoleWidget(static_cast<QWidget*>(object), *own) : nullptr;
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
