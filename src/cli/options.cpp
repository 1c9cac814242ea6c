#include "cli/options.h"

#include "files/record_text.h"

namespace pilarix::cli {

const char* const kUsage =
    "uso: pilarix-cli [ARQUIVO...] [--set CONTROLE=VALOR]... [--caso \"NOME;Nd;Md\"]... [--casos CASOS.csv] "
    "[--norma 2001|2014|2023] [--melhor] [--limite-busca N] [--cobrimento 1|2] [--estribo K] [--salvar SAIDA] [--desenho SAIDA.dxf|.svg|.png] "
    "[--memorial SAIDA.pdf] [--csv RESUMO.csv] [--sem-padrao] [--json]";

bool parseOptions(const std::vector<std::string>& args, Options& o, std::string& error)
{
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        // A value is never another option: "--salvar --json" would otherwise save
        // to a file named "--json". Such a file is named "./--json".
        auto next = [&](std::string& v) {
            if (i + 1 >= args.size()) {
                error = a + " precisa de um valor";
                return false;
            }
            if (args[i + 1].rfind("--", 0) == 0) {
                error = a + " precisa de um valor, e \"" + args[i + 1]
                        + "\" é uma opção (um arquivo com esse nome se escreve \"./" + args[i + 1] + "\")";
                return false;
            }
            v = args[++i];
            return true;
        };
        std::string v;
        if (a == "--json") {
            o.json = true;
        } else if (a == "--melhor") {
            o.melhor = true;
        } else if (a == "--sem-padrao") {
            o.semPadrao = true;
        } else if (a == "--set") {
            if (!next(v))
                return false;
            const auto eq = v.find('=');
            if (eq == std::string::npos || eq == 0) {
                error = "--set espera CONTROLE=VALOR, não \"" + v + "\"";
                return false;
            }
            if (!files::isUtf8(v)) {
                error = "--set " + v.substr(0, eq)
                        + ": o valor não é texto UTF-8, e uma caixa só guarda texto UTF-8 (no arquivo do projeto e"
                          " no JSON)";
                return false;
            }
            o.sets.emplace_back(v.substr(0, eq), v.substr(eq + 1));
        } else if (a == "--cobrimento") {
            if (!next(v))
                return false;
            if (v != "1" && v != "2") {
                error = "--cobrimento aceita 1 ou 2, não \"" + v + "\"";
                return false;
            }
            o.cobrimento = v[0] - '0';
        } else if (a == "--norma") {
            if (!next(v))
                return false;
            if (v != "2001" && v != "2014" && v != "2023") {
                error = "--norma aceita 2001, 2014 ou 2023, não \"" + v + "\"";
                return false;
            }
            o.sets.emplace_back("Norma", v);
        } else if (a == "--limite-busca") {
            if (!next(v))
                return false;
            if (v.empty() || v.size() > 12 || v.find_first_not_of("0123456789") != std::string::npos) {
                error = "--limite-busca aceita um número inteiro de arranjos (0 para nenhum limite), não \"" + v + "\"";
                return false;
            }
            o.limiteBusca = std::stod(v);
        } else if (a == "--estribo") {
            if (!next(v))
                return false;
            if (v.size() != 1 || v[0] < '0' || v[0] > '4') {
                error = "--estribo aceita 0 a 4, não \"" + v + "\"";
                return false;
            }
            o.estribo = v[0] - '0';
        } else if (a == "--caso" || a == "--casos" || a == "--salvar" || a == "--desenho" || a == "--memorial"
                   || a == "--csv") {
            if (!next(v))
                return false;
            if (a == "--caso" && !files::isUtf8(v)) {
                error = "--caso: o texto não é UTF-8, e o nome de um caso só se guarda em UTF-8 (no arquivo do"
                        " projeto e no JSON)";
                return false;
            }
            if (a == "--caso")
                o.cases.push_back(v);
            else
                (a == "--casos" ? o.casesFile : a == "--salvar" ? o.salvar : a == "--desenho" ? o.desenho
                                                                 : a == "--memorial" ? o.memorial
                                                                                     : o.csv) = v;
        } else if (a.size() > 1 && a[0] == '-') {
            error = "opção desconhecida: " + a;
            return false;
        } else {
            o.files.push_back(a);
        }
    }
    // What is written to one file cannot come from several projects.
    if (o.files.size() > 1) {
        for (const auto& [opcao, valor] : {std::pair<const char*, const std::string*>{"--salvar", &o.salvar},
                                           {"--desenho", &o.desenho},
                                           {"--memorial", &o.memorial}})
            if (!valor->empty()) {
                error = std::string(opcao) + " grava um arquivo de um projeto só, e foram dados "
                        + std::to_string(o.files.size());
                return false;
            }
    }
    return true;
}

} // namespace pilarix::cli
