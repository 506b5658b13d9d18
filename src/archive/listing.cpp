#include "archive/listing.h"

#include "files/folder_reader.h"
#include "files/system_name.h"

#include <QByteArray>
#include <optional>
#include <string_view>

namespace quarvel {
namespace {

/// The place after the character at `at` in UTF-8 text.
std::size_t nextCharacter(std::string_view text, std::size_t at) {
    do ++at;
    while (at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U);
    return at;
}

/// Whether folded UTF-8 begins with a pattern in which "?" is any one character and "*" any number of them.
/// Only the last star met is ever tried again, so the work is bounded by the product of the lengths.
bool beginsLike(std::string_view text, std::string_view pattern) {
    std::size_t at = 0;
    std::size_t in = 0;
    std::optional<std::size_t> star; // in the pattern, after the last star
    std::size_t covered = 0;         // in the text, what that star takes
    while (in < pattern.size()) {
        if (pattern[in] == '*') {
            star = ++in;
            covered = at;
        } else if (at < text.size() && pattern[in] == '?') {
            at = nextCharacter(text, at);
            ++in;
        } else if (at < text.size() && pattern[in] == text[at]) {
            ++at;
            ++in;
        } else {
            if (!star || at >= text.size()) return false;
            covered = nextCharacter(text, covered);
            at = covered;
            in = *star;
        }
    }
    return true;
}

} // namespace

ArchiveState archiveState(const QString& folder) {
    const QByteArray path = systemName(folder);
    FolderReader reader(path);
    while (const dirent* found = reader.next()) {
        if (found->d_name[0] == '.') continue;
        EntryKind kind = kindInFolder(*found);
        if (kind == EntryKind::Loose) kind = kindOnDisk(path + '/' + found->d_name);
        if (kind != EntryKind::Other) return ArchiveState::Filled;
    }
    return reader.error() == 0 ? ArchiveState::Empty : ArchiveState::Unreadable;
}

ArchiveListing ArchiveSearch::list(const QString& folder, const QString& typed) {
    if (typed.contains(u'/') || typed.contains(u'\\')) return {};
    if (!keeps(folder)) entries_ = std::make_shared<FolderEntries>(systemName(folder));
    const QByteArray folded = foldedName(typed);
    const std::string_view pattern(folded.constData(), static_cast<std::size_t>(folded.size()));
    const std::string_view beginning = pattern.substr(0, pattern.find_first_of("*?"));
    const auto [first, end] = entries_->beginningWith(beginning);

    ArchiveListing listing;
    listing.entries_ = entries_;
    if (beginning == pattern && !entries_->hasLooseKinds()) {
        listing.first_ = first;
        listing.count_ = end - first;
        return listing;
    }
    for (std::size_t entry = first; entry < end; ++entry) {
        if (!beginsLike(entries_->folded(entry), pattern)) continue;
        const EntryKind kind = entries_->kindNow(entry);
        if (kind == EntryKind::Other) continue;
        listing.picked_.push_back({static_cast<quint32>(entry), kind == EntryKind::Folder});
    }
    return listing;
}

bool ArchiveSearch::keeps(const QString& folder) const {
    return entries_ && entries_->areCurrent(systemName(folder), settled_);
}

QString ArchiveListing::text(int row) const {
    const auto place = static_cast<std::size_t>(row);
    const std::size_t entry = picked_.empty() ? first_ + place : picked_[place].entry;
    const bool folder = picked_.empty() ? entries_->kind(entry) == EntryKind::Folder : picked_[place].folder;
    const std::string_view stored = entries_->stored(entry);
    const QString name = readableName(nameFromSystem(stored));
    return folder ? u'[' + name + u']' : name;
}

} // namespace quarvel
