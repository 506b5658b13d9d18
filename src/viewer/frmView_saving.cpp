#include "viewer/frmView.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {

void frmView::cmdSave_Click() {
    if (chosenRow_ < 0) {
        prompts_.tell(*this, Task::ChooseChartFirst);
        return;
    }
    const Answer answer = prompts_.ask(*this, u"0027"_s, u"0028"_s, Buttons::OkCancel, BoxIcon::None);
    if (answer != Answer::Ok || c == nullptr) return;
    const Result<std::vector<NoteFile>> now = readNoteFiles(c->File1.path(), FamilyMode, ChartName);
    if (!now) {
        prompts_.tell(*this, Task::SaveNotes, now.failure());
        return;
    }
    const auto contents = noteContents(c->File1.path(), FamilyMode, ChartName, typedNotes());
    if (!contents) {
        prompts_.tell(*this, Task::SaveNotes, contents.failure());
        return;
    }
    const Answer unseen = askAboutUnseen(now.value(), contents.value());
    if (c == nullptr || (unseen != Answer::Ok && unseen != Answer::Again)) return;
    if (unseen == Answer::Again) {
        if (const Result<void> shown = readAgain(now.value()); !shown)
            prompts_.tell(*this, Task::ReadNote, shown.failure());
        return;
    }
    const Result<Written> saved =
        saveNotes(c->File1.path(), FamilyMode, ChartName, typedNotes(), beforeReplacing_);
    if (!saved) {
        prompts_.tell(*this, Task::SaveNotes, saved.failure());
        return;
    }
    draftsAreSaved();
    // Not read again: that can fail, and would pass over what another program writes just now.
    notesRead_ = now.value();
    for (std::size_t i = 0; i < notesRead_.size(); ++i) notesRead_[i].bytes = contents.value()[i].bytes;
    prompts_.tellOf(*this, saved.value());
}

std::vector<NoteText> frmView::typedNotes() const {
    std::vector<NoteText> texts;
    for (const NoteKind& kind : notesOf(FamilyMode)) texts.push_back({kind.box, boxOf(kind.box).text()});
    return texts;
}

/// Asks once for a file and its content; Ok where there is nothing to ask.
Answer frmView::askAboutUnseen(const std::vector<NoteFile>& now, const std::vector<FileContent>& next) {
    QStringList unseen;
    for (std::size_t i = 0; i < now.size(); ++i) {
        const NoteFile read = i < notesRead_.size() ? notesRead_[i] : NoteFile{now[i].box, now[i].path, {}};
        // What is on the disk already, as after a save that failed in part, is not taken away.
        if (now[i].bytes == next[i].bytes || !holdsUnseen(read, now[i])) continue;
        if (asked_.emplace(now[i].path, *now[i].bytes).second) unseen.append(now[i].path);
    }
    return unseen.isEmpty() ? Answer::Ok : prompts_.askAboutUnseen(*this, unseen);
}

/// Shows what the disk holds; what was typed is offered then. Whatever fails leaves the boxes as they are.
Result<void> frmView::readAgain(std::vector<NoteFile> now) {
    const Result<std::vector<NoteText>> notes = notesIn(now);
    if (!notes) return notes.failure();
    showNotes(notes.value());
    notesRead_ = std::move(now);
    beginDrafts(ChartName);
    return {};
}

} // namespace quarvel
