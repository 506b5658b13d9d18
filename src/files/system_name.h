#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace quarvel {

// A name on the disk is bytes. Most are UTF-8; those that an old archive left in a code page are not. In
// texts inside the program each byte above 127 of such a name is a lone surrogate (0xDC00 + byte), which no
// UTF-8 gives: so every name comes back to its bytes. Nothing of it is shown: what is shown is readable.

/// The bytes by which the system knows a path or a name.
[[nodiscard]] QByteArray systemName(const QString& path);

/// A name as the system gave it.
[[nodiscard]] QString nameFromSystem(QByteArrayView bytes);

/// A name or a path as people read it: what is not UTF-8 is read as Windows-1252. By this form names are
/// compared, so that a readable name finds its file.
[[nodiscard]] QString readableName(QString name);

} // namespace quarvel
