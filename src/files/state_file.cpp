#include "files/state_file.h"

#include <QCryptographicHash>

namespace quarvel {
namespace {

QByteArray headOf(const StateName& name, const QByteArray& content) {
    const QByteArray hash = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex();
    return "Quarvel state: " + name.name.toUtf8() + ", version " + QByteArray::number(name.version) + ", " +
           hash + '\n';
}

} // namespace

QByteArray stateFileBytes(const StateName& name, const QByteArray& content) {
    return headOf(name, content) + content;
}

std::optional<QByteArray> stateFileContent(const StateName& name, const QByteArray& bytes) {
    QByteArray content = bytes.mid(bytes.indexOf('\n') + 1);
    if (bytes != stateFileBytes(name, content)) return std::nullopt;
    return content;
}

} // namespace quarvel
