#include "presenter/voice/espeak_voice.h"
#include "presenter/voice/loudness.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <csignal>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace quarvel;
using namespace Qt::StringLiterals;

class TestVoice : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void init() {
        folder_ = std::make_unique<QTemporaryDir>();
        qputenv("PATH", QFile::encodeName(folder_->path()));
        qputenv("PULSE_SERVER", "unix:/nowhere");
    }

    void aTextFinishesOnceWhateverFails_data() {
        QTest::addColumn<QByteArray>("synthesiser");
        QTest::addColumn<int>("patience");
        QTest::newRow("no synthesiser") << QByteArray() << 4000;
        QTest::newRow("it fails") << QByteArray("exit 1") << 4000;
        QTest::newRow("it hangs") << QByteArray("exec /bin/sleep 1000") << 50;
        QTest::newRow("it writes no sound") << QByteArray("/bin/cat /bin/sh") << 4000;
        QTest::newRow("no sound server") << QByteArray("/bin/cat $0.wave") << 4000;
        QTest::newRow("a sound server that never answers") << QByteArray("/bin/cat $0.wave") << 400;
    }
    void aTextFinishesOnceWhateverFails() {
        QFETCH(const QByteArray, synthesiser);
        QFETCH(const int, patience);
        const int server = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (QTest::currentDataTag() == "a sound server that never answers"_ba) listenWith(server);
        if (!synthesiser.isEmpty()) install(synthesiser);
        EspeakVoice voice{std::chrono::milliseconds(patience)};
        const QSignalSpy finished(&voice, &Voice::finished);
        int ticks = 0;
        QTimer ticking;
        connect(&ticking, &QTimer::timeout, [&] { ++ticks; });
        ticking.start(10);
        voice.speak(u"La pista è chiusa"_s); // a second's worth
        QCOMPARE(finished.count(), 0);
        QTRY_COMPARE_WITH_TIMEOUT(finished.count(), 1, 20000);
        QVERIFY2(ticks > 20, "the event loop was held up"); // some six before the voice opens anything
        voice.speak({});
        QTRY_COMPARE(finished.count(), 2);
        ::close(server);
    }

    void theTextReachesTheSynthesiserOnlyByItsInput() {
        install("printf '%s|' \"$@\" >$0.options; /bin/cat >$0.text; /bin/cat $0.wave");
        const QString text = u"-w/x 'È' \"$(id)\"\n; rm `a`\t[[[b]]]\1\2"_s + QChar(0) + u"c"_s;
        EspeakVoice voice;
        const QSignalSpy finished(&voice, &Voice::finished);
        voice.speak(text);
        QTRY_COMPARE(finished.count(), 1);
        // Two opening brackets would begin a notation of sounds, control characters are commands.
        QCOMPARE(contents(u".text"_s), u"-w/x 'È' \"$(id)\"\n; rm `a`\t[ [ [b]]]   c"_s.toUtf8());
        QCOMPARE(contents(u".options"_s), "-v|it|--stdin|--stdout|");
    }

    void whoIsCutOffLeavesNoProcess() {
        install("echo $$ >$0.id; exec /bin/sleep 1000");
        auto voice = std::make_unique<EspeakVoice>();
        const QSignalSpy finished(voice.get(), &Voice::finished);
        for (const int count : {1, 2}) {
            QFile::remove(path(u".id"_s));
            voice->speak(u"pista"_s);
            QTRY_VERIFY(contents(u".id"_s).endsWith('\n'));
            if (count == 1) voice->stop();
            if (count == 2) voice.reset();
            QTRY_COMPARE(::kill(contents(u".id"_s).trimmed().toInt(), 0), -1);
        }
        QCOMPARE(finished.count(), 1); // nobody is told by a voice that is gone
    }

    void loudnessFollowsTheSound() {
        QCOMPARE(loudnessOf({}), 0.0);
        QCOMPARE(loudnessOf(QByteArray::fromHex("FF7F0080")), 1.0);
        LoudnessTrack track(3000); // steps of 100 frames
        const QByteArray sound = QByteArray(200, '\0') +
                                 QByteArray::fromHex("E80318FC").repeated(50) + // 1000
                                 QByteArray::fromHex("B80B48F4").repeated(50);  // 3000
        for (qsizetype at = 0; at < sound.size(); at += 33) track.add(sound.mid(at, 33));
        QCOMPARE(track.at(99), 0.0);
        const double quiet = track.at(100);
        QVERIFY(quiet > 0.1);
        QCOMPARE(track.at(299), 3 * quiet);
        QCOMPARE(track.at(300), 0.0);
    }

private:
    QString path(const QString& ending) const { return folder_->filePath(u"espeak-ng"_s + ending); }

    QByteArray contents(const QString& ending) const {
        QFile file(path(ending));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void install(const QByteArray& commands) const { // its lengths are placeholders, as espeak-ng writes them
        const auto head = QByteArray::fromHex("5249464624F0FF7F57415645666D74201000000001000100"
                                              "2256000044AC0000020010006461746100F0FF7F");
        write(u".wave"_s, head + QByteArray::fromHex("401FC0E0").repeated(11025));
        write({}, "#!/bin/sh\n" + commands + "\n");
        QVERIFY(QFile::setPermissions(path({}), QFile::ReadOwner | QFile::ExeOwner));
    }

    void write(const QString& ending, const QByteArray& bytes) const {
        QFile file(path(ending));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }

    void listenWith(int server) const {
        const QByteArray name = QFile::encodeName(path(u".server"_s));
        sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
        qstrncpy(address.sun_path, name.constData(), sizeof address.sun_path);
        QCOMPARE(::bind(server, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
        QCOMPARE(::listen(server, 5), 0);
        qputenv("PULSE_SERVER", "unix:" + name);
    }

    std::unique_ptr<QTemporaryDir> folder_;
};

QTEST_GUILESS_MAIN(TestVoice)
#include "tst_voice.moc"
