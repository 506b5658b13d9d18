#include "archive/entry_rules.h"
#include "archive/record_file.h"
#include "archive/saving.h"
#include "shell/frmMain.h"
#include "text/key_filter.h"

using namespace Qt::StringLiterals;

namespace quarvel {

void frmMain::txtRwy_KeyPress(int /*index*/, char16_t& key) { key = UpperCaseKey(key); }

void frmMain::txtRwy_LostFocus(int index) {
    if (c == nullptr) return; // the window is going
    const std::optional<PairedField> paired = pairedField(index);
    if (!paired) return;
    const QString text = c->txtRwy[index].text();
    if (paired->rule == PairRule::Copy) {
        c->txtRwy[paired->target].setText(text);
    } else {
        const Designator designator = judgeDesignator(text);
        if (designator.kind == DesignatorKind::Valid)
            c->txtRwy[paired->target].setText(designator.reciprocal);
        if (designator.kind == DesignatorKind::Refused) refuseDesignator(index);
    }
    txtRwy_Edited();
}

void frmMain::tellCutText() { prompts_.tellSoon(*this, Task::PasteText); }

void frmMain::refuseDesignator(int index) {
    queueMessage([this, index] {
        static_cast<void>(prompts_.ask(*this, u"0033"_s, u"0034"_s, Buttons::Ok, BoxIcon::Information));
        if (c == nullptr) return;
        c->txtRwy[index].setText({});
        txtRwy_Edited();
        c->txtRwy[index].setFocus();
    });
}

void frmMain::cmdReset_Click() {
    newAirport_.beginAgain(); // what is cleared now is offered
    c->txtRwy.forEach([](int /*index*/, TextBox& field) { field.setText({}); });
    c->txtRwy[IcaoCode].setFocus();
    showOffer();
}

bool frmMain::CheckIcaoCode() {
    if (!c->txtRwy[IcaoCode].text().isEmpty()) return true;
    static_cast<void>(prompts_.ask(*this, u"0035"_s, u"0036"_s, Buttons::Ok, BoxIcon::Exclamation));
    if (c != nullptr) c->txtRwy[IcaoCode].setFocus();
    return false;
}

void frmMain::backToEditing() {
    if (c == nullptr) return;
    UnlockFields();
    c->txtRwy[IcaoCode].setFocus();
}

AirportRecord frmMain::typedRecord() const {
    AirportRecord record;
    c->txtRwy.forEach([&](int position, const TextBox& field) {
        record.values[static_cast<std::size_t>(position)] = field.text();
    });
    return record;
}

void frmMain::cmdSave_Click() {
    LockFields();
    if (!CheckIcaoCode()) {
        backToEditing();
        return;
    }
    if (prompts_.ask(*this, u"0027"_s, u"0028"_s, Buttons::OkCancel, BoxIcon::None) != Answer::Ok ||
        c == nullptr) {
        backToEditing();
        return;
    }
    const AirportRecord record = typedRecord();
    const Answer unseen = askAboutUnseen(record);
    if (c == nullptr) return;
    if (unseen != Answer::Ok) {
        backToEditing();
        if (unseen == Answer::Again) readAgain();
        return;
    }
    const Result<Written> saved = saveAirport(paths_, c->txtNomeAeroporto.text(), record, beforeReplacing_);
    if (!saved) {
        prompts_.tell(*this, Task::SaveAirport, saved.failure());
        backToEditing();
        return;
    }
    state_.CurrentIcao = storableValue(record.values[IcaoCode]);
    newAirport_.saved(typedFields());
    prompts_.tellOf(*this, saved.value());
    if (c != nullptr) endAfterSaving();
}

/// Asks once for a file and its content; Ok where there is nothing to ask.
Answer frmMain::askAboutUnseen(const AirportRecord& next) {
    const auto files = unseenFiles(paths_, c->txtNomeAeroporto.text(), next, recordShown_);
    if (!files) {
        prompts_.tell(*this, Task::SaveAirport, files.failure());
        return Answer::Cancel;
    }
    QStringList unseen;
    for (const FileContent& file : files.value())
        if (asked_.emplace(file.path, file.bytes).second) unseen.append(file.path);
    return unseen.isEmpty() ? Answer::Ok : prompts_.askAboutUnseen(*this, unseen);
}

/// Shows the record that the disk holds; what was typed is offered then. A presenter's text alone shows in no
/// field: there, nothing changes.
void frmMain::readAgain() {
    const QString name = c->txtNomeAeroporto.text();
    const Result<AirportRecord> record = paths_.dataFile(name).then(readRecord);
    if (!record) {
        if (record.failure().fault != Fault::NotFound)
            prompts_.tell(*this, Task::ReadRecord, record.failure());
        return;
    }
    recordShown_ = record.value();
    fillFields(record.value());
    beginDraft(name, typedFields());
}

void frmMain::endAfterSaving() {
    c->Frame3.setShown(Shown::No);
    c->Frame5.setShown(Shown::Yes);
    static_cast<void>(prompts_.ask(*this, u"0029"_s, u"0030"_s, Buttons::OkCancel, BoxIcon::None));
    unload();
    services_.process.endNow();
}

} // namespace quarvel
