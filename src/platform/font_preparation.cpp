#include "platform/font_preparation.h"

#include <dlfcn.h>

namespace quarvel {
namespace {

/// The font library's own initialisation. The toolkit brings the library along; where it does not, there is
/// nothing to prepare.
using Initialise = int (*)();

Initialise fontInitialisation() { return reinterpret_cast<Initialise>(::dlsym(RTLD_DEFAULT, "FcInit")); }

} // namespace

FontPreparation::FontPreparation() {
    if (const Initialise initialise = fontInitialisation()) reading_ = std::thread(initialise);
}

FontPreparation::~FontPreparation() { finish(); }

void FontPreparation::finish() {
    if (reading_.joinable()) reading_.join();
}

} // namespace quarvel
