#pragma once
// Load cases given on the command line: --caso "NOME;Nd;Md" (repeatable) and
// --casos FILE.csv (a header line, then one case a line: nome, Nd, Md, separated by
// ";" or ","). Forces in the units of Nd and Md of the project (Combo4, Combo5); with
// ";" as separator a decimal comma is taken as the point.

#include "window/program.h"

#include <string>
#include <vector>

namespace pilarix::cli {

bool parseCase(const std::string& text, CasoDeCarga& out, std::string& error);
bool readCasesFile(const std::string& path, std::vector<CasoDeCarga>& out, std::string& error);

// The cases become the project's: the first is the main window's Nd and Md.
void applyCases(Program& p, const std::vector<CasoDeCarga>& cases);

} // namespace pilarix::cli
