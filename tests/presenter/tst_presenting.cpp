#include "presenter/airport_presenter.h"
#include "presenter/voice/espeak_voice.h"
#include "support/test_program.h"

#include <QDir>
#include <QFile>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// How many files and pipes this process holds open, and how many processes it has running.
qsizetype handles() { return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size(); }
qsizetype childCount() {
    QFile list(u"/proc/self/task/%1/children"_s.arg(QCoreApplication::applicationPid()));
    return list.open(QIODevice::ReadOnly) ? list.readAll().count(' ') : -1; // one behind each
}

/// Speaks every text at once and keeps it.
class InstantVoice : public Voice {
public:
    explicit InstantVoice(QStringList& spoken) : spoken_(spoken) {}
    void speak(const QString& text) override {
        spoken_.append(text);
        QMetaObject::invokeMethod(this, &Voice::finished, Qt::QueuedConnection);
    }
    void stop() override {}

private:
    QStringList& spoken_;
};

void openAnd(TestProgram& test, const QString& airport) {
    test.openAirport(airport);
    test.click(u"cmdAzzera"_s);
}

} // namespace

/// Airports opened in the real main window and presented by the real character.
class PresentingTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void theTextIsReadAsItsFileHoldsIt() {
        QStringList spoken;
        int voices = 0;
        AirportPresenter presenter([&] {
            ++voices;
            return std::make_unique<InstantVoice>(spoken);
        });
        TestProgram test;
        test.presents = &presenter;
        test.addAirport(u"LIRF"_s);
        test.write(u"aeroporti/LIRF/LIRF_Agent.txt"_s, "Roma \xE8 qui\nvicino\r\n\r\nFine\xA0!");
        test.start();
        QCOMPARE(voices, 0); // nothing is set up before the first presentation
        openAnd(test, u"LIRF"_s);
        QVERIFY(spoken.isEmpty());
        test.mainWindow()->close(); // what there is still to say outlives the window
        QTRY_COMPARE_WITH_TIMEOUT(spoken, QStringList({u"Roma è qui\nvicino"_s, QString(), u"Fine\u00A0!"_s}),
                                  60000);
        QCOMPARE(voices, 1);
    }

    void airportWithoutTextIsNotGivenAnothersText() {
        TestProgram test;
        for (const auto& airport : {u"LIRF"_s, u"LIMC"_s}) test.addAirport(airport);
        test.write(u"aeroporti/LIRF/LIRF_Agent.txt"_s, "Roma");
        test.start();
        openAnd(test, u"LIRF"_s);
        openAnd(test, u"LIMC"_s);
        QCOMPARE(test.presenter.presented, QStringList({u"LIRF_Agent.txt"_s, QString()}));
    }

    void hundredAirportsLeaveNothingBehind() {
        {
            AirportPresenter presenter([] { return std::make_unique<EspeakVoice>(); });
            TestProgram test;
            test.presents = &presenter;
            for (int i = 0; i < 10; ++i) {
                test.addAirport(u"LI%1"_s.arg(i));
                test.write(u"aeroporti/LI%1/LI%1_Agent.txt"_s.arg(i), "Benvenuti.\r\nBenvenuti.\r\n");
            }
            test.start();
            for (int i = 0; i < 20; ++i) openAnd(test, u"LI%1"_s.arg(i % 10));
            const qsizetype warm = handles();
            for (int i = 20; i < 100; ++i) openAnd(test, u"LI%1"_s.arg(i % 10));
            QVERIFY2(handles() <= warm + 4, qPrintable(QString::number(handles())));
            QVERIFY(childCount() <= 1);
        }
        QTRY_COMPARE(childCount(), 0);
    }
};

QTEST_MAIN(PresentingTest)
#include "tst_presenting.moc"
