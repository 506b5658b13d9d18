#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

namespace quarvel::bench {

/// Lets the process' peak of resident memory start anew from what is resident now (proc(5), clear_refs).
inline void forgetPeak() {
    QFile file(QStringLiteral("/proc/self/clear_refs"));
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || file.write("5") != 1)
        qFatal("the peak of memory cannot be reset");
}

/// A field of the process' status in megabytes, such as "VmHWM" (proc(5)).
inline double statusMegabytes(const QByteArray& field) {
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly)) qFatal("no status of the process");
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith(field + ':'))
            return line.mid(field.size() + 1).chopped(2).trimmed().toDouble() / 1024;
    qFatal("no such status of the process");
}

/// The peak of resident memory since then, in megabytes.
inline double peakMegabytes() { return statusMegabytes("VmHWM"); }

/// What is resident now, in megabytes.
inline double residentMegabytes() { return statusMegabytes("VmRSS"); }

} // namespace quarvel::bench
