#pragma once

#include <QString>
#include <optional>
#include <utility>
#include <variant>

namespace quarvel {

/// What went wrong with a file of the user's; each has a plain sentence of its own in the language files.
enum class Fault {
    NotFound,      ///< no such file or folder
    NotRegular,    ///< a folder, a device or a pipe stands where a file is expected
    NotFolder,     ///< a file stands where a folder is expected
    Unreadable,    ///< the system does not allow to open or read it
    Unwritable,    ///< the system does not allow to create, write or replace it
    ReadFailed,    ///< reading failed, and may succeed the next time
    WriteFailed,   ///< writing failed, and may succeed the next time
    DiskFull,      ///< no room left for it
    TooLarge,      ///< larger than any file of its kind can sensibly be
    TooShort,      ///< it ends before all its values
    Damaged,       ///< its content is not of its format
    BadName,       ///< a name that is empty, leaves its folder or holds a refused character
    CutOff,        ///< a picture that is cut off below
    RowsMissing,   ///< a picture with rows that are not there, among others that are
    Ambiguous,     ///< a text that would be read back as another one
    NotInCodePage, ///< a text with a character that the single-byte format lacks
    /// Of several files some are new, could not be put back, and stay so. `path` names these, a line each;
    /// `detail` the folders in which their old selves lie, a line each, if they had any.
    PartlyReplaced,
};

/// Why an operation did not happen. `path` names the file or folder; `detail` what in it offends (a
/// character, a count) and is mostly empty. The system's own reason is not kept: it would be told in the
/// wrong language.
struct Failure {
    Fault fault;
    QString path;
    QString detail;
};

/// A value, or the reason why there is none.
template <class T>
class [[nodiscard]] Result {
public:
    Result(T value) : content_(std::move(value)) {}           // NOLINT: implicit on purpose
    Result(Failure failure) : content_(std::move(failure)) {} // NOLINT: implicit on purpose

    [[nodiscard]] bool ok() const { return content_.index() == 0; }
    explicit operator bool() const { return ok(); }
    [[nodiscard]] const T& value() const { return std::get<0>(content_); }
    [[nodiscard]] T take() { return std::move(std::get<0>(content_)); }
    [[nodiscard]] const Failure& failure() const { return std::get<1>(content_); }
    [[nodiscard]] T valueOr(T other) const { return ok() ? value() : std::move(other); }
    /// What `next`, which may fail in its turn, makes of the value.
    template <class Next>
    [[nodiscard]] auto then(Next next) const -> decltype(next(std::declval<const T&>())) {
        if (ok()) return next(value());
        return failure();
    }

private:
    std::variant<T, Failure> content_;
};

/// Nothing, or the reason why an action failed.
template <>
class [[nodiscard]] Result<void> {
public:
    Result() = default;
    Result(Failure failure) : failure_(std::move(failure)) {} // NOLINT: implicit on purpose

    [[nodiscard]] bool ok() const { return !failure_.has_value(); }
    explicit operator bool() const { return ok(); }
    [[nodiscard]] const Failure& failure() const { return *failure_; }

private:
    std::optional<Failure> failure_;
};

} // namespace quarvel
