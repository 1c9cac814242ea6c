// The golden corpus: a few thousand columns through pilarix-cli and window sessions,
// compared byte for byte (by digest) with what the program showed when the corpus
// was written. A change of code that changes nothing a user sees passes; any other
// fails here, naming the line.
//
// What is compared is what a user sees (the boxes, the messages, the verification,
// the cases, the solutions, the 2014 objects), not the method's own variables. Every
// tenth line also keeps a readable text (golden/legivel/N.txt), and a failure there
// shows the lines that moved.
//
// To accept an intended change, rewrite the digests from the code as it stands:
//   PILARIX_GOLDEN_WRITE=1 ./core_tests --gtest_filter='Golden*'
// and say in the commit what changed and why.

#include "golden/golden_runner.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace {

constexpr const char* kCorpus = PILARIX_TEST_DATA "/golden/corpus.txt";
// Every tenth line keeps what it showed as text a person reads, so that a change
// shows what moved, not only that something did.
constexpr const char* kReadable = PILARIX_TEST_DATA "/golden/legivel/";
constexpr std::size_t kReadableEvery = 10;

std::string readFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string((std::istreambuf_iterator<char>(in)), {});
}

// The lines of `expected` that `got` lacks and the other way round, the first few.
std::string difference(const std::string& expected, const std::string& got)
{
    auto lines = [](const std::string& t) {
        std::vector<std::string> v;
        std::istringstream in(t);
        for (std::string l; std::getline(in, l);)
            v.push_back(l);
        return v;
    };
    const auto a = lines(expected), b = lines(got);
    std::string out;
    int shown = 0;
    for (std::size_t i = 0; i < std::max(a.size(), b.size()) && shown < 12; ++i) {
        const std::string x = i < a.size() ? a[i] : "", y = i < b.size() ? b[i] : "";
        if (x == y)
            continue;
        out += "  era:   " + x + "\n  agora: " + y + "\n";
        ++shown;
    }
    return out;
}
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
        const bool keepsText = (i + 1) % kReadableEvery == 0;
        const std::string textPath = std::string(kReadable) + std::to_string(i + 1) + ".txt";
        if (write) {
            lines[i] = std::string(1, line.kind) + "\t" + got + "\t" + line.payload;
            if (keepsText)
                std::ofstream(textPath, std::ios::binary) << pilarix::golden::readable(shown);
            continue;
        }
        if (keepsText && got != line.hash) {
            ADD_FAILURE() << "corpus line " << i + 1 << " (" << line.payload.substr(0, 200) << ") now shows:\n"
                          << difference(readFile(textPath), pilarix::golden::readable(shown));
            ++failed;
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
