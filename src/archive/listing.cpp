#include "archive/listing.h"

#include <QByteArray>
#include <QChar>
#include <QFile>
#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <dirent.h>
#include <memory>
#include <optional>
#include <string_view>
#include <sys/stat.h>

namespace quarvel {
namespace {

struct DirCloser {
    void operator()(DIR* dir) const { ::closedir(dir); }
};

/// Composed and case-folded, as names are compared. Folding keeps the order of code points, which UTF-8 keeps
/// too.
QByteArray foldedText(const QString& text) {
    QList<uint> points = text.normalized(QString::NormalizationForm_C).toUcs4();
    for (uint& point : points) point = QChar::toCaseFolded(char32_t{point});
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(points.constData()), points.size()).toUtf8();
}

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
    const QByteArray folded = foldedText(QFile::decodeName(QByteArray::fromRawData(name.data(), size)));
    out.replace(begin, std::string::npos, folded.constData(), static_cast<std::size_t>(folded.size()));
}

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

enum class Kind { Folder, File, Other };

/// What an entry is, links followed. The directory tells it but for links and for file systems that do not
/// know.
Kind kindOf(DIR* dir, const dirent& entry) {
    if (entry.d_type == DT_DIR) return Kind::Folder;
    if (entry.d_type == DT_REG) return Kind::File;
    if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return Kind::Other;
    struct stat info {};
    if (::fstatat(::dirfd(dir), entry.d_name, &info, 0) != 0) return Kind::Other;
    return S_ISDIR(info.st_mode) ? Kind::Folder : S_ISREG(info.st_mode) ? Kind::File : Kind::Other;
}

/// The first eight bytes as a number that sorts as they do; a shorter text is filled with zeros, which no
/// name holds.
quint64 sortingKey(std::string_view folded) {
    char first[sizeof(quint64)] = {};
    std::memcpy(first, folded.data(), std::min(folded.size(), sizeof first));
    return qFromBigEndian<quint64>(first);
}

} // namespace

void ArchiveListing::read(const QString& folder, std::string_view pattern) {
    const std::unique_ptr<DIR, DirCloser> dir(::opendir(QFile::encodeName(folder).constData()));
    if (!dir) return;
    while (const dirent* found = ::readdir(dir.get())) { // NOLINT(concurrency-mt-unsafe): a stream of its own
        if (found->d_name[0] == '.') continue;
        const std::string_view name(found->d_name);
        const std::size_t begin = names_.size();
        appendFolded(names_, name);
        const std::string_view folded = std::string_view(names_).substr(begin);
        const Kind kind = beginsLike(folded, pattern) ? kindOf(dir.get(), *found) : Kind::Other;
        if (kind == Kind::Other) {
            names_.resize(begin);
            continue;
        }
        entries_.push_back({sortingKey(folded), static_cast<quint32>(begin),
                            static_cast<quint16>(folded.size()), static_cast<quint16>(name.size()),
                            kind == Kind::Folder});
        names_.append(name);
    }
}

ArchiveState archiveState(const QString& folder) {
    const std::unique_ptr<DIR, DirCloser> dir(::opendir(QFile::encodeName(folder).constData()));
    if (!dir) return ArchiveState::Unreadable;
    while (const dirent* found = ::readdir(dir.get())) // NOLINT(concurrency-mt-unsafe): a stream of its own
        if (found->d_name[0] != '.' && kindOf(dir.get(), *found) != Kind::Other) return ArchiveState::Filled;
    return ArchiveState::Empty;
}

ArchiveListing::ArchiveListing(const QString& folder, const QString& typed) {
    if (typed.contains(u'/') || typed.contains(u'\\')) return;
    const QByteArray pattern = foldedText(typed);
    read(folder, {pattern.constData(), static_cast<std::size_t>(pattern.size())});
    std::sort(entries_.begin(), entries_.end(), [this](const Entry& left, const Entry& right) {
        if (left.key != right.key) return left.key < right.key;
        const int order = foldedName(left).compare(foldedName(right));
        return order != 0 ? order < 0 : storedName(left) < storedName(right);
    });
}

std::string_view ArchiveListing::foldedName(const Entry& entry) const {
    return std::string_view(names_).substr(entry.begin, entry.foldedLength);
}

std::string_view ArchiveListing::storedName(const Entry& entry) const {
    return std::string_view(names_).substr(entry.begin + entry.foldedLength, entry.length);
}

QString ArchiveListing::text(int row) const {
    const Entry& entry = entries_[static_cast<std::size_t>(row)];
    const std::string_view stored = storedName(entry);
    const QString name = QFile::decodeName(QByteArray(stored.data(), static_cast<qsizetype>(stored.size())));
    return entry.folder ? u'[' + name + u']' : name;
}

} // namespace quarvel
