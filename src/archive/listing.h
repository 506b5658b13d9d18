#pragma once

#include <QString>
#include <string>
#include <string_view>
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
/// Made for folders of 50,000 airports: names and kinds come from the directory itself, and a row's text is
/// made when it is asked for.
class ArchiveListing {
public:
    /// No entries.
    ArchiveListing() = default;

    /// Lists `folder`. Letter case is ignored; a "?" or "*" in `typed` is a wildcard, a separator matches
    /// nothing; an empty text matches every entry. Hidden entries are left out. A folder that cannot be read
    /// gives no entries.
    ArchiveListing(const QString& folder, const QString& typed);

    [[nodiscard]] int size() const { return static_cast<int>(entries_.size()); }
    /// The row's text: a folder's name between square brackets, a file's name bare.
    [[nodiscard]] QString text(int row) const;

private:
    struct Entry {
        quint64 key;          ///< the folded name's first eight bytes as a number: most comparisons end here
        quint32 begin;        ///< of the folded name in names_; the stored name follows it
        quint16 foldedLength; ///< bytes
        quint16 length;       ///< bytes of the name as stored on disk
        bool folder;
    };

    void read(const QString& folder, std::string_view pattern);
    [[nodiscard]] std::string_view foldedName(const Entry& entry) const;
    [[nodiscard]] std::string_view storedName(const Entry& entry) const;

    std::string names_; ///< each matching name, case-folded and as stored on disk, one after the other
    std::vector<Entry> entries_;
};

} // namespace quarvel
