#include "presenter/voice/synthesis.h"

#include <QCoreApplication>
#include <QProcess>
#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace quarvel {
namespace {

struct Pipe {
    int readingEnd = -1;
    int writingEnd = -1;
};

Pipe makePipe() {
    std::array<int, 2> ends{-1, -1};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) return {};
    ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    return {ends[0], ends[1]};
}

/// Runs in the child between fork and exec: system calls only.
void prepareChild(pid_t parent, int output) {
    // The kernel ends the child with the program. A program that had ended before is noticed by the new
    // parent.
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent || ::dup2(output, STDOUT_FILENO) < 0) ::_exit(127);
}

/// Two brackets in a row begin the synthesiser's own notation of sounds, however many follow; a zero ends its
/// reading, and other control characters are commands to it. A text has none of these.
QString asPlainText(QString text) {
    text.replace(u"[["_s, u"[ ["_s).replace(u"[["_s, u"[ ["_s); // the second time for an odd number of them
    for (QChar& character : text)
        if (character < u' ' && !character.isSpace()) character = u' ';
    return text;
}

} // namespace

Synthesis::Synthesis(const QString& text) : process_(std::make_unique<QProcess>()) {
    // QProcess would read all that comes, however much: the output goes through a pipe of our own.
    const Pipe pipe = makePipe();
    output_ = pipe.readingEnd;
    process_->setStandardOutputFile(QProcess::nullDevice());
    process_->setStandardErrorFile(QProcess::nullDevice());
    process_->setChildProcessModifier(
        [parent = ::getpid(), output = pipe.writingEnd] { prepareChild(parent, output); });
    process_->start(u"espeak-ng"_s, {u"-v"_s, u"it"_s, u"--stdin"_s, u"--stdout"_s}, QIODevice::WriteOnly);
    if (pipe.writingEnd >= 0) ::close(pipe.writingEnd);
    process_->write(asPlainText(text).toUtf8());
    process_->closeWriteChannel();
}

Synthesis::~Synthesis() {
    if (output_ >= 0) ::close(output_);
    if (process_->state() == QProcess::NotRunning) return;
    // Its end is not waited for: the application keeps what is left of it until then.
    QProcess* ending = process_.release();
    ending->setParent(QCoreApplication::instance());
    QObject::connect(ending, &QProcess::stateChanged, ending, [ending](QProcess::ProcessState now) {
        if (now == QProcess::NotRunning) ending->deleteLater();
    });
    ending->kill();
}

QByteArray Synthesis::read(qsizetype atMost) {
    QByteArray bytes(std::max<qsizetype>(atMost, 0), Qt::Uninitialized);
    qsizetype length = 0;
    while (output_ >= 0 && length < bytes.size()) {
        const ssize_t got =
            ::read(output_, bytes.data() + length, static_cast<std::size_t>(bytes.size() - length));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0 && errno == EAGAIN) break;
        if (got > 0) {
            length += got;
        } else { // all writing ends are closed
            ::close(output_);
            output_ = -1;
        }
    }
    bytes.truncate(length);
    return bytes;
}

SynthesisState Synthesis::state() const {
    if (output_ >= 0 || process_->state() != QProcess::NotRunning) return SynthesisState::Working;
    const bool succeeded = process_->error() != QProcess::FailedToStart &&
                           process_->exitStatus() == QProcess::NormalExit && process_->exitCode() == 0;
    return succeeded ? SynthesisState::Complete : SynthesisState::Failed;
}

} // namespace quarvel
