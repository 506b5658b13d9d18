// A chart's note. What was read from any bytes is refused for characters that are told, or can be saved and
// reads back as it was but for its quotes and for accents that stood apart.

#include "input.h"
#include "viewer/core/notes.h"

using namespace quarvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto note = parseNote(inputBytes(data, size), {});
    if (!note) return 0;
    const auto saved = noteBytes(note.value(), {});
    if (!isWritten(saved)) return 0;
    const auto again = parseNote(saved.value(), {});
    mustHold(again.ok());
    mustHold(again.value() == note.value().normalized(QString::NormalizationForm_C).replace(u'"', u'\u201D'));
    return 0;
}
