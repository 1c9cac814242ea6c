// Project files and the default-values file "Padrão.txt": the whole input of the
// main window and the four settings of "Outros valores", one record a line.

#include "window/control_table.h"
#include "window/program.h"

#include "engine/catalogue.h"
#include "base/number_text.h"
#include "files/bounded_read.h"
#include "files/field_reader.h"
#include "files/record_text.h"
#include "files/safe_write.h"

#include <algorithm>
#include <array>
#include <optional>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <system_error>

namespace pilarix {

namespace {

constexpr const char* kArquivoPadrao = "Padrão.txt";
constexpr std::size_t kRegistros = 39;

using Tipo = Controle::Tipo;

// A number printed to a file reserves its first place for the sign: a check box's 0,
// 1 or 2 is written with a leading blank.
std::string comLugarDoSinal(const std::string& v) { return !v.empty() && v.front() == '-' ? v : " " + v; }

// The controls of the 39 records, in the order of the file.
const std::array<const Controle*, kRegistros>& registros()
{
    static const auto tabela = [] {
        std::array<const Controle*, kRegistros> t{};
        for (const auto& c : controles())
            if (c.arquivo.lugar >= 1 && static_cast<std::size_t>(c.arquivo.lugar) <= kRegistros)
                t[static_cast<std::size_t>(c.arquivo.lugar) - 1] = &c;
        return t;
    }();
    return tabela;
}

std::string aspas(const std::string& s) { return "\"" + s + "\""; }

// Reads the fields of a file; false with the reason when it cannot be read.
bool leCampos(const std::string& nome, std::vector<std::string>& campos, std::string& erro)
{
    std::string bytes, porque;
    if (!files::readBoundedFile(nome, files::kMaxInputBytes, bytes, porque)) {
        erro = "Não foi possível ler o arquivo " + aspas(nome) + ": " + porque + ".";
        return false;
    }
    campos = camposDelimitados(textoUtf8(bytes));
    return true;
}

// ---- the records after the 39: load cases, the fixed bar, d' ----
//
// A project of one case, no fixed bar, "d' automático" clear and d' as typed ends at
// record 39, byte for byte as it always has, and a reader that stops there still
// reads it. After them:
//   Caso;NOME                 the name of the first case (its forces are records 12, 13)
//   Caso;NOME;Nd;Md           each further case, its forces as typed in Nd's and Md's units
//   Caso%;NOME...             the same, the name %-encoded (it holds ';', ',', '"', '%',
//                             a line break or blanks at its ends)
//   Bitola fixa;16 mm (5/8'')  the longitudinal bar fixed with "Automático" clear
//   d' automático;1           "d' automático f(cobrimento)" (Check3) ticked (1 or 2)
//   d' digitado;VALOR         d' as it stood before the calculation rewrote record 8,
//                             %-encoded; it goes back into the d' box on loading
//   Norma;2014                calculated by ABNT NBR 6118:2014 (none: the 2001 project)
//   MdBase;V  MyTopo;V  MyBase;V  LeH;V  LeB;V
//                             what 2014 adds, as typed, each only when given
//   SegundaOrdem;rigidez      the κ method (none: the approximate curvature)
//   EstriboDiametro;6.3 mm  EstriboEspacamento;V
//                             the stirrup typed with "Definir manualmente", each
//                             only when given
//   Caso;NOME;Nd;Md;MdBase;MyTopo;MyBase
//                             a further case with its 2014 end moments (empty: none)
//   Obra;TEXTO  Cliente;TEXTO  Pilar;TEXTO  Engenheiro;TEXTO  Revisão;TEXTO
//                             the heading of the report ("Dados da obra..."), each
//                             %-encoded, each only when it is not empty

// d' as typed is no control of its own: it rides after "d' automático".
constexpr const char* kDDigitado = "d' digitado";

// The controls kept after the 39 records, in the order they are written.
const std::vector<const Controle*>& depoisDos39()
{
    static const auto tabela = [] {
        std::vector<const Controle*> t;
        for (const auto& c : controles())
            if (static_cast<std::size_t>(c.arquivo.lugar) > kRegistros)
                t.push_back(&c);
        std::stable_sort(t.begin(), t.end(),
                         [](const Controle* a, const Controle* b) { return a->arquivo.lugar < b->arquivo.lugar; });
        return t;
    }();
    return tabela;
}

// The controls after the 39 whose records have an encoding of their own; the other
// boxes are kept as numbers with a decimal point, the heading %-encoded.
struct Especiais {
    const Controle& casos = *controle("Casos");
    const Controle& bitolaFixa = *controle("Bitola fixa");
    const Controle& dAutomatico = *controle("Check3");
    const Controle& norma = *controle("Norma");
    const Controle& segundaOrdem = *controle("SegundaOrdem");
    const Controle& estriboDiametro = *controle("EstriboDiametro");
};
const Especiais& especiais()
{
    static const Especiais e;
    return e;
}

// What a single control kept after the 39 is when a file has no record of it: a
// list's first entry (the 2001 project, the approximate curvature, no typed
// stirrup), a check box clear, a box or the heading empty.
std::string semRegistro(const Controle& c)
{
    return c.tipo == Tipo::Lista ? c.lista->front() : c.tipo == Tipo::Marca ? "0" : "";
}

std::vector<std::string> partes(const std::string& s)
{
    std::vector<std::string> p;
    std::size_t inicio = 0;
    for (;;) {
        const auto fim = s.find(';', inicio);
        p.push_back(s.substr(inicio, fim - inicio));
        if (fim == std::string::npos)
            return p;
        inicio = fim + 1;
    }
}

// True while the d' box holds what the last calculation wrote or, after loading,
// what it started from: the file then keeps both (record 8 and "d' digitado").
// A d' typed since is the engineer's own, and record 8 alone keeps it.
bool dLinhaReescrita(const Program& p)
{
    const std::string& caixa = p.Form1.Text3.Text;
    return p.DLinhaDigitado && *p.DLinhaDigitado != p.DLinhaReescrito
           && (caixa == p.DLinhaReescrito || caixa == *p.DLinhaDigitado);
}

// "Caso;NOME..." or, for a name the plain record would not give back, "Caso%;...".
std::string registroDeCaso(const std::string& nome, const std::string& resto)
{
    const std::string registro = especiais().casos.arquivo.registro;
    if (files::needsPercent(nome))
        return registro + "%;" + files::percentEncoded(nome) + resto;
    return registro + ";" + nome + resto;
}

// The load cases after the first; false, naming the case and the value, for a case
// that no file can give back.
bool registrosDeCasos(const Program& p, std::vector<std::string>& e, std::string& erro)
{
    if (p.OutrosCasos.empty())
        return true;
    auto recusa = [&](const std::string& porque) {
        erro = "Não foi possível gravar o arquivo " + aspas(p.NomeArquivo) + ": " + porque + ".";
        return false;
    };
    for (std::size_t k = 0; k <= p.OutrosCasos.size(); ++k) {
        const std::string& nome = k == 0 ? p.NomeDoCaso1 : p.OutrosCasos[k - 1].nome;
        if (nome.empty())
            return recusa("o caso de carga " + std::to_string(k + 1) + " não tem nome");
        if (!files::isUtf8(nome))
            return recusa("o nome do caso de carga " + std::to_string(k + 1) + " não é texto UTF-8");
    }
    e.push_back(registroDeCaso(p.NomeDoCaso1, ""));
    for (const auto& c : p.OutrosCasos) {
        for (const std::string* v : {&c.nd, &c.md})
            if (!IsNumber(*v))
                return recusa(std::string(v == &c.nd ? "Nd" : "Md") + " do caso " + aspas(c.nome) + " é " + aspas(*v)
                              + ", que não é um número com ponto decimal");
        std::string resto = ";" + c.nd + ";" + c.md;
        if (!c.mdBase.empty() || !c.myTopo.empty() || !c.myBase.empty()) {
            for (const std::string* v : {&c.mdBase, &c.myTopo, &c.myBase})
                if (!v->empty() && !IsNumber(*v))
                    return recusa("um momento do caso " + aspas(c.nome) + " é " + aspas(*v)
                                  + ", que não é um número com ponto decimal");
            resto += ";" + c.mdBase + ";" + c.myTopo + ";" + c.myBase;
        }
        e.push_back(registroDeCaso(c.nome, resto));
    }
    return true;
}

// The records after the 39, each only when its control is not as a file without it
// would leave it; false, naming the control and the value, for a value that no file
// can give back.
bool registrosExtras(const Program& p, std::vector<std::string>& e, std::string& erro)
{
    const Especiais& x = especiais();
    for (const Controle* c : depoisDos39()) {
        const std::string registro = c->arquivo.registro;
        if (c == &x.casos) {
            if (!registrosDeCasos(p, e, erro))
                return false;
            continue;
        }
        if (c == &x.bitolaFixa) {
            if (p.BitolaFixa != 0)
                e.push_back(registro + ";" + std::string(engine::bar(p.BitolaFixa).label));
            continue;
        }
        const std::string v = c->valor(p);
        if (c == &x.dAutomatico) {
            if (v != "0")
                e.push_back(registro + ";" + v);
            if (dLinhaReescrita(p))
                e.push_back(std::string(kDDigitado) + ";" + files::percentEncoded(*p.DLinhaDigitado));
        } else if (c == &x.norma) {
            if (p.norma2014())
                e.push_back(registro + (p.norma2023() ? ";2023" : ";2014"));
        } else if (c == &x.segundaOrdem) {
            if (v == (*c->lista)[1])
                e.push_back(registro + ";" + v);
        } else if (c == &x.estriboDiametro) {
            if (!v.empty())
                e.push_back(registro + ";" + v);
        } else if (c->tipo == Tipo::Caixa) {
            if (v.empty())
                continue;
            if (!IsNumber(v)) {
                erro = "Não foi possível gravar o arquivo " + aspas(p.NomeArquivo) + ": " + registro + " é " + aspas(v)
                       + ", que não é um número com ponto decimal.";
                return false;
            }
            e.push_back(registro + ";" + v);
        } else { // the heading of the report
            if (v.empty())
                continue;
            if (!files::isUtf8(v)) {
                erro = "Não foi possível gravar o arquivo " + aspas(p.NomeArquivo) + ": " + registro
                       + " (dados da obra) não é texto UTF-8.";
                return false;
            }
            e.push_back(registro + ";" + files::percentEncoded(v));
        }
    }
    return true;
}

struct Extras {
    std::string nomeDoCaso1 = "1";
    std::vector<CasoDeCarga> casos;
    int bitolaFixa = 0;
    std::optional<std::string> dDigitado;
    // The single controls read after the 39, each with the value it takes, in the
    // order of the file.
    std::vector<std::pair<const Controle*, std::string>> valores;
};

// The records after the 39, or the first that is broken, told in `erro`.
Extras leExtras(const std::vector<std::string>& campos, const std::string& nome, std::string& erro)
{
    const Especiais& x = especiais();
    const std::string caso = x.casos.arquivo.registro;
    Extras extras;
    bool primeiroCaso = true;
    for (std::size_t i = kRegistros; i < campos.size() && erro.empty(); ++i) {
        const std::string& v = campos[i];
        if (v.empty())
            continue;
        auto p = partes(v);
        auto quebrado = [&](const std::string& porque) {
            erro = "Arquivo " + aspas(nome) + ", registro " + std::to_string(i + 1) + " " + aspas(v) + ": " + porque
                   + ". Nenhum valor foi carregado.";
        };
        if (p[0] == caso + "%" && p.size() >= 2) {
            if (auto decodificado = files::percentDecoded(p[1]); decodificado && files::isUtf8(*decodificado)) {
                p[0] = caso;
                p[1] = *decodificado;
            } else {
                quebrado("o nome do caso de carga tem um % que não é seguido de dois algarismos hexadecimais");
                continue;
            }
        }
        const auto k = std::find_if(depoisDos39().begin(), depoisDos39().end(),
                                    [&](const Controle* c) { return p[0] == c->arquivo.registro; });
        const Controle* c = k != depoisDos39().end() ? *k : nullptr;
        if (c == &x.casos) {
            if (primeiroCaso && p.size() == 2 && !p[1].empty()) {
                extras.nomeDoCaso1 = p[1];
            } else if (primeiroCaso) {
                quebrado("o primeiro caso de carga tem só o nome (Caso;NOME), suas forças são Nd e Md");
            } else if ((p.size() != 4 && p.size() != 7) || p[1].empty()) {
                quebrado("um caso de carga tem nome, Nd e Md (Caso;NOME;Nd;Md), e pela ABNT NBR 6118:2014 também "
                         "MdBase, MyTopo e MyBase");
            } else if (!IsNumber(p[2]) || !IsNumber(p[3])
                       || (p.size() == 7
                           && ((!p[4].empty() && !IsNumber(p[4])) || (!p[5].empty() && !IsNumber(p[5]))
                               || (!p[6].empty() && !IsNumber(p[6]))))) {
                quebrado("as forças de um caso de carga são números com ponto decimal");
            } else {
                p.resize(7);
                extras.casos.push_back({p[1], p[2], p[3], p[4], p[5], p[6]});
            }
            primeiroCaso = false;
        } else if (c == &x.norma) {
            if (p.size() != 2 || (p[1] != "2014" && p[1] != "2023"))
                quebrado("a norma se grava como Norma;2014 ou Norma;2023");
            else
                extras.valores.emplace_back(c, (*c->lista)[p[1] == "2014" ? 1 : 2]);
        } else if (c == &x.segundaOrdem) {
            if (p.size() != 2 || p[1] != (*c->lista)[1])
                quebrado("o método da segunda ordem se grava como SegundaOrdem;rigidez");
            else
                extras.valores.emplace_back(c, p[1]);
        } else if (c && c->tipo == Tipo::Caixa) {
            if (p.size() != 2 || !IsNumber(p[1]))
                quebrado(std::string(c->arquivo.registro) + " é um número com ponto decimal");
            else
                extras.valores.emplace_back(c, p[1]);
        } else if (c == &x.estriboDiametro) {
            // The list's first entry, empty, is no stirrup and has no record.
            if (p.size() != 2 || p[1].empty()
                || std::find(c->lista->begin(), c->lista->end(), p[1]) == c->lista->end())
                quebrado("o diâmetro do estribo digitado é um da lista, de \"5 mm\" a \"10 mm (3/8'')\"");
            else
                extras.valores.emplace_back(c, p[1]);
        } else if (c == &x.bitolaFixa) {
            const int b = p.size() == 2 ? engine::barIndexByLabel(p[1]) : 0;
            if (b < engine::kFirstLongitudinalBar)
                quebrado("a bitola fixada deve ser uma das barras longitudinais, de \"10 mm (3/8'')\" a \"40 mm\"");
            else
                extras.bitolaFixa = b;
        } else if (c == &x.dAutomatico) {
            if (p.size() != 2 || (p[1] != "1" && p[1] != "2"))
                quebrado("\"d' automático\" marcado se grava como d' automático;1 (ou 2)");
            else
                extras.valores.emplace_back(c, p[1]);
        } else if (p[0] == kDDigitado) {
            const auto d = p.size() == 2 ? files::percentDecoded(p[1]) : std::nullopt;
            if (!d || !files::isUtf8(*d))
                quebrado("o d' digitado se grava como d' digitado;VALOR, com % e dois algarismos hexadecimais");
            else
                extras.dDigitado = *d;
        } else if (c && c->tipo == Tipo::Texto) {
            const auto texto = p.size() == 2 ? files::percentDecoded(p[1]) : std::nullopt;
            const std::string registro = c->arquivo.registro;
            if (!texto || !files::isUtf8(*texto))
                quebrado(registro + " se grava como " + registro + ";TEXTO, com % e dois algarismos hexadecimais");
            else
                extras.valores.emplace_back(c, *texto);
        } else {
            quebrado("depois dos 39 registros vêm só casos de carga (Caso;...), a bitola fixada (Bitola fixa;...),"
                     " o d' (d' automático;... e d' digitado;...), os dados da obra (Obra;..., Cliente;..., "
                     "Pilar;..., Engenheiro;..., Revisão;...) e o que a ABNT NBR 6118:2014 acrescenta (Norma;2014...)");
        }
    }
    if (erro.empty() && !primeiroCaso && extras.casos.empty())
        erro = "Arquivo " + aspas(nome) + ": o nome do primeiro caso de carga sem outros casos depois dele."
               + " Nenhum valor foi carregado.";
    return extras;
}

// The first record whose value does not fit its control, or an empty text.
std::string validaCampos(const std::vector<std::string>& campos, const std::string& nome)
{
    if (campos.size() < kRegistros)
        return "O arquivo " + aspas(nome) + " tem " + std::to_string(campos.size())
               + " registros e um arquivo de valores tem " + std::to_string(kRegistros) + ": falta o registro "
               + std::to_string(campos.size() + 1) + " (" + registros()[campos.size()]->arquivo.rotulo
               + "). Nenhum valor foi carregado.";
    for (std::size_t i = 0; i < kRegistros; ++i) {
        const Controle& r = *registros()[i];
        const std::string& v = campos[i];
        std::string esperado;
        switch (r.tipo) {
        case Tipo::Opcao:
        case Tipo::Habilitado:
            if (v != "True" && v != "False")
                esperado = "deveria ser True ou False";
            break;
        case Tipo::Marca:
            if (v != "0" && v != "1" && v != "2")
                esperado = "deveria ser 0, 1 ou 2";
            break;
        case Tipo::Lista: {
            bool achou = false;
            for (const auto& item : *r.lista)
                achou = achou || item == v;
            if (!achou) {
                esperado = "não está na lista, que aceita";
                for (std::size_t k = 0; k < r.lista->size(); ++k)
                    esperado += (k == 0 ? " " : ", ") + aspas((*r.lista)[k]);
            }
            break;
        }
        default: // a box's text, as it stands
            break;
        }
        if (!esperado.empty())
            return "Arquivo " + aspas(nome) + ", registro " + std::to_string(i + 1) + " (" + r.arquivo.rotulo
                   + "): o valor " + aspas(v) + " " + esperado + ". Nenhum valor foi carregado.";
    }
    return {};
}

// The text of the file for the forms' records and the records after them; empty,
// with the box and the value in `erro`, when a value has no record that reads back.
std::string textoDoArquivo(const Forms& origem, const std::vector<std::string>& extras, const std::string& nome,
                           std::string& erro)
{
    std::string texto;
    for (const Controle* r : registros()) {
        const std::string valor = r->valor(origem);
        // A check box's number keeps the sign's place the reader drops.
        std::string porque;
        const auto registro = r->tipo == Tipo::Marca ? std::optional<std::string>(comLugarDoSinal(valor))
                                                     : files::recordText(valor, porque);
        if (!registro) {
            erro = "Não foi possível gravar o arquivo " + aspas(nome) + ": o valor " + aspas(valor) + " de "
                   + r->arquivo.rotulo + " " + porque + " e não seria lido de volta.";
            return {};
        }
        texto += *registro + "\r\n";
    }
    for (const auto& e : extras)
        texto += e + "\r\n";
    return texto;
}

// Writes the records of the forms, whole or not at all; false with the reason in
// `erro` when the file cannot be written or would not load back as it stands.
bool gravaRegistros(const Forms& origem, const std::vector<std::string>& extras, const std::string& nome,
                    std::string& erro)
{
    const std::string texto = textoDoArquivo(origem, extras, nome, erro);
    if (!erro.empty())
        return false;
    // What is written is read back first as a file is read: a project that would
    // not load, or would load other values, is not written at all.
    const auto campos = camposDelimitados(textoUtf8(texto));
    std::string lido = validaCampos(campos, nome);
    for (std::size_t i = 0; lido.empty() && i < kRegistros; ++i) {
        const std::string valor = registros()[i]->valor(origem);
        if (campos[i] != valor)
            lido = "o valor " + aspas(valor) + " de " + registros()[i]->arquivo.rotulo + " seria lido como "
                   + aspas(campos[i]);
    }
    if (lido.empty())
        leExtras(campos, nome, lido);
    if (!lido.empty()) {
        const std::string fim = " Nenhum valor foi carregado.";
        if (lido.size() >= fim.size() && lido.compare(lido.size() - fim.size(), fim.size(), fim) == 0)
            lido.erase(lido.size() - fim.size());
        erro = "Não foi possível gravar o arquivo " + aspas(nome) + ", que não seria lido de volta: " + lido;
        return false;
    }
    return files::writeFileWhole(nome, texto, erro);
}

void mostraErroDeArquivo(Program& p)
{
    p.metodo().MensagemErro = p.ErroArquivo;
    p.metodo().ItemNorma.clear();
    p.MostraErro();
}

} // namespace

void Program::Grava32()
{
    ErroArquivo.clear();
    std::vector<std::string> extras;
    Forms formulario = *this;
    if (dLinhaReescrita(*this))
        formulario.Form1.Text3.Text = DLinhaReescrito;
    if (!registrosExtras(*this, extras, ErroArquivo) || !gravaRegistros(formulario, extras, NomeArquivo, ErroArquivo))
        mostraErroDeArquivo(*this);
}

void Program::Carrega33()
{
    ErroArquivo.clear();
    std::vector<std::string> campos;
    Extras extras;
    if (leCampos(NomeArquivo, campos, ErroArquivo))
        ErroArquivo = validaCampos(campos, NomeArquivo);
    if (ErroArquivo.empty())
        extras = leExtras(campos, NomeArquivo, ErroArquivo);
    if (!ErroArquivo.empty()) {
        // Nothing is half-loaded: the window keeps every value it had.
        mostraErroDeArquivo(*this);
        return;
    }
    Zera31();
    for (std::size_t i = 0; i < kRegistros; ++i)
        registros()[i]->atribui(*this, campos[i]);
    NomeDoCaso1 = extras.nomeDoCaso1;
    OutrosCasos = extras.casos;
    BitolaFixa = extras.bitolaFixa;
    for (const Controle* c : depoisDos39())
        if (c->tipo != Tipo::Composto)
            c->atribui(*this, semRegistro(*c));
    for (const auto& [c, valor] : extras.valores)
        c->atribui(*this, valor);
    // The next calculation starts where the saved one did; saved again before it,
    // the file is the same.
    if (extras.dDigitado) {
        DLinhaReescrito = Form1.Text3.Text;
        DLinhaDigitado = extras.dDigitado;
        Form1.Text3.Text = *extras.dDigitado;
    }
}

void Program::Form_Load()
{
    NomeArquivo = kArquivoPadrao;
    std::error_code ec;
    if (!std::filesystem::exists(std::filesystem::path(NomeArquivo), ec)) {
        // The first start in a folder: the defaults of the window become the file.
        ErroArquivo.clear();
        const Forms padrao{};
        if (!gravaRegistros(padrao, {}, NomeArquivo, ErroArquivo)) {
            mostraErroDeArquivo(*this);
            return;
        }
    }
    Carrega33();
}

void Program::Command7_Click()
{
    NomeArquivo = kArquivoPadrao;
    Carrega33();
}

void Program::mnuItemCarregpadr_Click()
{
    NomeArquivo = kArquivoPadrao;
    Carrega33();
}

void Program::mnuItemSaveDefault_Click()
{
    NomeArquivo = kArquivoPadrao;
    Grava32();
}

void Program::mnuItemload_Click()
{
    NomeArquivo = dialogs().askOpenFileName();
    if (!NomeArquivo.empty())
        Carrega33();
    // Also after a cancelled dialog: the window's values are calculated as they stand.
    Programa0();
}

void Program::mnuItemSave_Click()
{
    NomeArquivo = dialogs().askSaveFileName();
    if (!NomeArquivo.empty())
        Grava32();
}

} // namespace pilarix
