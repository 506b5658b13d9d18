#pragma once

#include "files/descriptor.h"

#include <QStringList>
#include <memory>
#include <vector>

namespace quarvel {

/// The right to change names in some folders, while this object lives: of two programs that save there at
/// once, one waits for the other, which takes it a few milliseconds. A folder of a file system without locks
/// is anybody's.
class FolderLocks {
public:
    /// `folders` in the same order in every program that locks more than one. Waits for half a second at
    /// most.
    explicit FolderLocks(const QStringList& folders);

    /// False when another program kept a folder for all that time, or one could not be opened.
    [[nodiscard]] bool held() const { return held_; }

private:
    std::vector<std::unique_ptr<Descriptor>> locked_;
    bool held_ = true;
};

} // namespace quarvel
