#pragma once

#include "files/state_store.h"

#include <QSet>
#include <QString>
#include <QThreadPool>
#include <QTimer>
#include <atomic>
#include <optional>
#include <vector>

namespace quarvel {

/// What the drafts for a file in one of an airport's folders are known by, however the names are typed and
/// their accents are stored.
[[nodiscard]] QString draftName(const QString& airport, const QString& folder, const QString& file);

/// What was typed and not saved, by the file that it is meant for. A file may have several drafts: one is not
/// lost because another is begun beside it. All are on the disk within a second, written by a thread, so that
/// a slow disk holds up no key; those of another copy of the program stay there. The oldest go when they are
/// too many.
class Drafts {
public:
    explicit Drafts(StateStore& store);

    /// The newest draft for a file.
    [[nodiscard]] std::optional<QString> newest(const QString& file);

    enum class Beside {
        Others, ///< as a draft of its own
        Older   ///< in place of the newest
    };
    void keep(const QString& file, const QString& text, Beside beside);
    void dropNewest(const QString& file);

    /// Writes what is not on the disk yet, and waits for it. For the program's end.
    void flush();

private:
    struct Draft {
        QString file;
        QString text;
        [[nodiscard]] bool operator==(const Draft& other) const = default;
    };
    using All = std::vector<Draft>; // the newest first
    /// What is not on the disk as it is here: all drafts of some files.
    struct Changes {
        QSet<QString> files;
        All drafts;
    };

    [[nodiscard]] All& all();
    /// The newest draft for a file, or the end.
    [[nodiscard]] All::const_iterator find(const QString& file);
    [[nodiscard]] All onDisk();
    void changed(const QString& file);
    [[nodiscard]] Changes changes();
    void writeBehind();
    Kept write(const Changes& changes);
    void takeBackRefused();

    StateStore& store_;
    std::optional<All> all_; ///< once they have been asked for
    /// What this copy has read or written; all else on the disk is another's. Of the writing thread.
    All seen_;
    QSet<QString> changed_;
    QSet<QString> handedOver_; ///< to the thread, the last time
    std::atomic<Kept> lastWrite_ = Kept::Yes;
    QTimer soon_;
    QThreadPool writer_; ///< of one thread
};

} // namespace quarvel
