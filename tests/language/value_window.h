#pragma once

#include "forms/core/control.h"

#include <QString>
#include <QStringList>
#include <memory>
#include <optional>
#include <vector>

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
struct ValueWindow : ControlWindow {
    QString caption = QStringLiteral("designed"), tag = QStringLiteral("designed tag");
    std::vector<std::unique_ptr<ValueControl>> list;

    ValueControl& add(const QString& name, std::optional<int> index = std::nullopt) {
        ValueControl& control = *list.emplace_back(std::make_unique<ValueControl>());
        control.name_ = name;
        control.index_ = index;
        control.caption_ = control.toolTip_ = control.tag_ = QStringLiteral("designed");
        return control;
    }
    QString windowName() const override { return QStringLiteral("frmMain"); }
    QString windowCaption() const override { return caption; }
    void setWindowCaption(const QString& text) override { caption = text; }
    QString windowTag() const override { return tag; }
    void setWindowTag(const QString& text) override { tag = text; }
    std::vector<Control*> controls() const override {
        std::vector<Control*> result;
        for (const auto& control : list) result.push_back(control.get());
        return result;
    }
    void processPendingMessages() override {}
    bool isLoaded() const override { return true; }
    int loading() const override { return 1; }
};

} // namespace quarvel
