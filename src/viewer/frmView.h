#pragma once

#include "archive/paths.h"
#include "forms/form_of.h"
#include "language/language_support.h"
#include "platform/services.h"
#include "prompts/prompts.h"
#include "safekeeping/kept_draft.h"
#include "state/process_state.h"
#include "viewer/core/catalogue.h"
#include "viewer/core/notes.h"
#include "viewer/frmView_controls.h"
#include "viewer/viewport/chart_frame.h"

#include <QByteArray>
#include <QSizeF>
#include <QString>
#include <array>
#include <optional>
#include <set>
#include <utility>
#include <vector>

namespace quarvel {

/// What the chart viewer works with; all of it outlives the window.
struct frmViewNeeds {
    ProcessState& state;
    const ArchivePaths& paths;
    modLanguageSupport& language;
    Prompts& prompts;
    const Services& services;
    Drafts& drafts;
    Windows& windows;
    const BeforeReplacing& beforeReplacing; ///< of every save of the user's files
};

/// The chart viewer: the charts of the current airport by family, with their notes, zoomed and panned.
class frmView : public FormOf<frmViewControls> {
public:
    static constexpr QSizeF insideTwips{11280, 8880};

    explicit frmView(const frmViewNeeds& needs);

    // The window's fields; they survive its unloading.
    Family FamilyMode = Family::None; ///< chosen family, as its number 0 to 3
    QString ChartName;                ///< the chosen chart as its list item reads
    qint32 ZoomLevel = 0;             ///< zoom-in steps minus zoom-out steps since the chart was loaded
    qint32 TwipsPerPixelX = 0;
    qint32 TwipsPerPixelY = 0;

protected:
    void wire() override;
    void forgetControls() override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyDown(KeyDown& key) override;
    Closing Form_QueryUnload(UnloadReason reason) override;
    void giveOwnTexts() override;

private:
    // Commands (frmView.cpp)
    void Command1_Click();
    void Command2_Click();
    void Command3_Click();
    void Command4_Click();
    void cmdStampa_Click();
    void Image1_MouseDown(int button, float x, float y);
    void Picture1_WheelTurned(const WheelTurn& turn);
    void Picture1_Dragged(Drag part, QPointF pointer);
    void HScroll1_Scroll();
    void HScroll1_Change();
    void VScroll1_Scroll();
    void VScroll1_Change();
    void nameNotes(Frame& frame, MultiLineTextBox& notes);
    /// Whether a chart has been chosen since the window was loaded.
    [[nodiscard]] bool showsChart() const { return c->Image1.isUsable(); }
    void nameChart();
    void showHints();
    void beepIf(ZoomOutcome outcome);

    // Families, charts and notes (frmView_charts.cpp)
    void Option1_Click(int index);
    void setFamilyTexts(Family family);
    void List1_Click();
    void showNotes(const std::vector<NoteText>& notes);
    void keepChosenChart();
    void Text1_KeyPress(char16_t& key);
    void Text2_KeyPress(char16_t& key);
    void Text3_KeyPress(char16_t& key);
    void tellCutText();
    [[nodiscard]] MultiLineTextBox& boxOf(NotesBox box) const;

    // Saving notes (frmView_saving.cpp)
    void cmdSave_Click();
    [[nodiscard]] std::vector<NoteText> typedNotes() const;
    [[nodiscard]] Answer askAboutUnseen(const std::vector<NoteFile>& now,
                                        const std::vector<FileContent>& next);
    [[nodiscard]] Result<void> readAgain(std::vector<NoteFile> now);

    // What was typed and not saved (frmView_drafts.cpp)
    void Text_Edited(NotesBox box);
    void Text_OfferTaken(NotesBox box);
    void Text_OfferRefused(NotesBox box);
    /// The boxes show what a chart's files hold; what was typed in them before stays, as a draft to be
    /// offered.
    void beginDrafts(const QString& chart);
    void endDrafts();
    void draftsAreSaved();
    void showOffer(NotesBox box);
    void showOffers();
    [[nodiscard]] QString draftFor(const NoteKind& kind, const QString& chart) const;
    [[nodiscard]] bool hasDraft(const QString& chart) const;
    [[nodiscard]] KeptDraft& keptOf(NotesBox box) { return kept_[static_cast<std::size_t>(box)]; }

    ProcessState& state_;
    const ArchivePaths& paths_;
    modLanguageSupport& language_;
    Prompts& prompts_;
    const Services& services_;
    const BeforeReplacing& beforeReplacing_;
    Drafts& drafts_;

    std::array<KeptDraft, allNotesBoxes.size()> kept_; ///< of each notes box
    std::optional<ChartFrame> chart_;                  ///< while the window is loaded
    std::vector<NoteFile> notesRead_; ///< of the chart shown, as they were when last seen or saved
    std::set<std::pair<QString, QByteArray>> asked_; ///< paths and contents that the user was asked about
    int chosenOption_ = -1; ///< of the list on show; -1 once the options have been cleared
    int chosenRow_ = -1;    ///< of the chart shown, in the list on show; -1 when it is none of this list
};

} // namespace quarvel
