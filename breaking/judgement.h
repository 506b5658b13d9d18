#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace breaking {

/// Files by their paths in the program folder, and their bytes; folders by their paths and a slash.
using Files = QMap<QString, QByteArray>;

/// What lies below a folder, hidden things included; without what the program remembers for itself.
[[nodiscard]] Files filesBelow(const QString& folder);
/// Makes `folder` hold `files` and nothing else; what is the same already is not touched.
void layOut(const QString& folder, const Files& files);

/// What a save should make of what.
struct Expectation {
    QString folder;
    Files before;
    Files after;
    QStringList usualBoxes; ///< the texts of the boxes that a save without failures shows
};

/// What became of a save.
enum class Outcome { Saved, Refused, Partly };
struct Verdict {
    Outcome outcome = Outcome::Saved; ///< as the boxes tell it
    QString wrong;                    ///< empty when files and boxes are well
};

/// Judges the files after a save of which a call failed with `error`, and what the user was told in `boxes`.
/// Each file must be its old or its new self. Told as refused, all are old; told as saved, all are new, and
/// the old ones are among the earlier versions unless that was told, too; told as saved in part, exactly the
/// named files are new, and the named place holds the old ones.
[[nodiscard]] Verdict judgeFailure(const Expectation& expected, const QStringList& boxes, int error);
/// What may lie beside the files: old selves in sight, where nothing could be cleared away after a save.
enum class Left { Nothing, OldSelves };
/// What is wrong after a save without failures: all is saved, nothing is told, and nothing else lies about.
[[nodiscard]] QString wrongAfterSuccess(const Expectation& expected, const QStringList& boxes, Left allowed);

} // namespace breaking
