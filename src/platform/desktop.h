#pragma once

#include <QRect>
#include <QString>
#include <functional>
#include <utility>

namespace quarvel {

/// The screen's measures.
class Screen {
public:
    Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;
    virtual ~Screen() = default;
    /// The whole primary screen in logical pixels, panels included.
    [[nodiscard]] virtual QRect whole() const = 0;
    [[nodiscard]] virtual double twipsPerPixelX() const = 0;
    [[nodiscard]] virtual double twipsPerPixelY() const = 0;
};

/// Hands an address to the program that the desktop has chosen for its kind. Nobody examines whether that
/// worked.
class UrlOpener {
public:
    UrlOpener() = default;
    UrlOpener(const UrlOpener&) = delete;
    UrlOpener& operator=(const UrlOpener&) = delete;
    virtual ~UrlOpener() = default;
    virtual void open(const QString& url) = 0;
};

/// Ends the whole process at once, without any window's closing steps.
class ProcessEnd {
public:
    ProcessEnd() = default;
    ProcessEnd(const ProcessEnd&) = delete;
    ProcessEnd& operator=(const ProcessEnd&) = delete;
    virtual ~ProcessEnd() = default;
    virtual void endNow() = 0;
};

/// The warning beep.
class Beeper {
public:
    Beeper() = default;
    Beeper(const Beeper&) = delete;
    Beeper& operator=(const Beeper&) = delete;
    virtual ~Beeper() = default;
    virtual void beep() = 0;
};

class QtScreen : public Screen {
public:
    [[nodiscard]] QRect whole() const override;
    [[nodiscard]] double twipsPerPixelX() const override;
    [[nodiscard]] double twipsPerPixelY() const override;
};

class QtUrlOpener : public UrlOpener {
public:
    void open(const QString& url) override;
};

class RealProcessEnd : public ProcessEnd {
public:
    /// `finish` is given the chance to bring to an end, within half a second, what the process does behind.
    explicit RealProcessEnd(std::function<void()> finish) : finish_(std::move(finish)) {}
    void endNow() override;

private:
    std::function<void()> finish_;
};

class QtBeeper : public Beeper {
public:
    void beep() override;
};

} // namespace quarvel
