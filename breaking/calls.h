#pragma once

#include <QString>

namespace breaking {

/// How a system call fails: the number-th from the arming on, or that one and all after it.
enum class Failing { Once, FromThenOn };

/// From here on the calls that concern files below `folder` are counted, and fail as told; number 0 fails
/// none. Language files are left out: the messages of a failed save are to be read.
void arm(const QString& folder, int number, int error, Failing failing);
/// What has been the matter since; from here on nothing is counted.
struct Struck {
    int calls = 0; ///< how many there were
    QString name;  ///< the first that failed, such as "rename LIRF.txt"; empty when none did
};
Struck disarm();

} // namespace breaking
