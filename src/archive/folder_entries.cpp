#include "archive/folder_entries.h"

#include "files/folder_reader.h"
#include "files/system_error.h"
#include "files/system_name.h"

#include <QChar>
#include <QList>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <linux/magic.h>
#include <numeric>
#include <sys/stat.h>
#include <sys/statfs.h>

namespace quarvel {

/// An entry with the eight bytes of its folded name by which it is being sorted.
struct KeyedEntry {
    quint64 key;
    quint32 entry;
};

namespace {

/// Appends the folded form of a stored name. Nearly all names are ASCII, and are folded byte by byte.
void appendFolded(std::string& out, std::string_view name) {
    const std::size_t begin = out.size();
    unsigned char all = 0;
    out.append(name);
    for (std::size_t i = begin; i < out.size(); ++i) {
        const auto byte = static_cast<unsigned char>(out[i]);
        all |= byte;
        out[i] = static_cast<char>(byte - unsigned{'A'} < 26U ? byte | 0x20U : byte);
    }
    if (all < 0x80) return;
    const auto size = static_cast<qsizetype>(name.size());
    const QByteArray folded = foldedName(readableName(nameFromSystem(QByteArrayView(name.data(), size))));
    out.replace(begin, std::string::npos, folded.constData(), static_cast<std::size_t>(folded.size()));
}

/// The eight bytes from `depth` on as a number that sorts as they do. What is missing at the end is zeros,
/// which no name holds: a key that ends in one is that of a name which has ended.
quint64 sortingKey(std::string_view folded, std::size_t depth) {
    const std::string_view rest = folded.substr(std::min(depth, folded.size()));
    char bytes[sizeof(quint64)] = {};
    std::memcpy(bytes, rest.data(), std::min(rest.size(), sizeof bytes));
    return qFromBigEndian<quint64>(bytes);
}

/// Sorts by key, byte for byte from the last: for many entries several times as quick as by comparing.
void sortByKey(KeyedEntry* begin, KeyedEntry* end) {
    constexpr std::ptrdiff_t many = 1024;
    if (end - begin < many) {
        std::sort(begin, end, [](const auto& left, const auto& right) { return left.key < right.key; });
        return;
    }
    std::vector<KeyedEntry> other(static_cast<std::size_t>(end - begin));
    for (unsigned shift = 0; shift < 64; shift += 8) {
        const auto byte = [shift](const KeyedEntry& entry) { return (entry.key >> shift) & 0xFFU; };
        std::array<std::size_t, 257> places{}; // of each byte value's first entry
        for (const KeyedEntry* at = begin; at != end; ++at) ++places[byte(*at) + 1];
        if (std::ranges::find(places, other.size()) != places.end()) continue; // all alike
        std::partial_sum(places.begin(), places.end(), places.begin());
        for (const KeyedEntry* at = begin; at != end; ++at) other[places[byte(*at)]++] = *at;
        std::ranges::copy(other, begin);
    }
}

qint64 nanoseconds(const timespec& time) { return qint64{time.tv_sec} * 1'000'000'000 + time.tv_nsec; }

FolderStamp stampOf(const struct stat& info) {
    return {info.st_dev, info.st_ino, info.st_mtim.tv_sec, info.st_mtim.tv_nsec, nanoseconds(info.st_ctim)};
}

/// Whether a folder lies on a file system of this machine that records the time of each change by itself. On
/// network and user-space file systems the times may be older than the entries, FAT has none but those that
/// any tool may set.
bool tellsChanges(int folder) {
    constexpr std::array<unsigned long, 7> local = {
        EXT4_SUPER_MAGIC, XFS_SUPER_MAGIC,       BTRFS_SUPER_MAGIC, F2FS_SUPER_MAGIC,
        TMPFS_MAGIC,      OVERLAYFS_SUPER_MAGIC, 0x2FC12FC1 /* ZFS, which comes with no header of its own */};
    struct statfs info {};
    if (::fstatfs(folder, &info) != 0) return false;
    return std::ranges::find(local, static_cast<unsigned long>(info.f_type)) != local.end();
}

} // namespace

EntryKind kindInFolder(const dirent& entry) {
    switch (entry.d_type) {
    case DT_DIR: return EntryKind::Folder;
    case DT_REG: return EntryKind::File;
    case DT_LNK:
    case DT_UNKNOWN: return EntryKind::Loose;
    default: return EntryKind::Other;
    }
}

EntryKind kindOnDisk(const QByteArray& path) {
    struct stat info {};
    if (::stat(path.constData(), &info) != 0)
        return meansAbsent(errno) || errno == ELOOP ? EntryKind::Other : EntryKind::Folder;
    return S_ISDIR(info.st_mode)   ? EntryKind::Folder
           : S_ISREG(info.st_mode) ? EntryKind::File
                                   : EntryKind::Other;
}

QByteArray foldedName(const QString& name) {
    QList<uint> points = name.normalized(QString::NormalizationForm_C).toUcs4();
    for (uint& point : points) point = QChar::toCaseFolded(char32_t{point});
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(points.constData()), points.size()).toUtf8();
}

FolderEntries::FolderEntries(QByteArray folder) : folder_(std::move(folder)) {
    FolderReader reader(folder_);
    if (reader.error() != 0) return;
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    readAt_ = nanoseconds(now);
    struct stat info {};
    tellsChanges_ = ::fstat(reader.descriptor(), &info) == 0 && tellsChanges(reader.descriptor());
    stamp_ = stampOf(info);
    read(reader);
    sort();
}

void FolderEntries::read(FolderReader& reader) {
    while (const dirent* found = reader.next()) {
        if (found->d_name[0] == '.') continue;
        const EntryKind kind = kindInFolder(*found);
        if (kind == EntryKind::Other) continue;
        hasLooseKinds_ = hasLooseKinds_ || kind == EntryKind::Loose;
        const std::string_view name(found->d_name);
        const std::size_t begin = names_.size();
        appendFolded(names_, name);
        entries_.push_back({static_cast<quint32>(begin), static_cast<quint16>(names_.size() - begin),
                            static_cast<quint16>(name.size()), kind});
        names_.append(name);
    }
    readable_ = reader.error() == 0;
    if (readable_) return;
    entries_.clear(); // half a list is none, and not to be kept
    tellsChanges_ = false;
}

void FolderEntries::sort() {
    std::vector<KeyedEntry> keyed(entries_.size());
    for (std::size_t i = 0; i < keyed.size(); ++i) keyed[i].entry = static_cast<quint32>(i);
    sortBehind(0, keyed.data(), keyed.data() + keyed.size());
    std::vector<Entry> sorted;
    sorted.reserve(keyed.size());
    for (const KeyedEntry& place : keyed) sorted.push_back(entries_[place.entry]);
    entries_ = std::move(sorted);
}

/// Sorts entries whose folded names are alike in their first `depth` bytes: by the next eight bytes as a
/// number, which is far quicker than by comparing names, and those alike in these, too, by what follows.
void FolderEntries::sortBehind(std::size_t depth, KeyedEntry* begin, KeyedEntry* end) const {
    for (KeyedEntry* at = begin; at != end; ++at) at->key = sortingKey(folded(at->entry), depth);
    sortByKey(begin, end);
    for (KeyedEntry* group = begin; group != end;) {
        KeyedEntry* next =
            std::find_if(group, end, [group](const KeyedEntry& at) { return at.key != group->key; });
        const bool ended = (group->key & 0xFFU) == 0;
        if (next - group > 1 && !ended) sortBehind(depth + sizeof group->key, group, next);
        if (next - group > 1 && ended)
            std::sort(group, next, [this](const KeyedEntry& left, const KeyedEntry& right) {
                return stored(left.entry) < stored(right.entry);
            });
        group = next;
    }
}

std::string_view FolderEntries::folded(const Entry& entry) const {
    return std::string_view(names_).substr(entry.begin, entry.foldedLength);
}

std::string_view FolderEntries::stored(const Entry& entry) const {
    return std::string_view(names_).substr(entry.begin + entry.foldedLength, entry.length);
}

std::string_view FolderEntries::folded(std::size_t entry) const { return folded(entries_[entry]); }

std::string_view FolderEntries::stored(std::size_t entry) const { return stored(entries_[entry]); }

EntryKind FolderEntries::kindNow(std::size_t entry) const {
    if (kind(entry) != EntryKind::Loose) return kind(entry);
    const std::string_view name = stored(entry);
    return kindOnDisk(folder_ + '/' + QByteArray(name.data(), static_cast<qsizetype>(name.size())));
}

std::pair<std::size_t, std::size_t> FolderEntries::beginningWith(std::string_view beginning) const {
    const auto head = [&](const Entry& entry) { return folded(entry).substr(0, beginning.size()); };
    const auto first = std::partition_point(entries_.begin(), entries_.end(),
                                            [&](const Entry& entry) { return head(entry) < beginning; });
    const auto end = std::partition_point(first, entries_.end(),
                                          [&](const Entry& entry) { return head(entry) == beginning; });
    return {first - entries_.begin(), end - entries_.begin()};
}

bool FolderEntries::areCurrent(const QByteArray& folder, std::chrono::nanoseconds settled) const {
    const qint64 age = readAt_ - stamp_.changed;
    if (!tellsChanges_ || folder != folder_ || age < settled.count()) return false;
    struct stat info {};
    return ::stat(folder.constData(), &info) == 0 && stampOf(info) == stamp_;
}

} // namespace quarvel
