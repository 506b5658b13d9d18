#pragma once

#include <QByteArray>
#include <QString>
#include <memory>

class QProcess;

namespace quarvel {

enum class SynthesisState {
    Working,
    Complete, ///< all its output has been read, and it says that it succeeded
    Failed    ///< there is no synthesiser, or it failed; all its output has been read
};

/// The synthesiser at work on one text in Italian: a child process that writes a wave file. It reads the text
/// from its standard input, so that nothing in a text is ever taken for an option. It ends with this object,
/// and with the program however that ends. It goes on only as far as its output is read, so that a long text
/// costs no memory.
class Synthesis {
public:
    explicit Synthesis(const QString& text);
    ~Synthesis();
    Synthesis(const Synthesis&) = delete;
    Synthesis& operator=(const Synthesis&) = delete;

    /// What it has written meanwhile, `atMost` bytes of it. Never waits.
    [[nodiscard]] QByteArray read(qsizetype atMost);
    [[nodiscard]] SynthesisState state() const;

private:
    std::unique_ptr<QProcess> process_;
    int output_ = -1; // the reading end of its standard output, -1 after the end
};

} // namespace quarvel
