#include "platform/session_bus.h"

#include "files/descriptor.h"

#include <QList>
#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace quarvel {
namespace {

constexpr auto variable = "DBUS_SESSION_BUS_ADDRESS";

/// A socket's name as the system wants it, an abstract one behind a zero; empty for another kind of address.
QByteArray socketName(const QByteArray& address) {
    constexpr QByteArrayView transport = "unix:";
    if (!address.startsWith(transport)) return {};
    for (const QByteArray& pair : address.sliced(transport.size()).split(',')) {
        const qsizetype equals = pair.indexOf('=');
        QByteArray value = QByteArray::fromPercentEncoding(pair.mid(equals + 1));
        if (pair.startsWith("path=")) return value;
        if (pair.startsWith("abstract=")) return '\0' + value;
    }
    return {};
}

bool isSilentSocket(const QByteArray& name, std::chrono::milliseconds patience) {
    sockaddr_un place{};
    if (name.isEmpty() || name.size() >= static_cast<qsizetype>(sizeof place.sun_path)) return false;
    place.sun_family = AF_UNIX;
    std::memcpy(static_cast<char*>(place.sun_path), name.constData(), static_cast<std::size_t>(name.size()));
    const auto size =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size()));

    const Descriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0));
    if (::connect(socket.number(), reinterpret_cast<const sockaddr*>(&place), size) != 0)
        return errno == EAGAIN; // nobody takes connections out of its queue
    // An authentication without a mechanism: a bus answers with those that it knows.
    constexpr QByteArrayView greeting("\0AUTH\r\n", 7);
    if (::send(socket.number(), greeting.data(), static_cast<std::size_t>(greeting.size()), MSG_NOSIGNAL) < 0)
        return false;
    pollfd answer{socket.number(), POLLIN, 0};
    return ::poll(&answer, 1, static_cast<int>(patience.count())) == 0;
}

} // namespace

QByteArray sessionBusAddresses() {
    if (QByteArray told = qgetenv(variable); !told.isEmpty()) return told;
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QByteArray() : "unix:path=" + folder + "/bus";
}

bool isSilentBus(const QByteArray& addresses, std::chrono::milliseconds patience) {
    const QList<QByteArray> all = addresses.split(';');
    return std::any_of(all.begin(), all.end(), [&](const QByteArray& address) {
        return isSilentSocket(socketName(address), patience);
    });
}

void leaveSilentSessionBus() {
    if (isSilentBus(sessionBusAddresses())) qputenv(variable, QByteArrayLiteral("disabled:"));
}

} // namespace quarvel
