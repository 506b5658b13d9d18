#pragma once

#include <functional>
#include <thread>

namespace quarvel {

/// Work that runs beside the user-interface thread while a start is under way. It only prepares what somebody
/// would otherwise work out when it is first needed; where there is no thread to spare it is left undone.
class Beside {
public:
    explicit Beside(std::function<void()> work);
    ~Beside() { finish(); }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;

    /// Waits for the end of the work.
    void finish();

private:
    std::thread thread_;
};

/// Readies the environment for threads that read it while the toolkit starts. The toolkit takes the start's
/// own id out of it: from the last place, to which this moves it, that shifts nothing that others look for.
void settleEnvironment();

/// Reads the system's list of fonts: the font library's own initialisation, which needs no application. It
/// takes as long as connecting to the screen does.
void readFontList();

} // namespace quarvel
