#include "forms/menu.h"

#include <QAction>
#include <QMenu>

namespace quarvel {

MenuItem::MenuItem(Container& container, const ControlSpec& spec, QMenu* menu)
    : name_(QString::fromLatin1(spec.name)), index_(spec.index), action_(new QAction(&container.inside())) {
    action_->setObjectName(controlKey(*this));
    action_->setText(QString::fromUtf16(spec.caption));
    action_->setVisible(spec.shown == Shown::Yes);
    action_->setEnabled(spec.usable == Usable::Yes);
    QObject::connect(action_, &QAction::triggered, action_, [this] { clicked.raise(); });
    if (menu != nullptr) menu->addAction(action_);
    container.controlList().push_back(this);
}

std::optional<QString> MenuItem::caption() const { return action_->text(); }

Setting MenuItem::setCaption(const QString& text) {
    action_->setText(text);
    return Setting::Done;
}

Setting MenuItem::setTag(const QString& text) {
    tag_ = text;
    return Setting::Done;
}

void MenuItem::setChecked(bool checked) {
    action_->setCheckable(checked);
    action_->setChecked(checked);
}

bool MenuItem::isChecked() const { return action_->isChecked(); }

void MenuItem::setUsable(Usable usable) { action_->setEnabled(usable == Usable::Yes); }

bool MenuItem::isUsable() const { return action_->isEnabled(); }

Menu::Menu(Container& container, const ControlSpec& spec)
    : MenuItem(container, spec, nullptr), menu_(new QMenu(&container.inside())) {
    action().setMenu(menu_);
}

ServiceControl::ServiceControl(Container& container, const ControlSpec& spec)
    : name_(QString::fromLatin1(spec.name)) {
    container.controlList().push_back(this);
}

} // namespace quarvel
