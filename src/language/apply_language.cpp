#include "language/language_support.h"
#include "language/profile.h"

#include <QLatin1StringView>

namespace quarvel {
using namespace Qt::StringLiterals;
namespace {

/// A text of a control that the language file may replace, but never empty.
struct ControlText {
    QLatin1StringView suffix;
    Setting (Control::*set)(const QString& text);
};

constexpr ControlText controlTexts[] = {
    {".Caption"_L1, &Control::setCaption},
    {".ToolTipText"_L1, &Control::setToolTip},
    {".Tag"_L1, &Control::setTag},
};

/// A window's section of a language file. A lookup fails only when the file cannot be read; the text
/// concerned then stays as it is, whereas an absent key is an empty text.
struct WindowSection {
    Result<QString> file;
    QString name;

    [[nodiscard]] Result<QString> text(const QString& key) const {
        return file.then([&](const QString& path) { return ReadIniString(path, name, key); });
    }
};

void applyToControl(const WindowSection& section, Control& control) {
    const QString stem = controlKey(control);
    for (const ControlText& target : controlTexts) {
        const Result<QString> text = section.text(stem + target.suffix);
        if (text && !text.value().isEmpty()) (control.*target.set)(text.value());
    }
    const QString tabStem = control.name() + u".TabCaption("_s;
    for (int tab = 0; tab < control.tabCount(); ++tab)
        if (const Result<QString> text = section.text(tabStem + QString::number(tab) + u')'))
            control.setTabCaption(tab, text.value());
}

} // namespace

void modLanguageSupport::MLSApplyLanguage(ControlWindow& window) const {
    const WindowSection section{languageFile(), window.windowName()};
    if (!window.windowCaption().isEmpty())
        if (const Result<QString> text = section.text(section.name + u".Caption"_s))
            window.setWindowCaption(text.value());
    if (const Result<QString> text = section.text(section.name + u".Tag"_s))
        window.setWindowTag(text.value());

    const int loading = window.loading();
    const QString language = MLSCurrentLanguage;
    for (Control* control : window.controls()) {
        applyToControl(section, *control);
        window.processPendingMessages();
        // A handler that ran just now may have unloaded the window, and its controls with it.
        if (!window.isLoaded() || window.loading() != loading) return;
        // Or may have chosen another language, whose texts are all on the window by now.
        if (MLSCurrentLanguage != language) return;
    }
}

} // namespace quarvel
