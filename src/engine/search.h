#pragma once
// The search for the lightest arrangement ("Calcula melhor solução"): every count of
// bars on the depth faces (2 up to what fits), on the width faces (2 up to what
// fits) and every stirrup up to the largest allowed is calculated by the silent pass
// (calculateCandidate), d' found from the cover; each arrangement that passes every
// check is kept, and the list is ordered by the weight of its longitudinal steel
// (equal weights keep the order they were found in: fewer bars on the depth faces,
// then on the width faces, then the thinner stirrup).
//
// The arrangements are counted first: past `candidateLimit` the search does not
// start. A long one reports its progress and may be stopped.
//
//   search(input, memory)           -> SearchResult
//   search(input, memory, state)    the same on the caller's method variables

#include "engine/column.h"
#include "engine/column2014.h"
#include "engine/load_cases.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace pilarix::engine {

struct SearchInput {
    ColumnInput column;          // the bar counts and d' of it are the search's
    // Two or more load cases: each candidate is designed for the case needing the
    // most steel (each case from a fresh start of the method) and is a solution only
    // if its detailed section carries every case.
    std::vector<LoadCase> cases;
    // Under ABNT NBR 6118:2014 (column.rules): every case with the end moments of both
    // directions, and the slenderness; each candidate is detailed for the largest area
    // of every case and direction and is a solution only where its section carries
    // them all in both directions.
    std::vector<Case2014> cases2014;
    Slenderness2014Input slenderness2014;
    ConcreteRules concrete2014 = ConcreteRules::Nbr2014; // ηc of 2023, or not
    double maxBarsOnWidthFace = 2; // bars that fit on a face of width b
    double maxBarsOnDepthFace = 2; // bars that fit on a face of depth h
    // The most arrangements the search tries before it asks (0: no limit): past it
    // the search does not start, and says how many it would try.
    double candidateLimit = 0;
    // Told now and then how far the search has gone (arrangements tried, of all);
    // false stops it there, with the solutions found so far dropped.
    std::function<bool(double done, double total)> progress;
};

// How many arrangements the search would try: bar counts times stirrups.
double countCandidates(const SearchInput& input);

struct Solution {
    double weight = 0;           // kg of longitudinal steel
    double barsOnWidthFace = 0;
    double barsOnDepthFace = 0;
    int stirrupIndex = 0;        // catalogue index, 1 to 4
    double stirrupDiameter = 0;  // cm
    double dLinha = 0;           // the candidate's final d', cm: with it the window recalculates
                                 // exactly the listed arrangement
    double lambdaC1 = 0;         // λ of the candidate's first reference field, where its last
                                 // pass started from
};

struct SearchResult {
    std::vector<Solution> solutions; // lightest first
    std::vector<Solution> found;     // the same, in the order they were found
    long candidates = 0;
    // The last candidate tried (its bars per face and stirrup), and its silent pass
    // as it ended (none where the method could not go on in it).
    double lastBarsOnWidthFace = 0, lastBarsOnDepthFace = 0;
    int lastStirrupIndex = 0;
    std::optional<ColumnResult> last;
    // d' as the last cover correction of the search wrote it in the typed box.
    std::optional<std::string> dLinhaText;
    // Set when the method could not go on: the search stopped there.
    std::optional<std::string> failure;
    // The arrangements it would have tried, past the limit: it did not start.
    std::optional<double> beyondLimit;
    // Stopped by the one who asked for it (progress answered false).
    bool cancelled = false;
};

SearchResult search(const SearchInput& input, Memory& memory);
SearchResult search(const SearchInput& input, Memory& memory, MethodState& state);

} // namespace pilarix::engine
