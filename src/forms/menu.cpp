#include "forms/menu.h"

#include "forms/command.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace quarvel {

MenuItem::MenuItem(Container& container, const ControlSpec& spec, QMenu* menu)
    : name_(QString::fromLatin1(spec.name)), index_(spec.index), action_(new QAction(&container.inside())) {
    action_->setObjectName(controlKey(*this));
    MenuItem::setCaption(QString::fromUtf16(spec.caption));
    action_->setVisible(spec.shown == Shown::Yes);
    action_->setEnabled(spec.usable == Usable::Yes);
    QObject::connect(action_, &QAction::triggered, action_,
                     [this, in = &container.inside()] { command(*in, clicked); });
    if (menu != nullptr) menu->addAction(action_);
    container.controlList().push_back(this);
}

std::optional<QString> MenuItem::caption() const { return caption_; }

Setting MenuItem::setCaption(const QString& text) {
    const bool separator = text == u"-";
    caption_ = text;
    action_->setSeparator(separator);
    action_->setText(separator ? QString() : text);
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
    if (QMenuBar* bar = container.menuBar()) bar->addAction(&action());
}

ServiceControl::ServiceControl(Container& container, const ControlSpec& spec)
    : name_(QString::fromLatin1(spec.name)) {
    container.controlList().push_back(this);
}

} // namespace quarvel
