#pragma once

#include "archive/folder_entries.h"

#include <QString>
#include <chrono>
#include <memory>
#include <vector>

namespace quarvel {

/// What can be said of an archive folder without listing it.
enum class ArchiveState {
    Filled,
    Empty,      ///< no entry that a listing would show
    Unreadable, ///< no folder, or one that may not be read
};
[[nodiscard]] ArchiveState archiveState(const QString& folder);

/// The entries of the archive folder whose names begin with a typed text, by name without regard to case.
/// Made for folders of 50,000 airports: the entries are shared with every other listing of the folder, and a
/// row's text is made when it is asked for.
class ArchiveListing {
public:
    /// No entries.
    ArchiveListing() = default;

    /// Whether the folder could be read; without any text to look for, it always could.
    [[nodiscard]] bool isReadable() const { return !entries_ || entries_->areReadable(); }
    [[nodiscard]] int size() const { return static_cast<int>(picked_.empty() ? count_ : picked_.size()); }
    /// The row's text: a folder's name between square brackets, a file's name bare.
    [[nodiscard]] QString text(int row) const;

private:
    friend class ArchiveSearch;
    struct Row {
        quint32 entry;
        bool folder;
    };

    std::shared_ptr<const FolderEntries> entries_;
    std::size_t first_ = 0; ///< the rows are entries in a row,
    std::size_t count_ = 0;
    std::vector<Row> picked_; ///< unless some in between do not match, or may be something else next time
};

/// Lists the archive folder as it is at each call, and reads it only when it has changed since the last one.
class ArchiveSearch {
public:
    /// Twice the coarsest clock of the file systems concerned: old ext ones count whole seconds, all others
    /// the ticks of the kernel, some milliseconds. A folder changed more recently is read at each call.
    static constexpr std::chrono::seconds settledAfter{2};

    explicit ArchiveSearch(std::chrono::nanoseconds settled = settledAfter) : settled_(settled) {}

    /// Lists `folder`. Letter case is ignored; a "?" or "*" in `typed` is a wildcard, a separator matches
    /// nothing; an empty text matches every entry. Hidden entries are left out. A folder that cannot be read
    /// gives no entries.
    [[nodiscard]] ArchiveListing list(const QString& folder, const QString& typed);

    /// Whether `folder` would be listed from what was read before.
    [[nodiscard]] bool keeps(const QString& folder) const;

private:
    std::chrono::nanoseconds settled_;
    std::shared_ptr<const FolderEntries> entries_;
};

} // namespace quarvel
