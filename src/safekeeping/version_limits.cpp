#include "safekeeping/version_limits.h"

#include <algorithm>
#include <map>
#include <utility>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

constexpr qint64 megabyte = qint64{1} << 20;
constexpr qint64 blockBytes = 4096;

qint64 bytesOnDisk(const StoredVersion& version) {
    return (version.bytes + blockBytes - 1) / blockBytes * blockBytes;
}

} // namespace

const std::vector<VersionLimits>& allLimits() {
    static const std::vector<VersionLimits> limits{{u"testi"_s, 20, 20 * megabyte},
                                                   {u"immagini"_s, 20, 100 * megabyte}};
    return limits;
}

const VersionLimits& limitsFor(const QString& fileName) {
    return allLimits().at(fileName.endsWith(u".gif", Qt::CaseInsensitive) ? 1 : 0);
}

std::vector<StoredVersion> beyondLimits(std::vector<StoredVersion> stored, const VersionLimits& limits) {
    std::sort(stored.begin(), stored.end(),
              [](const StoredVersion& left, const StoredVersion& right) { return left.name > right.name; });
    std::map<QString, int> ofFile;
    qint64 bytes = 0;
    std::vector<StoredVersion> gone;
    for (StoredVersion& version : stored) { // from the newest on
        const bool isBeyondNumber = ++ofFile[version.folder] > limits.perFile;
        if (!isBeyondNumber) bytes += bytesOnDisk(version);
        if (isBeyondNumber || bytes > limits.maxBytes) gone.push_back(std::move(version));
    }
    std::reverse(gone.begin(), gone.end());
    return gone;
}

} // namespace quarvel
