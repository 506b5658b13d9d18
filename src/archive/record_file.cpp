#include "archive/record_file.h"

#include "files/whole_file.h"
#include "text/code_page.h"

#include <QByteArrayView>
#include <QStringView>
#include <algorithm>
#include <optional>

namespace quarvel {

using namespace Qt::StringLiterals;

namespace {

/// Takes values one after the other from text in the manner of comma-separated input.
class ValueReader {
public:
    explicit ValueReader(QByteArrayView bytes) : rest_(bytes) {}

    /// The next value, or nothing at the end of the text.
    std::optional<QByteArrayView> next() {
        while (!rest_.isEmpty() && isBlank(rest_.front())) rest_ = rest_.sliced(1);
        if (rest_.isEmpty()) return std::nullopt;
        if (rest_.front() == '"') {
            rest_ = rest_.sliced(1);
            const QByteArrayView value = takeUntil([](char byte) { return byte == '"'; });
            takeUntil(isSeparator);
            skipSeparator();
            return value;
        }
        QByteArrayView value = takeUntil(isSeparator);
        skipSeparator();
        while (!value.isEmpty() && isBlank(value.back())) value.chop(1);
        return value;
    }

private:
    static bool isBlank(char byte) { return byte == ' ' || byte == '\t'; }
    static bool isSeparator(char byte) { return byte == ',' || byte == '\r' || byte == '\n'; }

    template <class Ends>
    QByteArrayView takeUntil(Ends ends) {
        const qsizetype length = std::find_if(rest_.begin(), rest_.end(), ends) - rest_.begin();
        const QByteArrayView taken = rest_.first(length);
        rest_ = rest_.sliced(length);
        return taken;
    }

    void skipSeparator() {
        const bool pair = rest_.size() > 1 && rest_[0] == '\r' && rest_[1] == '\n';
        rest_ = rest_.sliced(std::min<qsizetype>(pair ? 2 : 1, rest_.size()));
    }

    QByteArrayView rest_;
};

/// A value as the format can hold it: never empty, and without what would end it or its line.
QString storedValue(QString value) {
    if (value.isEmpty()) return QStringView(emptyPlaceholder).toString();
    value.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ');
    return value.replace(u'"', u'\u201D');
}

} // namespace

Result<QByteArray> recordBytes(const AirportRecord& record, const QString& path) {
    QByteArray bytes;
    for (const QString& value : record.values) {
        const EncodedText encoded = encodeCodePage(storedValue(value));
        if (!encoded.refused.isEmpty()) return Failure{Fault::NotInCodePage, path, encoded.refused};
        bytes += '"' + encoded.bytes + "\"\r\n";
    }
    if (bytes.size() > largestRecordBytes) return Failure{Fault::TooLarge, path, {}};
    return bytes;
}

Result<AirportRecord> parseRecord(const QByteArray& bytes, const QString& path) {
    AirportRecord record;
    ValueReader reader(bytes);
    int count = 0;
    for (QString& value : record.values) {
        const auto taken = reader.next();
        if (!taken) return Failure{Fault::TooShort, path, QString::number(count)};
        value = decodeCodePage(*taken);
        ++count;
    }
    return record;
}

Result<AirportRecord> readRecord(const QString& path) {
    const Result<QByteArray> bytes = readWholeFile(path, largestRecordBytes);
    if (!bytes) return bytes.failure();
    return parseRecord(bytes.value(), path);
}

Result<void> writeRecord(const QString& path, const AirportRecord& record) {
    const Result<QByteArray> bytes = recordBytes(record, path);
    if (!bytes) return bytes.failure();
    const Result<Written> written = writeWholeFile(path, bytes.value());
    return written ? Result<void>() : written.failure();
}

} // namespace quarvel
