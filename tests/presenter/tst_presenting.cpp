#include "presenter/airport_presenter.h"
#include "support/test_program.h"

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

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
        test.write(u"aeroporti/LIRF/LIRF_Agent.txt"_s, "Roma \xC3\xA8 qui\nvicino\r\n\r\nFine\xC2\xA0!");
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
};

QTEST_MAIN(PresentingTest)
#include "tst_presenting.moc"
