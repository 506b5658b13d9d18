#pragma once

#include "archive/listing.h"
#include "archive/paths.h"
#include "archive/record.h"
#include "forms/form_of.h"
#include "language/language_support.h"
#include "platform/services.h"
#include "presenter/presenter.h"
#include "prompts/prompts.h"
#include "safekeeping/kept_draft.h"
#include "shell/frmMain_controls.h"
#include "state/process_state.h"

#include <QSizeF>
#include <QString>
#include <QStringList>
#include <optional>
#include <set>
#include <utility>

namespace quarvel {

/// What the main window works with; all of it outlives the window.
struct frmMainNeeds {
    ProcessState& state;
    const ArchivePaths& paths;
    modLanguageSupport& language;
    Prompts& prompts;
    const Services& services;
    Drafts& drafts;
    Presenter& presenter;
    Windows& windows;
    const BeforeReplacing& beforeReplacing; ///< of every save of the user's files
};

/// The main window: finds and opens airports, shows and takes their data, and leads to everything else.
class frmMain : public FormOf<frmMainControls> {
public:
    static constexpr QSizeF insideTwips{10305, 8925};

    explicit frmMain(const frmMainNeeds& needs);

    /// Makes language `index` current, puts its texts on every loaded window and records it.
    void SelectLanguage(int index);

protected:
    void wire() override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyDown(KeyDown& key) override;
    void giveOwnTexts() override;

private:
    // Window states (frmMain.cpp)
    void ShowAirportData();
    void HideAirportData();
    void ShowDecorations();
    void HideDecorations();
    void UnlockFields();
    void LockFields();
    void ClearAllFields();
    void setAirportDataShown(Shown shown);

    // What assistive tools call the controls, and what stands where there is nothing (frmMain_words.cpp)
    void showHints();
    void showSearchHint();
    [[nodiscard]] QString emptyListHint();
    [[nodiscard]] QString hintFor(ArchiveState archive);

    // General commands (frmMain_commands.cpp)
    void cmdEsci_Click();
    void cmdInfo_Click();
    void cmdEsciMail_Click();
    void Label15_MouseMove();
    void Label15_Click();
    void cmdStampa_Click();
    void cmdGrafica_Click();
    void cmdAzzera_Click();

    // Entering and saving a new airport (frmMain_entry.cpp)
    void txtRwy_KeyPress(int index, char16_t& key);
    void txtRwy_LostFocus(int index);
    void tellCutText();
    void refuseDesignator(int index);
    void cmdReset_Click();
    void cmdSave_Click();
    [[nodiscard]] bool CheckIcaoCode();
    [[nodiscard]] AirportRecord typedRecord() const;
    [[nodiscard]] Answer askAboutUnseen(const AirportRecord& next);
    void readAgain();
    void backToEditing();
    void endAfterSaving();

    // What was typed of a new airport and not saved (frmMain_drafts.cpp)
    void txtRwy_Edited();
    void txtRwy_OfferTaken();
    void txtRwy_OfferRefused();
    /// An airport is entered, of which this is saved and stands in the fields.
    void beginDraft(const QString& airport, const QString& saved);
    /// A new airport is entered; the fields may still hold another's data.
    void beginNewDraft(const QString& airport);
    void endDraft();
    void showOffer();
    [[nodiscard]] QString typedFields() const;
    [[nodiscard]] static QString noFields();

    // What Escape takes away (frmMain_escape.cpp)
    void takeResultsAway();
    void leaveNewAirport();
    [[nodiscard]] bool isAnythingTyped() const;

    // Search and opening (frmMain_opening.cpp)
    void txtNomeAeroporto_KeyPress(char16_t& key);
    void txtNomeAeroporto_KeyUp(int key);
    void lstWords_Click();
    void cmdElabora_Click();
    void openTypedName();
    struct Before;
    [[nodiscard]] Before before() const;
    void putBack(const Before& before);
    void OpenAirport(const Before& before);
    void offerNewAirport(const QString& name, const Before& before);
    void backToSearch();
    void startNewAirport(const QString& name, const Before& before);
    void showAirport(const QString& name, const Before& before);
    void fillFields(const AirportRecord& record);
    void presentAirport(const QString& name);
    void endWithoutPicture(const QString& name);

    // Language (frmMain_language.cpp)
    void MLSFillMenuLanguages();
    void findLanguages();
    [[nodiscard]] int languageCount() const;
    void setCurrentLanguageAtStart();
    void tellUnreadableLanguage();
    void remember(const QString& language);
    void ImgLingua_Click(int index);
    void mnuLanguage_Click(int index);

    ProcessState& state_;
    const ArchivePaths& paths_;
    modLanguageSupport& language_;
    Prompts& prompts_;
    const Services& services_;
    const BeforeReplacing& beforeReplacing_;
    Presenter& presenter_;

    KeptDraft newAirport_;
    ArchiveSearch search_;
    std::optional<QStringList> languages_;     ///< the language list, built once per run
    QString presenterTextPath_;                ///< of the open airport
    QStringList madeFolders_;                  ///< airports whose folders were made while this one is entered
    std::optional<AirportRecord> recordShown_; ///< that the fields began with; none for a new airport
    std::set<std::pair<QString, QByteArray>> asked_; ///< files and contents that a save may replace unseen
    bool toldForgetting_ = false;                    ///< that the chosen language cannot be remembered
};

} // namespace quarvel
