#pragma once

#include "forms/container.h"
#include "forms/event.h"
#include "forms/widget_control.h"

class QAction;
class QMenu;

namespace quarvel {

/// A menu or a menu item: a control with a caption and a tag and without measures. The caption "-" makes it a
/// separator.
class MenuItem : public Control {
public:
    MenuItem(Container& container, const ControlSpec& spec, QMenu* menu);

    [[nodiscard]] QString name() const override { return name_; }
    [[nodiscard]] std::optional<int> index() const override { return index_; }
    [[nodiscard]] std::optional<QString> caption() const override;
    Setting setCaption(const QString& text) override;
    [[nodiscard]] std::optional<QString> tag() const override { return tag_; }
    Setting setTag(const QString& text) override;

    void setChecked(bool checked);
    [[nodiscard]] bool isChecked() const;
    void setUsable(Usable usable);
    [[nodiscard]] bool isUsable() const;
    [[nodiscard]] QAction& action() const { return *action_; }

    Event<> clicked;

private:
    QString name_;
    std::optional<int> index_;
    QString tag_;
    QString caption_; ///< the action of a separator has no text: it would be drawn beside the line
    QAction* action_;
};

/// A top-level menu, in the window's menu bar when it has one. The items are added by making them with
/// menu().
class Menu : public MenuItem {
public:
    Menu(Container& container, const ControlSpec& spec);
    [[nodiscard]] QMenu* menu() const { return menu_; }

private:
    QMenu* menu_;
};

/// A control without any surface on the window, such as the presenter's.
class ServiceControl : public Control {
public:
    ServiceControl(Container& container, const ControlSpec& spec);
    [[nodiscard]] QString name() const override { return name_; }

private:
    QString name_;
};

} // namespace quarvel
