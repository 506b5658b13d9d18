#pragma once

#include "support/disk.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QString>
#include <functional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace quarvel {

/// Something that may lie under a file's name, and how it comes there.
struct OddThing {
    const char* name;
    bool regular; ///< a file like others, by the system's list
    std::function<void(const QString& path)> put;
};

inline QByteArray randomBytes(int count) {
    QRandomGenerator random(7);
    QByteArray bytes(count, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random.bounded(256));
    return bytes;
}

inline void putSparse(const QString& path, off_t size) {
    put(path);
    QCOMPARE(::truncate(QFile::encodeName(path).constData(), size), 0);
}

/// None of these is what any of the program's files should be.
inline std::vector<OddThing> oddThings() {
    const auto link = [](const QString& to, const QString& path) { QVERIFY(QFile::link(to, path)); };
    return {
        {"nothing", false, [](const QString&) {}},
        {"an empty file", true, [](const QString& path) { put(path); }},
        {"garbage", true, [](const QString& path) { put(path, randomBytes(1000)); }},
        {"10 MB of lines", true,
         [](const QString& path) { put(path, QByteArray("word\r\n").repeated(1'700'000)); }},
        {"300 MB of zeros", true, [](const QString& path) { putSparse(path, off_t{300} << 20); }},
        {"a folder", false, [](const QString& path) { QVERIFY(QDir().mkdir(path)); }},
        {"a pipe", false,
         [](const QString& path) { QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0); }},
        {"a device", false, [=](const QString& path) { link(QStringLiteral("/dev/zero"), path); }},
        {"a link to nothing", false, [=](const QString& path) { link(QStringLiteral("nowhere"), path); }},
        {"a link to itself", false, [=](const QString& path) { link(QFileInfo(path).fileName(), path); }},
    };
}

/// One row a thing, in the column "thing".
inline void addOddThings() {
    QTest::addColumn<int>("thing");
    int number = 0;
    for (const OddThing& thing : oddThings()) QTest::newRow(thing.name) << number++;
}

inline void replaceBy(int thing, const QString& path) {
    QFile::remove(path);
    oddThings()[static_cast<std::size_t>(thing)].put(path);
}

inline bool isRegular(int thing) { return oddThings()[static_cast<std::size_t>(thing)].regular; }

} // namespace quarvel
