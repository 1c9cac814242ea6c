#pragma once
// Many projects in one run of pilarix-cli: each runs on its own, the work spread over
// every core, the results printed in the order of the files; a summary row per
// project for a table or a CSV file.

#include "app/calculation_record.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <vector>

namespace pilarix {

struct BatchRow {
    std::string arquivo;
    // b, h, bars per face, bar, AsNec, AsReal, steel weight, stirrup, utilisation,
    // governing case: empty where the project did not get that far.
    std::vector<std::string> valores;
    std::string resultado; // "Ok", "erro", or why the project could not run
};

BatchRow batchRow(const app::CalculationRecord& record, const std::string& file);

// Runs job(0) ... job(n - 1) on a pool of threads, one per core.
void runInParallel(std::size_t n, const std::function<void(std::size_t)>& job);

void writeBatchTable(const std::vector<BatchRow>& rows, std::ostream& out);

// ";" between fields and "." as decimal point; false (with the reason on err) when
// the file cannot be written.
bool writeBatchCsv(const std::string& path, const std::vector<BatchRow>& rows, std::ostream& err);

} // namespace pilarix
