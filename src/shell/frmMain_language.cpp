#include "shell/frmMain.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace quarvel {

void frmMain::MLSFillMenuLanguages() {
    if (!languages_) findLanguages();
    c->mnuLanguage[0].clicked.calls(this, &frmMain::mnuLanguage_Click, 0);
    for (int k = 0; k < languageCount(); ++k) {
        if (k > 0) {
            MenuItem& item =
                c->mnuLanguage.add(c->form, {.name = "mnuLanguage", .index = k}, c->mnuLanguages.menu());
            item.clicked.calls(this, &frmMain::mnuLanguage_Click, k);
        }
        c->mnuLanguage[k].setCaption(languages_->at(k));
    }
    const qsizetype current = languages_.value_or(QStringList()).indexOf(state_.MLSCurrentLanguage);
    if (current >= 0) c->mnuLanguage[static_cast<int>(current)].setChecked(true);
    c->ImgLingua.forEach([this](int index, Image& flag) {
        flag.setUsable(index < languageCount() ? Usable::Yes : Usable::No);
    });
}

void frmMain::findLanguages() {
    Result<QStringList> found = language_.languages();
    if (!found && found.failure().fault != Fault::NotFound) { // looked for again when the window comes back
        prompts_.tell(*this, Task::ReadLanguage, found.failure());
        return;
    }
    languages_ = found.valueOr({});
    if (languages_->isEmpty())
        prompts_.showFixed(*this, u"Non è presente alcun file di linguaggio!"_s);
    else
        setCurrentLanguageAtStart();
    tellUnreadableLanguage();
}

int frmMain::languageCount() const { return languages_ ? static_cast<int>(languages_->size()) : 0; }

void frmMain::setCurrentLanguageAtStart() {
    if (const Result<QString> setting = language_.settingLanguage()) {
        state_.MLSCurrentLanguage = setting.value();
        return;
    }
    const QString italian = u"Italiano"_s;
    state_.MLSCurrentLanguage = languages_->contains(italian) ? italian : languages_->first();
}

void frmMain::tellUnreadableLanguage() {
    if (c == nullptr) return;
    if (const Result<void> readable = language_.checkLanguageFile(); !readable)
        prompts_.tell(*this, Task::ReadLanguage, readable.failure());
}

void frmMain::ImgLingua_Click(int index) {
    if ((index == 0 || index == 1) && index < languageCount()) SelectLanguage(index);
}

void frmMain::mnuLanguage_Click(int index) { SelectLanguage(index); }

void frmMain::SelectLanguage(int index) {
    const QString language = *c->mnuLanguage[index].caption();
    c->mnuLanguage.forEach([](int /*index*/, MenuItem& item) { item.setChecked(false); });
    c->mnuLanguage[index].setChecked(true);
    state_.MLSCurrentLanguage = language;
    for (Form* form : windows().loaded()) {
        language_.MLSApplyLanguage(*form);
        // Another choice made in the middle of this one has done all of it already.
        if (state_.MLSCurrentLanguage != language) return;
        form->giveOwnTexts();
    }
    // The item's caption is taken again: the language file may have renamed the item meanwhile.
    remember(c != nullptr ? *c->mnuLanguage[index].caption() : language);
    tellUnreadableLanguage();
}

void frmMain::remember(const QString& language) {
    const Result<Written> written = language_.writeSettingLanguage(language);
    if (written || toldForgetting_ || c == nullptr) return;
    toldForgetting_ = true;
    prompts_.tell(*this, Task::RememberLanguage, written.failure());
}

} // namespace quarvel
