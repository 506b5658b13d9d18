// A language or setting file, read by both ways and written. The first line of the input names a section, a
// key and a value, parted by bars; what follows is the file.

#include "input.h"
#include "language/profile.h"

#include <QList>
#include <algorithm>
#include <iterator>

using namespace quarvel;

namespace {

bool isPlain(const QByteArray& word) {
    const auto plain = [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9') || letter == '.';
    };
    return !word.isEmpty() && std::all_of(word.begin(), word.end(), plain);
}

/// The bytes of `before` are those of `after`, but for one place where some may have been put for others.
void onlyOnePlaceDiffers(const QByteArray& before, const QByteArray& after, qsizetype largestChange) {
    const auto [front, frontAfter] = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
    const auto [back, backAfter] = std::mismatch(before.rbegin(), std::make_reverse_iterator(front),
                                                 after.rbegin(), std::make_reverse_iterator(frontAfter));
    static_cast<void>(back);
    mustHold(backAfter.base() - frontAfter <= largestChange);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray input = inputBytes(data, size);
    const qsizetype firstEnd = input.indexOf('\n');
    const QList<QByteArray> words = input.left(std::max<qsizetype>(firstEnd, 0)).split('|');
    if (words.size() != 3) return 0;
    const QByteArray file = input.mid(firstEnd + 1);
    const QByteArray& section = words[0];
    const QByteArray& key = words[1];
    const QByteArray& value = words[2];

    mustHold(scannedRest(file, key).size() <= file.size());
    const QByteArray old = profileValue(file, section, key);
    mustHold(old.size() <= file.size());
    if (!isPlain(section) || !isPlain(key) || !isPlain(value)) return 0;
    const QByteArray written = profileWithValue(file, section, key, value);
    mustHold(profileValue(written, section, key) == value);
    mustHold(profileWithValue(written, section, key, value) == written);
    onlyOnePlaceDiffers(file, written, section.size() + key.size() + value.size() + 9);
    return 0;
}
