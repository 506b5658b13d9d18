#pragma once

#include <QByteArray>
#include <QString>
#include <QtGlobal>
#include <chrono>
#include <dirent.h>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace quarvel {

enum class EntryKind : quint8 {
    Folder,
    File,
    Other, ///< neither: a pipe, a link to nothing
    Loose, ///< a link, or on a file system that does not tell: may change without a trace in the folder
};

/// What an entry just read is, without a look at the entry itself.
[[nodiscard]] EntryKind kindInFolder(const dirent& entry);
/// What an entry is, links followed; never Loose. One that cannot be looked at just now counts as a folder,
/// as airports are: opening it tells why.
[[nodiscard]] EntryKind kindOnDisk(const QByteArray& path);

/// A name composed and case-folded, in UTF-8, as names are compared. Folding keeps the order of code points,
/// which UTF-8 keeps too.
[[nodiscard]] QByteArray foldedName(const QString& name);

/// By what a folder tells that its list of entries has changed. Its time of change is set by the system
/// alone, so that no tool can set it back after a change.
struct FolderStamp {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 modifiedSecond = 0; ///< since 1970; any tool may have set it, to any time
    qint64 modifiedNanosecond = 0;
    qint64 changed = 0; ///< nanoseconds since 1970

    bool operator==(const FolderStamp&) const = default;
};

/// All entries of a folder that are not hidden, read once, by name without regard to case. Names and kinds
/// come from the folder itself, without a look at each entry.
class FolderEntries {
public:
    /// Reads `folder`; one that cannot be read, or not to its end, has no entries.
    explicit FolderEntries(QByteArray folder);

    [[nodiscard]] bool areReadable() const { return readable_; }

    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    [[nodiscard]] std::string_view folded(std::size_t entry) const;
    [[nodiscard]] std::string_view stored(std::size_t entry) const; ///< as on disk
    [[nodiscard]] EntryKind kind(std::size_t entry) const { return entries_[entry].kind; }
    /// The kind by a look at the disk, where the one read may have changed since; never Loose.
    [[nodiscard]] EntryKind kindNow(std::size_t entry) const;
    /// Whether a kind may change while the entries stay current.
    [[nodiscard]] bool hasLooseKinds() const { return hasLooseKinds_; }

    /// The first entry whose folded name begins with `beginning`, and the one after the last.
    [[nodiscard]] std::pair<std::size_t, std::size_t> beginningWith(std::string_view beginning) const;

    /// Whether `folder` is the one read and still holds the same entries. Surely true only of a folder that
    /// had not been changed for `settled` when it was read: a later change within the same tick of the file
    /// system's clock would leave no trace. Folders on other than local file systems never are.
    [[nodiscard]] bool areCurrent(const QByteArray& folder, std::chrono::nanoseconds settled) const;

private:
    struct Entry {
        quint32 begin;        ///< of the folded name in names_; the stored name follows it
        quint16 foldedLength; ///< bytes
        quint16 length;       ///< bytes of the stored name
        EntryKind kind;
    };

    void read(class FolderReader& reader);
    void sort();
    void sortBehind(std::size_t depth, struct KeyedEntry* begin, struct KeyedEntry* end) const;
    [[nodiscard]] std::string_view folded(const Entry& entry) const;
    [[nodiscard]] std::string_view stored(const Entry& entry) const;

    QByteArray folder_;
    std::string names_; ///< each name, case-folded and as stored on disk, one after the other
    std::vector<Entry> entries_;
    bool readable_ = false;
    bool hasLooseKinds_ = false;
    bool tellsChanges_ = false; ///< the stamp tells of every change
    FolderStamp stamp_;         ///< of the time before the entries were read
    qint64 readAt_ = 0;         ///< nanoseconds since 1970, before the stamp was taken
};

} // namespace quarvel
