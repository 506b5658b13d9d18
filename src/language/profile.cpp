#include "language/profile.h"

#include "files/whole_file.h"
#include "text/code_page.h"
#include "text/decoding.h"

#include <QByteArrayView>
#include <algorithm>
#include <array>
#include <cstring>
#include <optional>

namespace quarvel {
namespace {

/// A hundred times what the program has texts for; what is larger is no language file. A pass over a window
/// reads the file some four hundred times, for which nobody shall wait.
constexpr qint64 largestReadBytes = qint64{8} * 1024 * 1024;

/// The small letter of every letter of Windows-1252, all other bytes as they are.
constexpr std::array<char, 256> smallLetters = [] {
    std::array<char, 256> table{};
    for (unsigned value = 0; value < table.size(); ++value) {
        const bool latin = value >= 0xC0 && value <= 0xDE && value != 0xD7;
        const bool carons = value == 0x8A || value == 0x8C || value == 0x8E;
        unsigned small = value;
        if ((value >= 'A' && value <= 'Z') || latin) small = value + 0x20;
        if (carons) small = value + 0x10;
        if (value == 0x9F) small = 0xFF;
        table[value] = static_cast<char>(small);
    }
    return table;
}();

char smallLetter(char letter) { return smallLetters[static_cast<unsigned char>(letter)]; }

bool sameLetters(QByteArrayView left, QByteArrayView right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char a, char b) { return smallLetter(a) == smallLetter(b); });
}

bool isBlank(char character) { return character == ' ' || character == '\t'; }

QByteArrayView withoutLeadingBlanks(QByteArrayView text) {
    while (!text.isEmpty() && isBlank(text.front())) text = text.sliced(1);
    return text;
}

QByteArrayView withoutBlanks(QByteArrayView text) {
    while (!text.isEmpty() && isBlank(text.back())) text.chop(1);
    return withoutLeadingBlanks(text);
}

/// Where the line that begins at `start` ends, its line end included.
qsizetype afterLine(QByteArrayView bytes, qsizetype start) {
    const char* from = bytes.data() + start;
    const void* feed = std::memchr(from, '\n', static_cast<size_t>(bytes.size() - start));
    return feed == nullptr ? bytes.size() : static_cast<const char*>(feed) - bytes.data() + 1;
}

QByteArrayView withoutLineEnd(QByteArrayView line) {
    if (line.endsWith('\n')) line.chop(1);
    while (line.endsWith('\r')) line.chop(1);
    return line;
}

/// A section line: the name between its brackets, where its bracket stands and where the next line begins.
struct SectionLine {
    QByteArrayView name;
    qsizetype bracket;
    qsizetype next;
};

/// The first section line from the line start `from` on. Brackets are looked for instead of lines, because a
/// profile has few of them and a pass over a window searches its language file hundreds of times.
std::optional<SectionLine> nextSection(QByteArrayView profile, qsizetype from) {
    while (true) {
        const qsizetype bracket = profile.indexOf('[', from);
        if (bracket < 0) return std::nullopt;
        const qsizetype next = afterLine(profile, bracket);
        qsizetype start = bracket;
        while (start > 0 && isBlank(profile[start - 1])) --start;
        const QByteArrayView line = profile.sliced(bracket, next - bracket);
        const qsizetype close = line.indexOf(']');
        if ((start == 0 || profile[start - 1] == '\n') && close > 0)
            return SectionLine{line.sliced(1, close - 1), bracket, next};
        from = next;
    }
}

/// The value of an entry line with this key, its quotes still on; none of any other line.
std::optional<QByteArrayView> entryValue(QByteArrayView line, QByteArrayView key) {
    if (line.size() <= key.size() || line.startsWith(';')) return std::nullopt;
    if (!sameLetters(line.first(key.size()), key)) return std::nullopt;
    const QByteArrayView rest = withoutLeadingBlanks(line.sliced(key.size()));
    if (!rest.startsWith('=')) return std::nullopt;
    return withoutBlanks(withoutLineEnd(rest.sliced(1)));
}

/// Where an entry stands in a profile, or where it would go.
struct Place {
    bool hasSection = false;
    qsizetype afterSection = 0;          ///< behind the section's last line that is not blank
    std::optional<QByteArrayView> value; ///< the entry's value in the profile's own bytes
};

Place findEntry(QByteArrayView profile, QByteArrayView section, QByteArrayView key) {
    Place place;
    std::optional<SectionLine> found = nextSection(profile, 0);
    while (found && !sameLetters(found->name, section)) found = nextSection(profile, found->next);
    if (!found) return place;
    place.hasSection = true;
    place.afterSection = found->next;
    const std::optional<SectionLine> following = nextSection(profile, found->next);
    const qsizetype end = following ? following->bracket : profile.size();
    for (qsizetype start = found->next, next = 0; start < end; start = next) {
        next = afterLine(profile, start);
        const QByteArrayView line = withoutLeadingBlanks(profile.sliced(start, std::min(next, end) - start));
        place.value = entryValue(line, key);
        if (place.value) break;
        if (!withoutLineEnd(line).isEmpty()) place.afterSection = next;
    }
    return place;
}

/// A text as it may stand in a line of a profile; nothing when the file's encoding or the line cannot hold
/// it.
std::optional<QByteArray> lineText(const QString& text, TextEncoding encoding = TextEncoding::CodePage) {
    const EncodedText encoded =
        encoding == TextEncoding::CodePage ? encodeCodePage(text) : EncodedText{text.toUtf8(), {}};
    const auto breaksLine = [](char byte) { return byte == '\r' || byte == '\n' || byte == '\0'; };
    if (!encoded.refused.isEmpty() || std::any_of(encoded.bytes.begin(), encoded.bytes.end(), breaksLine))
        return std::nullopt;
    return encoded.bytes;
}

/// What follows a key in a large file, without the one character after the key and without its own first and
/// last character.
QString scannedText(const QString& rest) {
    constexpr qsizetype dropped = 3;
    return rest.size() < dropped ? QString() : rest.sliced(2, rest.size() - dropped);
}

/// What is read from a file's bytes, be they many or few.
QString valueIn(const QByteArray& file, const QString& section, const QString& key) {
    const std::optional<QByteArray> keyText = lineText(key);
    if (!keyText) return {};
    const QByteArray all = utf16AsUtf8(file);
    const QByteArrayView profile = QByteArrayView(all).sliced(markBytes(all));
    if (file.size() > largestProfileBytes)
        return scannedText(decodePart(scannedRest(profile, *keyText), all));

    const std::optional<QByteArray> sectionText = lineText(section);
    if (!sectionText) return {};
    QString value = decodePart(profileValue(profile, *sectionText, *keyText), all);
    value.truncate(longestProfileValue);
    if (!value.isEmpty() && value.back().isHighSurrogate()) value.chop(1); // half of a character
    if (const qsizetype end = value.indexOf(QChar::Null); end >= 0) value.truncate(end);
    return value;
}

} // namespace

QByteArray profileValue(QByteArrayView profile, QByteArrayView section, QByteArrayView key) {
    QByteArrayView value = findEntry(profile, section, key).value.value_or(QByteArrayView());
    const bool quoted = value.size() >= 2 && value.front() == value.back();
    if (quoted && (value.front() == '"' || value.front() == '\'')) value = value.sliced(1, value.size() - 2);
    return value.toByteArray();
}

QByteArrayView scannedRest(QByteArrayView file, QByteArrayView key) {
    if (key.isEmpty()) return {};
    qsizetype from = 0;
    while (from < file.size()) {
        const void* hit = ::memmem(file.data() + from, static_cast<size_t>(file.size() - from), key.data(),
                                   static_cast<size_t>(key.size()));
        if (hit == nullptr) break;
        const qsizetype start = static_cast<const char*>(hit) - file.data();
        const qsizetype next = afterLine(file, start);
        if (start == 0 || file[start - 1] == '\n')
            return withoutLineEnd(file.sliced(start, next - start)).sliced(key.size());
        from = next;
    }
    return {};
}

QByteArray profileWithValue(QByteArrayView profile, QByteArrayView section, QByteArrayView key,
                            QByteArrayView value) {
    const Place place = findEntry(profile, section, key);
    QByteArray result = profile.toByteArray();
    if (place.value) return result.replace(place.value->data() - profile.data(), place.value->size(), value);

    QByteArray added = key.toByteArray() + '=' + value.toByteArray() + "\r\n";
    if (!place.hasSection) added.prepend('[' + section.toByteArray() + "]\r\n");
    const qsizetype at = place.hasSection ? place.afterSection : profile.size();
    if (at > 0 && profile[at - 1] != '\n') added.prepend("\r\n");
    return result.insert(at, added);
}

Result<QByteArray> readProfile(const QString& file) { return readWholeFile(file, largestReadBytes); }

Result<QString> ReadIniString(const QString& file, const QString& section, const QString& key) {
    return readProfile(file).then(
        [&](const QByteArray& profile) { return Result<QString>(valueIn(profile, section, key)); });
}

Result<Written> WriteIniString(const QString& file, const QString& section, const QString& key,
                               const QString& value, const BeforeReplacing& beforeReplacing) {
    const Result<QByteArray> before = readProfile(file);
    if (!before && before.failure().fault != Fault::NotFound) return before.failure();
    const QByteArray all = before ? utf16AsUtf8(before.value()) : QByteArray();
    const TextEncoding encoding = encodingOf(all); // which the new value must share with the other lines
    const std::optional<QByteArray> sectionText = lineText(section, encoding);
    const std::optional<QByteArray> keyText = lineText(key, encoding);
    const std::optional<QByteArray> valueText = lineText(value, encoding);
    if (!sectionText || !keyText || !valueText)
        return Failure{Fault::NotInCodePage, file, encodeCodePage(section + key + value).refused.left(1)};
    const QByteArray mark = all.first(markBytes(all));
    const QByteArray after =
        mark + profileWithValue(QByteArrayView(all).sliced(mark.size()), *sectionText, *keyText, *valueText);
    // Not what would be read back otherwise, or not at all.
    if (after.size() > largestReadBytes) return Failure{Fault::TooLarge, file, {}};
    if (valueIn(after, section, key) != value) return Failure{Fault::Damaged, file, {}};
    return writeWholeFile(file, after, beforeReplacing);
}

} // namespace quarvel
