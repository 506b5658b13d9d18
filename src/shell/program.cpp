#include "shell/program.h"

#include "install/state_folder.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <iterator>
#include <utility>

namespace quarvel {

namespace {

StateStore storeBeside(const ProgramFolder& folder, StateStore::Report report) {
    const StateFolder place = findStateFolder(folder);
    return {place.path, place.access, std::move(report)};
}

Services withEnd(const Services& services, ProcessEnd& process) {
    return {services.messageBoxes, services.sounds, services.printer, services.urls,
            services.screen,       process,         services.beeper,  services.notificationArea};
}

} // namespace

Program::Program(const ProgramFolder& folder, const Services& services, Presenter& presenter)
    : paths_(folder.path),
      store_(storeBeside(
          folder, [this](StateTrouble trouble, const Failure& failure) { tellLater(trouble, failure); })),
      versions_(folder.path, findStateFolder(folder)),
      beforeReplacing_([this](const FileContent& next) { keepOld(next); }), drafts_(store_),
      end_(drafts_, services.process), language_(folder.path, state_.MLSCurrentLanguage, beforeReplacing_),
      prompts_(language_, services.messageBoxes), toolkitTexts_(language_),
      services_(withEnd(services, end_)),
      main_({state_, paths_, language_, prompts_, services_, drafts_, presenter, *this, beforeReplacing_}),
      view_({state_, paths_, language_, prompts_, services_, drafts_, *this, beforeReplacing_}),
      companion_({state_, paths_, language_, prompts_, services_, *this}) {
    QCoreApplication::installTranslator(&toolkitTexts_);
}

Program::~Program() { drafts_.flush(); }

QSizeF Program::largestWindow() {
    return frmMain::insideTwips.expandedTo(frmView::insideTwips) / twipsPerPixel;
}

void Program::show(WindowName name) {
    Form& form = window(name);
    if (!form.isLoaded()) inLoadingOrder_.push_back(&form);
    form.show();
}

void Program::tell(Task task, const Failure& failure) { prompts_.tell(main_, task, failure); }

void Program::tellLater(StateTrouble trouble, const Failure& failure) {
    // Whoever reads or writes has its own work to finish first, and may be another thread.
    const auto tell = [this, trouble, failure] {
        if (trouble == StateTrouble::SetAside) return prompts_.tell(inFront(), Task::UseState, failure.path);
        prompts_.tell(inFront(), Task::KeepState, failure);
    };
    QMetaObject::invokeMethod(&life_, tell, Qt::QueuedConnection);
}

void Program::keepOld(const FileContent& next) {
    const Result<void> kept = versions_.keep(next);
    if (kept || toldOfVersions_) return;
    toldOfVersions_ = true;
    QTimer::singleShot(0, &life_, [this, failure = kept.failure()] {
        prompts_.tell(inFront(), Task::KeepVersion, failure);
    });
}

/// The window that the user looks at.
Form& Program::inFront() {
    const auto shown = std::find_if(inLoadingOrder_.rbegin(), inLoadingOrder_.rend(), [](const Form* form) {
        return form->window() != nullptr && form->window()->isVisible();
    });
    return shown == inLoadingOrder_.rend() ? main_ : **shown;
}

Form& Program::window(WindowName name) {
    switch (name) {
    case WindowName::frmMain: return main_;
    case WindowName::frmView: return view_;
    case WindowName::frmFS9: break;
    }
    return companion_;
}

std::vector<Form*> Program::loaded() const {
    std::vector<Form*> forms;
    std::copy_if(inLoadingOrder_.begin(), inLoadingOrder_.end(), std::back_inserter(forms),
                 [](const Form* form) { return form->isLoaded(); });
    return forms;
}

void Program::unloaded(Form& form) {
    std::erase(inLoadingOrder_, &form);
    // Whoever unloads a window may show the next one in the same breath.
    QTimer::singleShot(0, &life_, [this] {
        if (inLoadingOrder_.empty()) QCoreApplication::quit();
    });
}

} // namespace quarvel
