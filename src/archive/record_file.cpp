#include "archive/record_file.h"

#include "files/whole_file.h"
#include "text/code_page.h"
#include "text/decoding.h"

#include <QStringView>
#include <algorithm>
#include <optional>

namespace quarvel {

using namespace Qt::StringLiterals;

namespace {

/// Takes values one after the other from text in the manner of comma-separated input.
class ValueReader {
public:
    explicit ValueReader(QStringView text) : rest_(text) {}

    /// The next value, or nothing at the end of the text.
    std::optional<QStringView> next() {
        while (!rest_.isEmpty() && isBlank(rest_.front())) rest_ = rest_.sliced(1);
        if (rest_.isEmpty()) return std::nullopt;
        if (rest_.front() == u'"') {
            rest_ = rest_.sliced(1);
            const QStringView value = takeUntil([](QChar letter) { return letter == u'"'; });
            if (isAnything(takeUntil(isSeparator))) passedOver_ = true;
            skipSeparator();
            return value;
        }
        QStringView value = takeUntil(isSeparator);
        skipSeparator();
        while (!value.isEmpty() && isBlank(value.back())) value.chop(1);
        return value;
    }

    /// Whether there is text that was taken for no value, or is not taken yet.
    [[nodiscard]] bool holdsMore() const { return passedOver_ || isAnything(rest_); }

private:
    static bool isAnything(QStringView text) { return !text.trimmed().isEmpty(); }
    static bool isBlank(QChar letter) { return letter == u' ' || letter == u'\t'; }
    static bool isSeparator(QChar letter) { return letter == u',' || letter == u'\r' || letter == u'\n'; }

    template <class Ends>
    QStringView takeUntil(Ends ends) {
        const qsizetype length = std::find_if(rest_.begin(), rest_.end(), ends) - rest_.begin();
        const QStringView taken = rest_.first(length);
        rest_ = rest_.sliced(length);
        return taken;
    }

    void skipSeparator() {
        const bool pair = rest_.size() > 1 && rest_[0] == u'\r' && rest_[1] == u'\n';
        rest_ = rest_.sliced(std::min<qsizetype>(pair ? 2 : 1, rest_.size()));
    }

    QStringView rest_;
    bool passedOver_ = false;
};

} // namespace

QString storableValue(QString value) {
    if (value.isEmpty()) return QStringView(emptyPlaceholder).toString();
    value.replace(u"\r\n"_s, u" "_s).replace(u'\r', u' ').replace(u'\n', u' ');
    return value.replace(u'"', u'\u201D').normalized(QString::NormalizationForm_C);
}

Result<QByteArray> recordBytes(const AirportRecord& record, const QString& path) {
    QByteArray bytes;
    for (const QString& value : record.values) {
        const EncodedText encoded = encodeCodePage(storableValue(value));
        if (!encoded.refused.isEmpty()) return Failure{Fault::NotInCodePage, path, encoded.refused};
        bytes += '"' + encoded.bytes + "\"\r\n";
    }
    if (bytes.size() > largestRecordBytes) return Failure{Fault::TooLarge, path, {}};
    if (const QString pair = readOtherwise(bytes); !pair.isEmpty())
        return Failure{Fault::Ambiguous, path, pair};
    return bytes;
}

Result<AirportRecord> parseRecord(const QByteArray& bytes, const QString& path) {
    AirportRecord record;
    const QString text = decodeText(bytes);
    ValueReader reader(text);
    int count = 0;
    for (QString& value : record.values) {
        const auto taken = reader.next();
        if (!taken) return Failure{Fault::TooShort, path, QString::number(count)};
        value = taken->toString();
        ++count;
    }
    return record;
}

bool holdsMoreThanRecord(const QByteArray& bytes) {
    const QString text = decodeText(bytes);
    ValueReader reader(text);
    for (int count = 0; count < recordSize && reader.next(); ++count) {}
    return reader.holdsMore();
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
