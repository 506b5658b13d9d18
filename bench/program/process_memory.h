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

/// The peak of resident memory since then, in megabytes (VmHWM of proc(5)).
inline double peakMegabytes() {
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly)) qFatal("no status of the process");
    for (const QByteArray& line : file.readAll().split('\n'))
        if (line.startsWith("VmHWM:")) return line.mid(6).chopped(2).trimmed().toDouble() / 1024;
    qFatal("no peak of memory");
}

} // namespace quarvel::bench
