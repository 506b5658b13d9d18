#pragma once

#include "archive/paths.h"
#include "companion/frmFS9.h"
#include "files/state_store.h"
#include "install/program_folder.h"
#include "language/language_support.h"
#include "platform/services.h"
#include "presenter/presenter.h"
#include "prompts/prompts.h"
#include "prompts/toolkit_texts.h"
#include "safekeeping/drafts.h"
#include "safekeeping/earlier_versions.h"
#include "shell/frmMain.h"
#include "state/process_state.h"
#include "viewer/frmView.h"

#include <QObject>
#include <QSizeF>
#include <QString>
#include <vector>

namespace quarvel {

/// The program itself: which windows there are, what they share and who follows whom.
class Program : public Windows {
public:
    Program(const ProgramFolder& folder, const Services& services, Presenter& presenter);
    ~Program() override;

    /// The inside of the largest of the windows whose size is fixed, in logical pixels.
    [[nodiscard]] static QSizeF largestWindow();

    void show(WindowName name) override;
    /// Tells a failure of the start, before the main window is shown: what the window goes on to say may
    /// follow from it.
    void tell(Task task, const Failure& failure);
    [[nodiscard]] std::vector<Form*> loaded() const override;
    void unloaded(Form& form) override;

    [[nodiscard]] ProcessState& state() { return state_; }
    /// What the program remembers by itself from one run to the next.
    [[nodiscard]] StateStore& store() { return store_; }
    /// Puts on the disk what is typed and not there yet.
    void flush() { drafts_.flush(); }
    /// Ends the process, at the system's request.
    void end() { end_.endNow(); }
    [[nodiscard]] frmMain& mainWindow() { return main_; }
    [[nodiscard]] frmView& viewWindow() { return view_; }
    [[nodiscard]] frmFS9& companionWindow() { return companion_; }

private:
    /// Ends the process once what was typed is on the disk; no window's closing steps run then.
    class EndWithDrafts : public ProcessEnd {
    public:
        EndWithDrafts(Drafts& drafts, ProcessEnd& process) : drafts_(drafts), process_(process) {}
        void endNow() override {
            drafts_.flush();
            process_.endNow();
        }

    private:
        Drafts& drafts_;
        ProcessEnd& process_;
    };

    [[nodiscard]] Form& window(WindowName name);
    [[nodiscard]] Form& inFront();
    void tellLater(StateTrouble trouble, const Failure& failure);
    void keepOld(const FileContent& next);

    ProcessState state_;
    ArchivePaths paths_;
    StateStore store_;
    EarlierVersions versions_;
    bool toldOfVersions_ = false;
    BeforeReplacing beforeReplacing_;
    Drafts drafts_;
    EndWithDrafts end_;
    modLanguageSupport language_;
    Prompts prompts_;
    ToolkitTexts toolkitTexts_;
    Services services_;
    frmMain main_;
    frmView view_;
    frmFS9 companion_;
    std::vector<Form*> inLoadingOrder_;
    QObject life_; ///< what is still to be done goes with the program
};

} // namespace quarvel
