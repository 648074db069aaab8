// The libFuzzer driver of one entry, chosen when it is built (KELVO_FUZZ_ENTRY).

#include "fuzzentries.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    KELVO_FUZZ_ENTRY(data, size);
    return 0;
}
