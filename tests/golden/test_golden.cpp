// The golden corpus: a few thousand columns through pilarix-cli and window sessions,
// compared byte for byte (by digest) with what the program showed when the corpus
// was written. A change of code that changes nothing a user sees passes; any other
// fails here, naming the line.
//
// To accept an intended change, rewrite the digests from the code as it stands:
//   PILARIX_GOLDEN_WRITE=1 ./core_tests --gtest_filter='Golden*'
// and say in the commit what changed and why.

#include "golden/golden_runner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr const char* kCorpus = PILARIX_TEST_DATA "/golden/corpus.txt";
constexpr int kShards = 8;

std::vector<std::string>& corpusLines()
{
    static std::vector<std::string> lines = [] {
        std::vector<std::string> v;
        std::ifstream in(kCorpus);
        for (std::string line; std::getline(in, line);)
            v.push_back(line);
        return v;
    }();
    return lines;
}

class Golden : public ::testing::TestWithParam<int> {};

TEST_P(Golden, EveryLineShowsWhatItShowedBefore)
{
    auto& lines = corpusLines();
    ASSERT_FALSE(lines.empty()) << "no corpus at " << kCorpus;
    const bool write = std::getenv("PILARIX_GOLDEN_WRITE") != nullptr;
    int checked = 0, failed = 0;
    for (std::size_t i = static_cast<std::size_t>(GetParam()); i < lines.size(); i += kShards) {
        pilarix::golden::CorpusLine line;
        if (!pilarix::golden::parseLine(lines[i], line))
            continue;
        const std::string shown = pilarix::golden::runLine(line);
        const std::string got = pilarix::golden::digest(shown);
        if (const char* dump = std::getenv("PILARIX_GOLDEN_DUMP"))
            std::ofstream(std::string(dump) + "/" + std::to_string(i + 1) + ".txt") << shown;
        ++checked;
        if (write) {
            lines[i] = std::string(1, line.kind) + "\t" + got + "\t" + line.payload;
            continue;
        }
        if (got != line.hash && ++failed <= 3)
            ADD_FAILURE() << "corpus line " << i + 1 << " changed:\n" << line.payload << "\nnow shows:\n"
                          << shown.substr(0, 4000);
    }
    EXPECT_EQ(failed, 0) << failed << " of " << checked << " lines changed";
    if (write) {
        // Every shard writes the whole file; the last one to finish has every digest
        // of its own lines, so the shards are run one after another when writing.
        std::ofstream out(kCorpus, std::ios::trunc);
        for (const auto& l : lines)
            out << l << "\n";
    }
}

INSTANTIATE_TEST_SUITE_P(Corpus, Golden, ::testing::Range(0, kShards));

} // namespace
