#include "safekeeping/drafts.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

using namespace std::chrono_literals;

constexpr auto untilWritten = 500ms;
constexpr std::size_t mostDrafts = 500;
constexpr qsizetype mostCharacters = 2'000'000; // of all texts

StateName stateName() { return {u"drafts"_s, 1}; }

} // namespace

QString draftName(const QString& airport, const QString& folder, const QString& file) {
    const QString path = airport + u'/' + folder + u'/' + file;
    return path.normalized(QString::NormalizationForm_C).toCaseFolded();
}

Drafts::Drafts(StateStore& store) : store_(store) {
    soon_.setSingleShot(true);
    soon_.setInterval(untilWritten);
    QObject::connect(&soon_, &QTimer::timeout, &soon_, [this] { writeBehind(); });
    writer_.setMaxThreadCount(1);
}

std::optional<QString> Drafts::newest(const QString& file) {
    const auto found = find(file);
    return found == all().cend() ? std::nullopt : std::optional(found->text);
}

void Drafts::keep(const QString& file, const QString& text, Beside beside) {
    if (beside == Beside::Older) dropNewest(file);
    all().insert(all().begin(), {file, text});
    changed(file);
}

void Drafts::dropNewest(const QString& file) {
    const auto found = find(file);
    if (found == all().cend()) return;
    all().erase(found);
    changed(file);
}

/// What the disk refused is still to be written: it may be well by now.
void Drafts::takeBackRefused() {
    if (lastWrite_ == Kept::No) changed_.unite(handedOver_);
}

void Drafts::writeBehind() {
    takeBackRefused();
    Changes now = changes();
    // While the disk is still busy with the last ones, they wait.
    if (writer_.tryStart([this, now] { lastWrite_ = write(now); }))
        handedOver_ = std::exchange(changed_, {});
    else
        soon_.start();
}

void Drafts::flush() {
    soon_.stop();
    writer_.waitForDone();
    takeBackRefused();
    if (!changed_.isEmpty()) lastWrite_ = write(changes());
    handedOver_ = std::exchange(changed_, {});
}

Drafts::Changes Drafts::changes() {
    Changes now{changed_, all()};
    std::erase_if(now.drafts, [&now](const Draft& draft) { return !now.files.contains(draft.file); });
    return now;
}

Kept Drafts::write(const Changes& changes) {
    // What another copy of the program has written meanwhile stays, behind what was typed here.
    const auto replaced = [&](const Draft& draft) {
        return changes.files.contains(draft.file) &&
               std::find(seen_.cbegin(), seen_.cend(), draft) != seen_.cend();
    };
    All merged = changes.drafts;
    for (Draft& draft : onDisk())
        if (!replaced(draft)) merged.push_back(std::move(draft));

    QJsonArray array;
    qsizetype characters = 0;
    for (const Draft& draft : merged) {
        if (static_cast<std::size_t>(array.size()) == mostDrafts) break;
        if (characters + draft.text.size() > mostCharacters) continue; // the shorter ones behind it stay
        characters += draft.text.size();
        array.append(QJsonObject{{u"file"_s, draft.file}, {u"text"_s, draft.text}});
    }
    const Kept kept = store_.write(stateName(), QJsonDocument(array).toJson(QJsonDocument::Compact));
    if (kept == Kept::No) return kept;
    std::erase_if(seen_, [&](const Draft& draft) { return changes.files.contains(draft.file); });
    seen_.insert(seen_.end(), changes.drafts.cbegin(), changes.drafts.cend());
    return kept;
}

Drafts::All& Drafts::all() {
    if (!all_) all_ = seen_ = onDisk();
    return *all_;
}

Drafts::All::const_iterator Drafts::find(const QString& file) {
    return std::find_if(all().cbegin(), all().cend(),
                        [&file](const Draft& draft) { return draft.file == file; });
}

Drafts::All Drafts::onDisk() {
    All drafts;
    const QJsonArray array = QJsonDocument::fromJson(store_.readFromDisk(stateName())).array();
    for (const QJsonValue value : array)
        drafts.push_back({value[u"file"_s].toString(), value[u"text"_s].toString()});
    return drafts;
}

void Drafts::changed(const QString& file) {
    changed_.insert(file);
    if (!soon_.isActive()) soon_.start(); // counted from the first key, not from the last
}

} // namespace quarvel
