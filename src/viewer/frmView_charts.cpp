#include "files/lookup.h"
#include "text/key_filter.h"
#include "viewer/frmView.h"

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

/// The numbered messages of a family: the captions of the notes frames and the text before the number of
/// charts. An empty number leaves the caption empty.
struct FamilyTexts {
    QString frame1;
    QString frame3;
    QString frame4;
    QString count;
};

FamilyTexts textsOf(Family family) {
    switch (family) {
    case Family::Sid: return {u"0005"_s, u"0003"_s, u"0006"_s, u"0004"_s};
    case Family::Star: return {u"0007"_s, {}, {}, u"0008"_s};
    case Family::Approach: return {u"0009"_s, {}, {}, u"0010"_s};
    case Family::None: break;
    }
    return {};
}

} // namespace

void frmView::Option1_Click(int index) {
    c->frame6.setUsable(Usable::Yes); // also the way back, whatever becomes of the list
    const Family family = familyOfOption(index);
    const Result<QString> folder = paths_.familyFolder(state_.CurrentAirport, familyFolderName(family));
    const Result<void> listed = folder ? c->File1.setPath(folder.value()) : Result<void>(folder.failure());
    if (!listed) {
        c->Option1[index].clear();
        if (chosenOption_ >= 0) c->Option1[chosenOption_].choose();
        prompts_.tell(*this, Task::ListCharts, listed.failure());
        return;
    }
    state_.FamilyFolder = folder.value();
    c->List1.setItems(chartNames(c->File1.files()));
    chosenRow_ = -1;
    chosenOption_ = index;
    FamilyMode = family;
    setFamilyTexts(family);
    giveOwnTexts();
}

void frmView::setFamilyTexts(Family family) {
    const FamilyTexts texts = textsOf(family);
    const auto textOf = [this](const QString& number) {
        return number.isEmpty() ? QString() : language_.MLSGetString(number);
    };
    c->Frame3.setCaption(textOf(texts.frame3));
    c->Frame1.setCaption(textOf(texts.frame1));
    c->Frame4.setCaption(textOf(texts.frame4));
    c->lblTotProc.setCaption(textOf(texts.count) + QString::number(c->List1.count()));
}

void frmView::List1_Click() {
    const QString chart = c->List1.selectedText();
    // Picture and notes are read before anything is shown, so that a failure leaves the window as it was.
    const Result<Picture> picture = resolvePath(c->File1.path(), chartFileName(chart)).then(Picture::read);
    if (!picture) {
        keepChosenChart();
        prompts_.tell(*this, Task::ReadChart, picture.failure());
        return;
    }
    Result<std::vector<NoteFile>> files = readNoteFiles(c->File1.path(), FamilyMode, chart);
    const Result<std::vector<NoteText>> notes = files.then(notesIn);
    if (!notes) {
        keepChosenChart();
        prompts_.tell(*this, Task::ReadNote, notes.failure());
        return;
    }
    if (chart_->load(picture.value()) == ChartShown::TooLarge) {
        keepChosenChart();
        prompts_.tell(*this, Task::ShowChart);
        return;
    }
    c->chartHint.showText({});
    showNotes(notes.value());
    notesRead_ = files.take();
    beginDrafts(chart);
    c->Command4.setUsable(Usable::Yes);
    ChartName = chart;
    state_.ChartFile = chartFileName(chart);
    chosenRow_ = c->List1.selectedRow();
    nameChart();
    if (const auto& shortfall = picture.value().shortfall())
        prompts_.tell(*this, Task::ShowChartInPart, *shortfall);
}

void frmView::keepChosenChart() {
    if (c != nullptr) c->List1.select(chosenRow_);
}

void frmView::showNotes(const std::vector<NoteText>& notes) {
    for (const NotesBox box : allNotesBoxes) boxOf(box).setText({});
    for (const NoteText& note : notes) {
        boxOf(note.box).setEditing(Editing::Free);
        boxOf(note.box).setText(note.text);
    }
}

void frmView::Text1_KeyPress(char16_t& key) { key = UpperCaseKey(key); }

void frmView::Text2_KeyPress(char16_t& key) { key = UpperCaseKey(key); }

void frmView::Text3_KeyPress(char16_t& key) { key = UpperCaseKey(key); }

void frmView::tellCutText() { prompts_.tellSoon(*this, Task::PasteText); }

MultiLineTextBox& frmView::boxOf(NotesBox box) const {
    switch (box) {
    case NotesBox::Text1: return c->Text1;
    case NotesBox::Text2: return c->Text2;
    case NotesBox::Text3: break;
    }
    return c->Text3;
}

} // namespace quarvel
