#include "platform/font_preparation.h"

#include <dlfcn.h>
#include <system_error>

namespace quarvel {
namespace {

/// The font library's own initialisation. The toolkit brings the library along; where it does not, there is
/// nothing to prepare.
using Initialise = int (*)();

Initialise fontInitialisation() { return reinterpret_cast<Initialise>(::dlsym(RTLD_DEFAULT, "FcInit")); }

} // namespace

FontPreparation::FontPreparation() {
    const Initialise initialise = fontInitialisation();
    if (initialise == nullptr) return;
    try {
        reading_ = std::thread(initialise);
    } catch (const std::system_error&) {
        // Without a thread to spare the toolkit reads the list itself, later.
    }
}

FontPreparation::~FontPreparation() { finish(); }

void FontPreparation::finish() {
    if (reading_.joinable()) reading_.join();
}

} // namespace quarvel
