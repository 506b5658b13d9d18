#pragma once

#include <QByteArray>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <memory>

namespace quarvel {

/// Reads a folder's entries one after the other, "." and ".." left out. When none is left, error() tells
/// whether these were all: half a list is none.
class FolderReader {
public:
    explicit FolderReader(const QByteArray& folder) : dir_(::opendir(folder.constData())) {
        if (!dir_) error_ = errno;
    }

    /// Null at the end, and when the folder cannot be read, or not on.
    [[nodiscard]] const dirent* next() {
        while (dir_) {
            errno = 0; // whoever looked at the entry before may have left another
            const dirent* entry = ::readdir(dir_.get()); // NOLINT(concurrency-mt-unsafe): a stream of its own
            if (entry == nullptr) error_ = errno;
            if (entry == nullptr || !isDots(entry->d_name)) return entry;
        }
        return nullptr;
    }

    /// The system's error number, 0 as long as there is none.
    [[nodiscard]] int error() const { return error_; }
    /// The folder's descriptor, only when it could be opened.
    [[nodiscard]] int descriptor() const { return ::dirfd(dir_.get()); }

private:
    struct Closer {
        void operator()(DIR* dir) const { ::closedir(dir); }
    };

    static bool isDots(const char* name) {
        return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
    }

    std::unique_ptr<DIR, Closer> dir_;
    int error_ = 0;
};

} // namespace quarvel
