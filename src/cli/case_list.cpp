#include "cli/case_list.h"

#include "base/number_text.h"
#include "files/bounded_read.h"
#include "files/field_reader.h"

#include <sstream>

namespace pilarix::cli {

namespace {
std::vector<std::string> split(const std::string& s, char sep)
{
    std::vector<std::string> parts;
    std::string part;
    std::istringstream in(s);
    while (std::getline(in, part, sep))
        parts.push_back(part);
    if (!s.empty() && s.back() == sep)
        parts.emplace_back();
    return parts;
}

std::string trimmed(std::string s)
{
    const auto a = s.find_first_not_of(" \t\r\n\"");
    const auto b = s.find_last_not_of(" \t\r\n\"");
    return a == std::string::npos ? std::string() : s.substr(a, b - a + 1);
}

bool caseFrom(std::vector<std::string> parts, bool decimalComma, CasoDeCarga& out, std::string& error)
{
    // Under ABNT NBR 6118:2014 a case may carry the moment of the base and both end
    // moments in the direction of b.
    if (parts.size() != 3 && parts.size() != 6) {
        error = "um caso tem nome, Nd e Md (e, pela ABNT NBR 6118:2014, MdBase, MyTopo e MyBase)";
        return false;
    }
    for (auto& p : parts)
        p = trimmed(p);
    if (parts[0].empty()) {
        error = "o caso não tem nome";
        return false;
    }
    // The name goes into the project file, where a comma or a semicolon would split it.
    if (parts[0].find_first_of(",;") != std::string::npos) {
        error = "o nome de um caso não pode ter vírgula nem ponto e vírgula";
        return false;
    }
    const char* nomes[] = {"", "Nd", "Md", "MdBase", "MyTopo", "MyBase"};
    for (std::size_t k = 1; k < parts.size(); ++k) {
        if (decimalComma)
            for (auto& c : parts[k])
                if (c == ',')
                    c = '.';
        // An end moment may be left empty: none.
        if (k >= 3 && parts[k].empty())
            continue;
        if (!IsNumber(parts[k])) {
            error = std::string(nomes[k]) + " do caso \"" + parts[0] + "\" não é um número: \"" + parts[k] + "\"";
            return false;
        }
    }
    out = {parts[0], parts[1], parts[2], {}, {}, {}};
    if (parts.size() == 6) {
        out.mdBase = parts[3];
        out.myTopo = parts[4];
        out.myBase = parts[5];
    }
    return true;
}
} // namespace

bool parseCase(const std::string& text, CasoDeCarga& out, std::string& error)
{
    if (!caseFrom(split(text, ';'), true, out, error)) {
        error = "--caso \"" + text + "\": " + error + " (NOME;Nd;Md)";
        return false;
    }
    return true;
}

bool readCasesFile(const std::string& path, std::vector<CasoDeCarga>& out, std::string& error)
{
    std::string bytes, why;
    if (!files::readBoundedFile(path, files::kMaxInputBytes, bytes, why)) {
        error = "não foi possível ler os casos de \"" + path + "\": " + why;
        return false;
    }
    // In the encoding a project file is read in: UTF-8, or else Windows-1252.
    std::istringstream in(textoUtf8(bytes));
    std::string header;
    if (!std::getline(in, header)) {
        error = "\"" + path + "\" está vazio: falta a linha de título (nome;Nd;Md)";
        return false;
    }
    const char sep = header.find(';') != std::string::npos ? ';' : ',';
    std::string line;
    for (int n = 2; std::getline(in, line); ++n) {
        if (trimmed(line).empty())
            continue;
        CasoDeCarga c;
        if (!caseFrom(split(line, sep), sep == ';', c, error)) {
            error = "\"" + path + "\", linha " + std::to_string(n) + ": " + error;
            return false;
        }
        out.push_back(c);
    }
    if (out.empty()) {
        error = "\"" + path + "\" não tem nenhum caso depois da linha de título";
        return false;
    }
    return true;
}

void applyCases(Program& p, const std::vector<CasoDeCarga>& cases)
{
    if (cases.empty())
        return;
    p.NomeDoCaso1 = cases[0].nome;
    p.Form1.Text16.Text = cases[0].nd;
    p.Form1.Text17.Text = cases[0].md;
    if (!cases[0].mdBase.empty() || !cases[0].myTopo.empty() || !cases[0].myBase.empty()) {
        p.Form1.MdBase.Text = cases[0].mdBase;
        p.Form1.MyTopo.Text = cases[0].myTopo;
        p.Form1.MyBase.Text = cases[0].myBase;
    }
    p.OutrosCasos.assign(cases.begin() + 1, cases.end());
}

} // namespace pilarix::cli
