#pragma once

#include "forms/core/control.h"
#include "support/plain_window.h"

#include <QString>
#include <QStringList>
#include <optional>

namespace quarvel {

/// A control whose properties are plain values; a property without a value is one that it lacks.
struct ValueControl : Control {
    QString name_;
    std::optional<int> index_;
    std::optional<QString> caption_, toolTip_, tag_;
    QStringList tabs_;

    QString name() const override { return name_; }
    std::optional<int> index() const override { return index_; }
    int tabCount() const override { return static_cast<int>(tabs_.size()); }
    Setting setCaption(const QString& text) override { return set(caption_, text); }
    Setting setToolTip(const QString& text) override { return set(toolTip_, text); }
    Setting setTag(const QString& text) override { return set(tag_, text); }
    Setting setTabCaption(int tab, const QString& text) override {
        tabs_[tab] = text;
        return Setting::Done;
    }
    static Setting set(std::optional<QString>& property, const QString& text) {
        if (!property) return Setting::NoSuchProperty;
        property = text;
        return Setting::Done;
    }
};

/// A window over such controls; it stays loaded.
struct ValueWindow : PlainWindow<ControlWindow, ValueControl> {
    ValueWindow() {
        name = QStringLiteral("frmMain");
        caption = tag = QStringLiteral("designed");
    }
    ValueControl& add(const QString& controlName, std::optional<int> index = std::nullopt) {
        ValueControl& control = addControl();
        control.name_ = controlName;
        control.index_ = index;
        control.caption_ = control.toolTip_ = control.tag_ = QStringLiteral("designed");
        return control;
    }
};

} // namespace quarvel
