#pragma once
// Runs one line of the golden corpus and gives back every byte the program showed:
// the output of a pilarix-cli run, or the document of every step of a window session.

#include <cstdint>
#include <string>
#include <string_view>

namespace pilarix::golden {

struct CorpusLine {
    char kind = 0;       // 'C' a run of pilarix-cli, 'S' a window session
    std::string hash;    // 16 hex digits of the expected output
    std::string payload; // the rest of the line, fields separated by TAB
};

// False for comments and blank lines.
bool parseLine(const std::string& line, CorpusLine& out);

// What the program showed for the line.
std::string runLine(const CorpusLine& line);

// FNV-1a, 64 bits, as 16 hex digits.
std::string digest(std::string_view bytes);

} // namespace pilarix::golden
