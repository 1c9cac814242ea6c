#pragma once
// Runs one line of the golden corpus and gives back what a user sees of it: the JSON
// of a pilarix-cli run, or the document of every step of a window session, without
// the method's own variables ("estado").

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

// What was shown as text a person reads: one line a value by its path, long curves
// by their size and ends.
std::string readable(const std::string& shown);

// FNV-1a, 64 bits, as 16 hex digits.
std::string digest(std::string_view bytes);

} // namespace pilarix::golden
