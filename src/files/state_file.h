#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

namespace quarvel {

/// Something that the program remembers by itself: its file's name, and the version of its content's format.
struct StateName {
    QString name;
    int version = 1;
};

/// The bytes of a state file: a line that tells name, version and the content's hash, then the content.
[[nodiscard]] QByteArray stateFileBytes(const StateName& name, const QByteArray& content);

/// The content of a state file; none when its bytes are damaged or of another name or version.
[[nodiscard]] std::optional<QByteArray> stateFileContent(const StateName& name, const QByteArray& bytes);

} // namespace quarvel
