// A chart's note. What was read from any bytes can be saved, and reads back as it was but for its quotes.

#include "input.h"
#include "viewer/core/notes.h"

using namespace quarvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto note = parseNote(inputBytes(data, size), {});
    if (!note) return 0;
    const auto saved = noteBytes(note.value(), {});
    mustHold(saved.ok());
    const auto again = parseNote(saved.value(), {});
    mustHold(again.ok());
    mustHold(again.value() == QString(note.value()).replace(u'"', u'\u201D'));
    return 0;
}
