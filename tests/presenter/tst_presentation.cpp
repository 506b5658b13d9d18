#include "presenter/core/presentation.h"
#include "presenter/core/request_queue.h"

#include <QRegularExpression>
#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// A character that writes down what it is asked for, and the control that has its file at one path only.
class Diary : public AgentCharacter, public AgentControl {
public:
    QStringList lines;
    QString file;
    void Show() override { lines.append(u"Show"_s); }
    void Play(const QString& animation) override { lines.append(animation); }
    void Speak(const QString& text) override { lines.append(u"speech of "_s + text); }
    void Hide() override { lines.append(u"Hide"_s); }
    void setLanguageID(int language) override { lines.append(u"language %1"_s.arg(language)); }
    void setBalloonStyle(int style) override { lines.append(u"balloon %1"_s.arg(style)); }

    void setConnected(bool connected) override { connected_ = connected; }
    void load(const QString& id, const QString& path) override {
        if (connected_ && path == file) id_ = id;
    }
    AgentCharacter* character(const QString& id) override { return id == id_ ? this : nullptr; }

private:
    bool connected_ = false;
    QString id_;
};

/// Carries requests out by writing them down; each that is known takes until the test ends it.
class Performer : public RequestPerformer {
public:
    QStringList lines;
    Outcome perform(const Request& request) override {
        lines.append(request.text);
        return request.text == u"unknown" ? Outcome::Over : Outcome::Begun;
    }
};

} // namespace

/// What a presentation asks the character for, and in which order it is carried out.
class PresentationTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void aFloodOfLinesIsCutShort() { QCOMPARE(spokenPieces(u"a\r\n"_s.repeated(30'000)).size(), mostPieces); }
    void requestsOfAPresentation() {
        const QStringList decline = {u"Decline"_s,
                                     u"speech of Mi spiace il fail è vuoto.       Se vuoi puoi inserire "
                                     "qualunque cosa riguardo all'aeroporto e io te lo presenterò la "
                                     "prossima volta..."_s};
        const auto read = [](QStringList pieces) {
            pieces.replaceInStrings(QRegularExpression(u"^"_s), u"speech of "_s);
            return QStringList(u"Read"_s) + pieces + QStringList(u"ReadReturn"_s);
        };
        for (const auto& [text, between] :
             {std::pair(QString(), decline),
              {u"Roma\r\nè a ovest\r\n"_s, read({u"Roma"_s, u"è a ovest"_s, QString()})},
              {u"a\nb\rc"_s, read({u"a\nb\rc"_s})}}) { // a line feed alone divides nothing
            Diary diary;
            AgentCharacter* genie = nullptr;
            presentText(diary, genie, text);
            QVERIFY(genie == nullptr); // without its file nobody is there
            diary.file = u"C:\\WINDOWS\\MSAGENT\\CHARS\\merlin.acs"_s;
            presentText(diary, genie, text);
            QCOMPARE(genie, &diary);
            QCOMPARE(diary.lines,
                     QStringList({u"Show"_s, u"language 1040"_s, u"Greet"_s, u"RestPose"_s, u"balloon 0"_s}) +
                         between + QStringList({u"Wave"_s, u"Hide"_s}));
        }
    }

    void requestsWaitForTheOneBeforeThem() {
        Performer performer;
        RequestQueue queue(performer);
        for (const auto& animation : {u"unknown"_s, u"Wave"_s, u"Greet"_s})
            queue.add({Request::Kind::Play, animation});
        QVERIFY(performer.lines.isEmpty()); // nothing is carried out inside the call
        QCoreApplication::processEvents();
        QCOMPARE(performer.lines, QStringList({u"unknown"_s, u"Wave"_s})); // the unknown is passed over
        queue.finished();
        QCoreApplication::processEvents();
        QCOMPARE(performer.lines.last(), u"Greet"_s);
    }
};

QTEST_GUILESS_MAIN(PresentationTest)
#include "tst_presentation.moc"
