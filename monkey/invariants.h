#pragma once

#include "archive/name_rules.h"
#include "archive/record_file.h"
#include "files/descriptor.h"
#include "support/test_program.h"
#include "viewer/core/notes.h"

#include <QLineEdit>
#include <QPixmapCache>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <ftw.h>
#include <malloc.h>
#include <map>
#include <sys/stat.h>
#include <sys/wait.h>

/// There in a program that is built to find faults of memory, which looks after crashes itself.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*callback)());

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace quarvel {

/// What must hold while the program is used. Whatever breaks it, a crash and a warning of Qt's included, ends
/// the process and tells which run this is, where its files lie, and what was done last.
class Invariants {
public:
    /// What the program folder lies in: wherever the process is. So its path is the same in every run.
    static constexpr char surroundings[] = "/proc/self/cwd/.";

    /// `run` says in words which run this is.
    Invariants(TestProgram& test, const QString& run) : test_(test) {
        note(run);
        qInstallMessageHandler(judgeMessage);
        for (const int signal : {SIGALRM, SIGABRT}) std::signal(signal, died);
        sanitized() ? __sanitizer_set_death_callback(tell) : static_cast<void>(std::signal(SIGSEGV, died));
    }

    /// Keeps in words what is done next.
    static void note(const QString& words) {
        lastWords.append(words.toUtf8() + '\n');
        if (lastWords.size() > 31) lastWords.remove(1); // the first line is the run
    }

    /// A step begins: its time counts from here.
    void begin() {
        ::alarm(60); // then the process hangs
        begun_ = busy();
    }

    /// A step is over. It took the main thread no longer than a second, the time aside in which that was
    /// ready and had no processor. No file changed, came or went but those that the windows shown since
    /// forget() may save, and each of these is whole.
    void check() {
        if (busy() - begun_ > (sanitized() ? 10s : 1s)) fail(u"That took too long."_s);
        const Stamps before = std::exchange(stamps_, stamps());
        targets_.merge(targets());
        for (const auto& [path, stamp] : stamps_)
            if (const auto old = before.find(path); old == before.end() || old->second != stamp) judge(path);
        for (const auto& [path, stamp] : before)
            if (!stamps_.contains(path)) fail(u"Gone: "_s + QFile::decodeName(path));
        begin();
    }

    /// What was shown until now can no longer be saved.
    void forget() { targets_ = targets(); }
    /// What has changed since the last check was not the program's doing.
    void accept() { stamps_ = stamps(); }

    /// Nothing is shown: the first time, memory is measured; from then on, it has not grown by more than
    /// 8 MB. In 10000 actions it grows by 2 or 3.
    void checkMemory() {
        QPixmapCache::clear(); // which has a bound of its own
        ::malloc_trim(0);
        QFile statm(u"/proc/self/statm"_s);
        if (!statm.open(QIODevice::ReadOnly)) fail(u"There is no statm."_s);
        const qint64 bytes = statm.readAll().split(' ').value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
        if (memory_ == 0) memory_ = bytes;
        if (bytes - memory_ > 8'000'000 && !sanitized()) fail(u"The memory grows."_s);
    }

    /// A second after the end, no child process is left.
    static void checkChildren() {
        siginfo_t child{};
        const auto none = [&] { return ::waitid(P_ALL, 0, &child, WEXITED | WNOHANG | WNOWAIT) != 0; };
        if (!QTest::qWaitFor(none, 1000)) fail(u"A child process is left."_s);
    }

private:
    using Stamps = std::map<QByteArray, std::vector<long>>;
    using Whole = bool (*)(const QByteArray& bytes); ///< null for a folder
    using Targets = std::map<QByteArray, Whole>;     ///< what may be saved, by path

    static bool sanitized() { return __sanitizer_set_death_callback != nullptr; }
    static void tell() {
        for (const QByteArray& line : lastWords) std::fputs(line.constData(), stderr);
    }
    [[noreturn]] static void fail(const QString& fault) {
        note(fault);
        tell();
        std::signal(SIGABRT, SIG_DFL);
        std::abort(); // as it is: neither windows nor files are cleared away
    }
    static void died(int signal) { fail(signal == SIGALRM ? u"It hangs."_s : u"It crashed."_s); }
    static void judgeMessage(QtMsgType type, const QMessageLogContext& /*where*/, const QString& message) {
        const bool expected = message.startsWith(u"This plugin does not support"); // offscreen
        if (type != QtDebugMsg && type != QtInfoMsg && !expected) fail(u"Qt: "_s + message);
    }

    /// The time of the main thread but for that in which it was ready and had no processor.
    [[nodiscard]] std::chrono::nanoseconds busy() const {
        std::array<char, 96> text{};
        if (::pread(schedule_.number(), text.data(), text.size() - 1, 0) <= 0) fail(u"No schedstat."_s);
        const std::chrono::nanoseconds waited(QByteArray(text.data()).split(' ').value(1).toLongLong());
        return std::chrono::steady_clock::now().time_since_epoch() - waited;
    }

    /// Everything in the surroundings: times aside with folders, which tell of their entries.
    static Stamps stamps() {
        static Stamps found; // the walk hands nothing on
        found.clear();
        const auto visit = [](const char* path, const struct stat* is, int /*kind*/, FTW* /*place*/) {
            if (std::strstr(path, "/Quarvel/Stato") != nullptr) return 0; // the program's own, not the user's
            std::vector<long>& stamp = found[path] = {is->st_mode, static_cast<long>(is->st_ino)};
            if (S_ISREG(is->st_mode))
                stamp.insert(stamp.end(), {is->st_size, is->st_ctim.tv_sec, is->st_ctim.tv_nsec});
            return 0;
        };
        if (::nftw(surroundings, visit, 16, FTW_PHYS) != 0) fail(u"The folder cannot be read."_s);
        return std::move(found);
    }

    [[nodiscard]] Targets targets() const {
        Targets targets;
        const ArchivePaths paths(test_.programFolder());
        const auto add = [&](const QString& path, Whole whole) { targets[QFile::encodeName(path)] = whole; };
        const frmView& view = test_.program().viewWindow();
        if (view.isLoaded())
            for (const NoteKind& kind : notesOf(view.FamilyMode))
                add(test_.program().state().FamilyFolder + noteFileName(kind, view.ChartName), isNote);
        QWidget* const main = test_.mainWindow();
        if (main == nullptr) return targets;
        add(test_.path(u"LangSetting.ini"_s), isSetting);
        const QString name = TestProgram::control<QLineEdit>(main, u"txtNomeAeroporto"_s)->text();
        const QString icao = TestProgram::control<QLineEdit>(main, u"txtRwy(38)"_s)->text();
        if (!checkAirportName(name, NameUse::New)) return targets;
        for (const auto& folder : {u""_s, u"/Sid"_s, u"/Star"_s, u"/Approach"_s, u"/Aeroporto"_s})
            add(paths.airportFolder(name).value() + folder, nullptr);
        if (!TestProgram::control(main, u"cmdSave"_s)->isVisible() || !staysInFolder(icao)) return targets;
        add(paths.dataFile(name).value(), isRecord);
        add(paths.presenterText(name, icao).value(), [](const QByteArray& text) { return text.isEmpty(); });
        return targets;
    }

    static bool isRecord(const QByteArray& bytes) {
        const Result<AirportRecord> record = parseRecord(bytes, {});
        return record && recordBytes(record.value(), {}).value() == bytes;
    }
    static bool isNote(const QByteArray& bytes) {
        const Result<QString> note = parseNote(bytes, {});
        return note && noteBytes(note.value(), {}).value() == bytes;
    }
    static bool isSetting(const QByteArray& bytes) {
        const QByteArray start = "[Language]\r\nCurrentLanguage=";
        return bytes == start + "English\r\n" || bytes == start + "Italiano\r\n";
    }

    void judge(const QByteArray& path) const {
        const auto target = targets_.find(path);
        QFile file(QFile::decodeName(path));
        if (target == targets_.end()) fail(u"Changed, though nobody saved it: "_s + file.fileName());
        const bool isFolder = target->second == nullptr;
        if (isFolder ? !QFileInfo(file).isDir()
                     : !file.open(QIODevice::ReadOnly) || !target->second(file.readAll()))
            fail(u"Neither old nor new: "_s + file.fileName());
    }

    inline static QByteArrayList lastWords; ///< the run, and what was done last
    TestProgram& test_;
    Stamps stamps_ = stamps();
    Targets targets_;
    Descriptor schedule_{::open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC)};
    std::chrono::nanoseconds begun_{};
    qint64 memory_ = 0; ///< bytes
};

} // namespace quarvel
