#pragma once

#include "archive/paths.h"
#include "language/language_support.h"
#include "platform/services.h"
#include "presenter/presenter.h"
#include "prompts/prompts.h"
#include "prompts/toolkit_texts.h"
#include "shell/frmMain.h"
#include "state/process_state.h"
#include "viewer/frmView.h"

#include <QObject>
#include <QString>
#include <vector>

namespace quarvel {

/// The program itself: which windows there are, what they share and who follows whom.
class Program : public Windows {
public:
    /// `programFolder` holds the archive, the language files, the settings and the sound.
    Program(const QString& programFolder, const Services& services, Presenter& presenter);

    void show(WindowName name) override;
    [[nodiscard]] bool has(WindowName name) const override { return name != WindowName::frmFS9; }
    [[nodiscard]] std::vector<Form*> loaded() const override;
    void unloaded(Form& form) override;

    [[nodiscard]] ProcessState& state() { return state_; }
    [[nodiscard]] frmMain& mainWindow() { return main_; }
    [[nodiscard]] frmView& viewWindow() { return view_; }

private:
    ProcessState state_;
    ArchivePaths paths_;
    modLanguageSupport language_;
    Prompts prompts_;
    ToolkitTexts toolkitTexts_;
    Services services_;
    frmMain main_;
    frmView view_;
    std::vector<Form*> inLoadingOrder_;
    QObject life_; ///< what is still to be done goes with the program
};

} // namespace quarvel
