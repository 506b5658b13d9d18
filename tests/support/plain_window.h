#pragma once

#include <QString>
#include <memory>
#include <vector>

namespace quarvel {

/// A window that keeps its texts and its controls as plain values and stays loaded.
template <class Window, class Item>
struct PlainWindow : Window {
    QString name, caption, tag;
    std::vector<std::unique_ptr<Item>> list;

    Item& addControl() { return *list.emplace_back(std::make_unique<Item>()); }
    QString windowName() const override { return name; }
    QString windowCaption() const override { return caption; }
    void setWindowCaption(const QString& text) override { caption = text; }
    QString windowTag() const override { return tag; }
    void setWindowTag(const QString& text) override { tag = text; }
    std::vector<Control*> controls() const override {
        std::vector<Control*> all;
        for (const auto& control : list) all.push_back(control.get());
        return all;
    }
    void processPendingMessages() override {}
    bool isLoaded() const override { return true; }
    int loading() const override { return 1; }
};

} // namespace quarvel
