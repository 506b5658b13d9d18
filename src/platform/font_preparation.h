#pragma once

#include <thread>

namespace quarvel {

/// Reads the system's list of fonts while the toolkit starts. Reading it takes as long as connecting to the
/// screen does and needs nothing of it; this is the only work of the program beside the user-interface
/// thread. Make it before the application object, and finish() it before the first text.
class FontPreparation {
public:
    FontPreparation();
    ~FontPreparation();
    FontPreparation(const FontPreparation&) = delete;
    FontPreparation& operator=(const FontPreparation&) = delete;

    void finish();

private:
    std::thread reading_;
};

} // namespace quarvel
