#pragma once

#include "support/test_program.h"
#include "viewer/core/notes.h"

#include <QDir>
#include <random>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace quarvel {

/// Draws the same from the same seed on every machine.
struct Dice {
    std::mt19937_64 engine;

    int below(qsizetype n) { return static_cast<int>(engine() % static_cast<quint64>(n)); }
    bool oneIn(int n) { return below(n) == 0; }
    template <class List>
    auto pick(const List& list) {
        return *(list.begin() + below(std::ssize(list)));
    }
};

/// The names of the airports that a scratch archive has at first.
inline const QStringList scratchAirports{u"LIRF"_s, u"CITTÀ DI CASTELLO"_s, u"FORLÌ"_s};

inline const QStringList charts{u"Sid/KENN1.gif"_s, u"Sid/Ò 5.gif"_s, u"Star/TAQ.gif"_s, u"Approach/V.gif"_s};

inline QString of(const QString& name, const QString& file) { return u"aeroporti/%1/%2"_s.arg(name, file); }

/// Fills a program's folder with airports, whole and damaged, and puts another folder beside it.
inline void fillArchive(const TestProgram& test) {
    for (const QString& airport : scratchAirports) {
        test.addAirport(airport);
        test.write(of(airport, airport + u"_Agent.txt"_s), "Benvenuti a " + airport.toLatin1() + ".\r\n");
        for (const QString& chart : charts)
            test.addChart(of(airport, chart), {1240, 120 * static_cast<int>(chart.size())});
        for (const NoteKind& kind : notesOf(Family::Sid))
            test.write(of(airport, u"Sid/"_s + noteFileName(kind, u"KENN1"_s)), "\"Sale a 3000°\r\n\"\r\n");
    }
    const QString last = scratchAirports.last();
    test.write(of(last, u"Sid/TAGLIATA.gif"_s), test.read(of(last, charts.first())).chopped(40));
    QFile::link(u"da nessuna parte"_s, test.path(of(last, u"Approach/LEGATA.gif"_s)));
    if (::mkfifo(QFile::encodeName(test.path(of(last, u"Star/TUBO.gif"_s))).constData(), 0600) != 0)
        qFatal("no pipe");
    test.addAirport(u"VUOTO"_s);
    test.write(of(u"VUOTO"_s, u"Aeroporto/VUOTO.txt"_s), {});
    test.addAirport(u"MEZZO"_s);
    test.write(of(u"MEZZO"_s, u"Aeroporto/MEZZO.gif"_s), "GIF89a");
    test.write(u"../Documenti/lettera.txt"_s, "Caro amico,\n"); // none of the program's business
}

/// Changes something under the program; what, in words.
inline QString changeArchive(const TestProgram& test, Dice& dice) {
    QString airport = dice.pick(scratchAirports);
    for (const QString& each : scratchAirports) // one at most is away
        if (QDir(test.path(of(each, {}).chopped(1) + u" (via)"_s)).exists()) airport = each;
    const QString here = test.path(of(airport, {}));
    const QString away = test.path(of(airport, {}).chopped(1) + u" (via)"_s);
    const QString chart = of(airport, dice.pick(charts));
    const QByteArray english = test.read(u"English.lng"_s);
    switch (dice.below(3)) {
    case 0:
        test.write(u"English.lng"_s, dice.pick(QList<QByteArray>{test.read(u"Italiano.lng"_s),
                                                                 english.first(english.size() / 2),
                                                                 english + QByteArray(70000, ';')}));
        return u"rewrites the English texts"_s;
    case 1:
        if (!QDir(away).exists()) return QDir().rename(here, away), u"moves away "_s + airport;
        QDir(here).removeRecursively(); // may have been made anew
        return QDir().rename(away, here), u"brings back "_s + airport;
    default:
        if (QFile::remove(test.path(chart))) return u"removes "_s + chart;
        return test.addChart(chart, {300, 400}), u"puts back "_s + chart;
    }
}

} // namespace quarvel
