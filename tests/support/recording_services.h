#pragma once

#include "platform/services.h"
#include "presenter/presenter.h"

#include <QFile>
#include <QFileInfo>
#include <QList>
#include <QRect>
#include <QStringList>
#include <functional>

namespace quarvel {

/// Answers message boxes as told, OK or Yes when not told, and keeps what they would have shown the user.
class ScriptedMessageBoxes : public MessageBoxes {
public:
    QList<Answer> answers;
    QList<MessageBox> shown;
    QList<ButtonCaptions> captions;
    std::function<void()> meanwhile; ///< runs while the next box is open

    Answer show(QWidget* /*parent*/, const MessageBox& box, const ButtonCaptions& names) override {
        shown.append(box);
        captions.append(names);
        if (const auto during = std::exchange(meanwhile, nullptr)) during();
        if (!answers.isEmpty()) return answers.takeFirst();
        return box.buttons == Buttons::YesNo ? Answer::Yes : Answer::Ok;
    }
};

class SilentSounds : public SoundPlayer {
public:
    QStringList played;
    void play(const QString& path) override { played.append(path); }
};

class PaperlessPrinter : public FormPrinter {
public:
    PrintOutcome outcome = PrintOutcome::Printed;
    int pages = 0;
    void print(QWidget& window, std::function<void(PrintOutcome)> done) override {
        pages += outcome == PrintOutcome::Printed && !window.grab().isNull() ? 1 : 0;
        done(outcome);
    }
};

class NotedUrls : public UrlOpener {
public:
    QStringList opened;
    void open(const QString& url) override { opened.append(url); }
};

class FixedScreen : public Screen {
public:
    QRect whole() const override { return {0, 0, 1280, 1024}; }
    double twipsPerPixelX() const override { return 15; }
    double twipsPerPixelY() const override { return 15; }
};

class NotedEnd : public ProcessEnd {
public:
    bool ended = false;
    void endNow() override { ended = true; }
};

class CountedBeeps : public Beeper {
public:
    int beeps = 0;
    void beep() override { ++beeps; }
};

/// A notification area that keeps its icons' tips and hands on what the test does with the mouse.
class NotedIcons : public NotificationArea {
public:
    bool there = true;
    QList<Record> icons;
    IconWindow* window = nullptr;
    void notifyIcon(NotifyAction action, const Record& record, IconWindow& of) override {
        window = &of;
        if (action == NotifyAction::Add)
            icons.append(record);
        else
            icons.removeOne(record);
    }
    bool isThere() const override { return there; }
};

/// Reads a presenter text as the name of its file, and keeps what it would have read aloud.
class NotedPresenter : public Presenter {
public:
    QStringList loaded;
    QStringList presented;
    void LoadTextFile(const QString& path, HiddenTextBox& box) override {
        loaded.append(path);
        if (QFile::exists(path)) box.setText(QFileInfo(path).fileName());
    }
    void PresentAirport(const HiddenTextBox& box) override { presented.append(box.text()); }
};

} // namespace quarvel
