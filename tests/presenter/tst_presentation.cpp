#include "presenter/core/presentation.h"
#include "presenter/core/request_queue.h"

#include <QRegularExpression>
#include <QTest>

using namespace quarvel;
using namespace Qt::StringLiterals;

namespace {

/// Carries requests out by writing them down; each that takes its time is over when the test says so.
class Diary : public RequestPerformer {
public:
    QStringList lines;
    Outcome perform(const Request& request) override {
        switch (request.kind) {
        case Request::Kind::Show: lines.append(u"Show"_s); break;
        case Request::Kind::Hide: lines.append(u"Hide"_s); break;
        case Request::Kind::Play: lines.append(request.text); break;
        case Request::Kind::Speak: lines.append(u"speech of "_s + request.text); break;
        }
        return request.text == u"unknown" ? Outcome::Over : Outcome::Begun;
    }
};

class QueuedCharacter : public AgentCharacter {
public:
    explicit QueuedCharacter(RequestQueue& queue) : queue_(queue) {}
    void Show() override { queue_.add({Request::Kind::Show}); }
    void Play(const QString& animation) override { queue_.add({Request::Kind::Play, animation}); }
    void Speak(const QString& text) override { queue_.add({Request::Kind::Speak, text}); }
    void Hide() override { queue_.add({Request::Kind::Hide}); }
    void setLanguageID(int language) override { languageID = language; }
    void setBalloonStyle(int style) override { balloonStyle = style; }

    int languageID = 0;
    int balloonStyle = -1;

private:
    RequestQueue& queue_;
};

/// Has the character's file at one path only, or at none.
class OneFileAgent : public AgentControl {
public:
    QString file;
    QueuedCharacter* queued = nullptr;
    int loads = 0;
    void setConnected(bool connected) override { connected_ = connected; }
    void load(const QString& id, const QString& path) override {
        if (!connected_ || !id_.isEmpty() || path != file) return;
        id_ = id;
        ++loads;
    }
    AgentCharacter* character(const QString& id) override { return id == id_ ? queued : nullptr; }

private:
    bool connected_ = false;
    QString id_;
};

} // namespace

/// What a presentation asks the character for, and in which order it is carried out.
class PresentationTest : public QObject {
    Q_OBJECT

private:
    /// Lets everything that is queued be carried out.
    static QStringList allOf(Diary& diary, RequestQueue& queue) {
        for (qsizetype seen = -1; seen != diary.lines.size();) {
            seen = diary.lines.size();
            QCoreApplication::processEvents();
            queue.finished();
            QCoreApplication::processEvents();
        }
        return diary.lines;
    }

private Q_SLOTS:
    void requestsOfAPresentation_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("between");
        QTest::newRow("no text is told")
            << QString()
            << QStringList({u"Decline"_s, u"speech of Mi spiace il fail è vuoto.       Se vuoi puoi "
                                          "inserire qualunque cosa riguardo all'aeroporto e io te lo "
                                          "presenterò la prossima volta..."_s});
        const auto read = [](QStringList pieces) {
            pieces.replaceInStrings(QRegularExpression(u"^"_s), u"speech of "_s);
            return QStringList(u"Read"_s) + pieces + QStringList(u"ReadReturn"_s);
        };
        QTest::newRow("two lines") << u"Roma\r\nè a ovest"_s << read({u"Roma"_s, u"è a ovest"_s});
        QTest::newRow("an empty last line is a piece") << u"Roma\r\n"_s << read({u"Roma"_s, QString()});
        QTest::newRow("an empty line between") << u"a\r\n\r\nb"_s << read({u"a"_s, QString(), u"b"_s});
        QTest::newRow("a line feed alone divides nothing") << u"a\nb\rc"_s << read({u"a\nb\rc"_s});
    }
    void requestsOfAPresentation() {
        QFETCH(QString, text);
        QFETCH(QStringList, between);
        Diary diary;
        RequestQueue queue(diary);
        QueuedCharacter character(queue);
        OneFileAgent agent;
        agent.file = u"C:\\WINDOWS\\MSAGENT\\CHARS\\merlin.acs"_s;
        agent.queued = &character;
        AgentCharacter* genie = nullptr;
        presentText(agent, genie, text);
        QCOMPARE(genie, &character);
        QVERIFY(diary.lines.isEmpty()); // nothing is carried out inside the call, but for the two properties
        QCOMPARE(character.languageID, 1040);
        QCOMPARE(character.balloonStyle, 0);
        const QStringList all = QStringList({u"Show"_s, u"Greet"_s, u"RestPose"_s}) + between +
                                QStringList({u"Wave"_s, u"Hide"_s});
        QCOMPARE(allOf(diary, queue), all);
        presentText(agent, genie, text);
        presentText(agent, genie, text);
        QCOMPARE(agent.loads, 1);
        QCOMPARE(allOf(diary, queue), all + all + all);
    }

    void whatCannotBeDoneIsPassedOver() {
        Diary diary;
        RequestQueue queue(diary);
        for (const auto& animation : {u"unknown"_s, u"unknown"_s, u"Wave"_s, u"Greet"_s})
            queue.add({Request::Kind::Play, animation});
        QCoreApplication::processEvents();
        QCOMPARE(diary.lines.size(), 3); // the third takes its time, and the fourth waits for it
        QCOMPARE(diary.lines.last(), u"Wave"_s);
    }
};

QTEST_GUILESS_MAIN(PresentationTest)
#include "tst_presentation.moc"
