// An airport's data file. What was read from any bytes is refused for characters that are told, or can be
// saved and reads back as it was saved.

#include "archive/record_file.h"
#include "input.h"

using namespace quarvel;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto record = parseRecord(inputBytes(data, size), {});
    if (!record) return 0;
    const auto saved = recordBytes(record.value(), {});
    if (!isWritten(saved)) return 0;
    const auto again = parseRecord(saved.value(), {});
    mustHold(again.ok());
    mustHold(recordBytes(again.value(), {}).value() == saved.value());
    return 0;
}
