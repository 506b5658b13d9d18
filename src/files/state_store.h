#pragma once

#include "files/make_folder.h"
#include "files/result.h"
#include "files/state_file.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <map>
#include <mutex>
#include <optional>

namespace quarvel {

enum class StateTrouble {
    SetAside, ///< a state file could not be used: it has another name now, and begins anew
    NotKept   ///< a content could not be read or written: what comes now lasts for this run
};

enum class Kept { No, Yes }; ///< whether it is on the disk

/// What the program remembers by itself, one file a name, each with one reader and one writer. The program
/// starts without any of it; the drafts lie nowhere else. Where it cannot be written it is remembered for the
/// run. The store reports both troubles by itself, in the thread of whoever called it: for its users there is
/// always a content. It may be used from any thread.
class StateStore {
public:
    using Report = std::function<void(StateTrouble, const Failure&)>;

    /// `folder` need not exist: the first write makes it. `report` may be empty; NotKept is reported once.
    StateStore(QString folder, FolderAccess access, Report report);

    [[nodiscard]] const QString& folder() const { return folder_; }

    /// The content last written, empty when there is none. A file that is damaged or of another version is
    /// renamed, one that cannot be read now is left alone; neither is replaced.
    [[nodiscard]] QByteArray read(const StateName& name);
    /// The same, but not what could not be written.
    [[nodiscard]] QByteArray readFromDisk(const StateName& name);
    Kept write(const StateName& name, const QByteArray& content);

private:
    [[nodiscard]] QByteArray onDisk(const StateName& name);

    /// What this run knows of one name.
    struct Known {
        bool looked = false; ///< the file has been looked at
        bool usable = true;  ///< false: neither could it be used nor set aside; it stays as it is
        std::optional<QByteArray> notKept; ///< the content, while the file lacks it
    };

    [[nodiscard]] QString pathOf(const StateName& name) const { return folder_ + u'/' + name.name; }
    void leaveOrSetAside(const StateName& name, const Failure& why);
    void reportNotKept(const Failure& why);
    [[nodiscard]] Result<void> writeFile(const StateName& name, const QByteArray& content) const;

    std::mutex inUse_;
    QString folder_;
    FolderAccess access_;
    Report report_;
    std::map<QString, Known> known_; ///< by name
    bool reportedNotKept_ = false;
};

} // namespace quarvel
