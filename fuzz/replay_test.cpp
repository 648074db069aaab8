// Every seed and every input that once crashed or hung a fuzzer, replayed through its reader.

#include "fuzz/fuzzentries.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

TEST(FuzzReplay, SeedsAndRegressionsPassEveryReader)
{
    namespace fs = std::filesystem;
    int replayed = 0;
    for (const FuzzEntry& entry : kFuzzEntries) {
        for (const char* kind : {"corpus", "regressions"}) {
            const fs::path folder = fs::path(KELVO_FUZZ_DIR) / kind / entry.name;
            if (!fs::is_directory(folder))
                continue;
            for (const fs::directory_entry& file : fs::directory_iterator(folder)) {
                std::ifstream in(file.path(), std::ios::binary);
                const std::vector<std::uint8_t> bytes{std::istreambuf_iterator<char>(in),
                                                      std::istreambuf_iterator<char>()};
                SCOPED_TRACE(file.path().string());
                entry.run(bytes.data(), bytes.size());
                ++replayed;
            }
        }
    }
    EXPECT_GT(replayed, 20) << "the seed corpus is in place";
}
