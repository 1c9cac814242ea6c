#pragma once
// The arguments of pilarix-cli.

#include <string>
#include <utility>
#include <vector>

namespace pilarix::cli {

struct Options {
    std::vector<std::string> files;           // one project, or a batch of several
    std::vector<std::pair<std::string, std::string>> sets; // --norma Y is the set Norma=Y, in its place
    std::vector<std::string> cases;           // --caso "NOME;Nd;Md", in order
    std::string casesFile;                    // --casos FILE.csv
    bool melhor = false;
    double limiteBusca = -1; // --limite-busca N: the most arrangements the search tries (0: none); -1 the program's
    int cobrimento = 1;
    int estribo = 4;
    std::string salvar;
    std::string desenho;  // the section's drawing, in the format of the name
    std::string memorial; // the calculation report (PDF)
    std::string csv;      // a summary row per project
    bool json = false;
    bool semPadrao = false; // do not load "Padrão.txt" of the working directory
};

extern const char* const kUsage;

// False, with the reason in `error`, for arguments that do not make a run.
bool parseOptions(const std::vector<std::string>& args, Options& o, std::string& error);

} // namespace pilarix::cli
