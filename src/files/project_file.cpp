// Project files and the default-values file "Padrão.txt": the whole input of the
// main window and the four settings of "Outros valores", one record a line.

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

enum class Tipo {
    Texto,   // a box's text, as it stands
    Verdade, // "True" / "False": an enabled or selected state
    Caixa,   // a check box: 0, 1 or 2, written with a leading blank
    Lista,   // a list's text, which must be one of its entries
};

// The two hooks are found by caption, not by their place in the option array, so
// that a file says the same thing whatever the order of the array.
constexpr const char* kGancho90 = "&90";
constexpr const char* kGancho45 = "&45     ou semi-circ.";

OptionButton& gancho(Form1Model& f, const char* caption)
{
    for (auto& o : f.Option7)
        if (o.Caption == caption)
            return o;
    return std::string(caption) == kGancho90 ? f.Option7[1] : f.Option7[0];
}
const OptionButton& gancho(const Form1Model& f, const char* caption)
{
    return gancho(const_cast<Form1Model&>(f), caption);
}

std::string verdade(bool b) { return b ? "True" : "False"; }
bool deVerdade(const std::string& s) { return s == "True"; }
// A number printed to a file reserves its first place for the sign.
std::string caixa(int v)
{
    std::string texto = std::to_string(v);
    if (v >= 0)
        texto.insert(texto.begin(), ' ');
    return texto;
}

// An option button set to True clears the rest of its group, as clicking it does.
template <typename... Outros>
void opcao(const std::string& s, OptionButton& o, Outros&... outros)
{
    if (deVerdade(s))
        selectOption(o, outros...);
    else
        o.Value = false;
}

void opcaoGancho(Forms& p, const std::string& s, const char* caption)
{
    OptionButton& o = gancho(p.Form1, caption);
    if (!deVerdade(s)) {
        o.Value = false;
        return;
    }
    for (auto& outro : p.Form1.Option7)
        outro.Value = false;
    o.Value = true;
}

struct Registro {
    const char* controle; // how the message names it
    Tipo tipo;
    const std::vector<std::string>* lista;
    std::string (*valor)(const Forms&);
    void (*atribui)(Forms&, const std::string&);
};

// The records in the order of the file.
const std::array<Registro, kRegistros>& registros()
{
    using L = const std::vector<std::string>*;
    static const std::array<Registro, kRegistros> tabela{{
        {"Text23, comprimento", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text23.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text23.Text = s; }},
        {"Text1, base", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text1.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text1.Text = s; }},
        {"Text2, altura", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text2.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text2.Text = s; }},
        {"Text31, passo da base", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text31.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text31.Text = s; }},
        {"Text32, passo da altura", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text32.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text32.Text = s; }},
        {"Text4, barras nas faces da base", Tipo::Texto, nullptr,
         [](const Forms& p) { return p.Form1.Text4.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text4.Text = s; }},
        {"Text5, barras nas faces da altura", Tipo::Texto, nullptr,
         [](const Forms& p) { return p.Form1.Text5.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text5.Text = s; }},
        {"Text3, d'", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text3.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text3.Text = s; }},
        {"Text3 habilitado", Tipo::Verdade, nullptr, [](const Forms& p) { return verdade(p.Form1.Text3.Enabled); },
         [](Forms& p, const std::string& s) { p.Form1.Text3.Enabled = deVerdade(s); }},
        {"Command17 (estimrar d') habilitado", Tipo::Verdade, nullptr,
         [](const Forms& p) { return verdade(p.Form1.Command17.Enabled); },
         [](Forms& p, const std::string& s) { p.Form1.Command17.Enabled = deVerdade(s); }},
        {"Check1, corrigir o cobrimento sem perguntar", Tipo::Caixa, nullptr,
         [](const Forms& p) { return caixa(p.Form1.Check1.Value); },
         [](Forms& p, const std::string& s) { p.Form1.Check1.Value = s[0] - '0'; }},
        {"Text16, Nd", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text16.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text16.Text = s; }},
        {"Text17, Md", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text17.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text17.Text = s; }},
        {"Text18, Fck", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text18.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text18.Text = s; }},
        {"Text20, Es", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text20.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text20.Text = s; }},
        {"Text21, coeficiente do concreto", Tipo::Texto, nullptr,
         [](const Forms& p) { return p.Form1.Text21.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text21.Text = s; }},
        {"Text22, coeficiente do aço", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text22.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text22.Text = s; }},
        {"Combo4, unidade de Nd", Tipo::Lista, L{&lists::forca}, [](const Forms& p) { return p.Form1.Combo4.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Combo4.Text = s; }},
        {"Combo5, unidade de Md", Tipo::Lista, L{&lists::momento},
         [](const Forms& p) { return p.Form1.Combo5.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Combo5.Text = s; }},
        {"Combo6, unidade de Fck", Tipo::Lista, L{&lists::tensao},
         [](const Forms& p) { return p.Form1.Combo6.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Combo6.Text = s; }},
        {"Combo1, aço", Tipo::Lista, L{&lists::aco}, [](const Forms& p) { return p.Form1.Combo1.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Combo1.Text = s; }},
        {"Combo7, unidade de Es", Tipo::Lista, L{&lists::tensao},
         [](const Forms& p) { return p.Form1.Combo7.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Combo7.Text = s; }},
        {"Option3, estribo pré-definido", Tipo::Verdade, nullptr,
         [](const Forms& p) { return verdade(p.Form1.Option3.Value); },
         [](Forms& p, const std::string& s) { opcao(s, p.Form1.Option3, p.Form1.Option5, p.Form1.Option6); }},
        {"Check5, mesmo tipo de aço", Tipo::Caixa, nullptr,
         [](const Forms& p) { return caixa(p.Form1.Check5.Value); },
         [](Forms& p, const std::string& s) { p.Form1.Check5.Value = s[0] - '0'; }},
        {"Option5, estribo mais econômico", Tipo::Verdade, nullptr,
         [](const Forms& p) { return verdade(p.Form1.Option5.Value); },
         [](Forms& p, const std::string& s) { opcao(s, p.Form1.Option5, p.Form1.Option3, p.Form1.Option6); }},
        {"Option6, estribo definido manualmente", Tipo::Verdade, nullptr,
         [](const Forms& p) { return verdade(p.Form1.Option6.Value); },
         [](Forms& p, const std::string& s) { opcao(s, p.Form1.Option6, p.Form1.Option3, p.Form1.Option5); }},
        {"Combo3, estribo pré-definido", Tipo::Lista, L{&lists::estribo},
         [](const Forms& p) { return p.Form1.Combo3.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Combo3.Text = s; }},
        {"Option7, gancho &90", Tipo::Verdade, nullptr,
         [](const Forms& p) { return verdade(gancho(p.Form1, kGancho90).Value); },
         [](Forms& p, const std::string& s) { opcaoGancho(p, s, kGancho90); }},
        {"Option7, gancho &45 ou semi-circ.", Tipo::Verdade, nullptr,
         [](const Forms& p) { return verdade(gancho(p.Form1, kGancho45).Value); },
         [](Forms& p, const std::string& s) { opcaoGancho(p, s, kGancho45); }},
        {"Combo2, classe de agressividade", Tipo::Lista, L{&lists::agressividade},
         [](const Forms& p) { return p.Form1.Combo2.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Combo2.Text = s; }},
        {"Option1, dc = 10mm", Tipo::Verdade, nullptr, [](const Forms& p) { return verdade(p.Form1.Option1.Value); },
         [](Forms& p, const std::string& s) { opcao(s, p.Form1.Option1, p.Form1.Option2); }},
        {"Option2, dc = 5mm", Tipo::Verdade, nullptr, [](const Forms& p) { return verdade(p.Form1.Option2.Value); },
         [](Forms& p, const std::string& s) { opcao(s, p.Form1.Option2, p.Form1.Option1); }},
        {"Outros valores: diâmetro máximo do agregado", Tipo::Texto, nullptr,
         [](const Forms& p) { return p.Form8.Text2.Text; },
         [](Forms& p, const std::string& s) { p.Form8.Text2.Text = s; }},
        {"Outros valores: precisão", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form8.Text1.Text; },
         [](Forms& p, const std::string& s) { p.Form8.Text1.Text = s; }},
        {"Text6, escala", Tipo::Texto, nullptr, [](const Forms& p) { return p.Form1.Text6.Text; },
         [](Forms& p, const std::string& s) { p.Form1.Text6.Text = s; }},
        {"Text6 habilitado", Tipo::Verdade, nullptr, [](const Forms& p) { return verdade(p.Form1.Text6.Enabled); },
         [](Forms& p, const std::string& s) { p.Form1.Text6.Enabled = deVerdade(s); }},
        {"Check2, bitola automática", Tipo::Caixa, nullptr,
         [](const Forms& p) { return caixa(p.Form1.Check2.Value); },
         [](Forms& p, const std::string& s) { p.Form1.Check2.Value = s[0] - '0'; }},
        {"Outros valores: diâmetro máximo dos estribos", Tipo::Lista, L{&lists::estribo},
         [](const Forms& p) { return p.Form8.Combo1.Text; },
         [](Forms& p, const std::string& s) { p.Form8.Combo1.Text = s; }},
        {"Outros valores: diâmetro máximo das barras longitudinais", Tipo::Lista, L{&lists::longitudinal},
         [](const Forms& p) { return p.Form8.Combo3.Text; },
         [](Forms& p, const std::string& s) { p.Form8.Combo3.Text = s; }},
    }};
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

constexpr const char* kCaso = "Caso";
constexpr const char* kCasoCodificado = "Caso%";
constexpr const char* kBitolaFixa = "Bitola fixa";
constexpr const char* kDAutomatico = "d' automático";
constexpr const char* kDDigitado = "d' digitado";
constexpr const char* kNorma = "Norma";
constexpr const char* kSegundaOrdem = "SegundaOrdem";
constexpr const char* kEstriboDiametro = "EstriboDiametro";
// The boxes 2014 adds and the typed stirrup's spacing, in the order they are written.
const std::vector<std::pair<const char*, TextBox Form1Model::*>>& caixasOpcionais()
{
    static const std::vector<std::pair<const char*, TextBox Form1Model::*>> t{
        {"MdBase", &Form1Model::MdBase}, {"MyTopo", &Form1Model::MyTopo}, {"MyBase", &Form1Model::MyBase},
        {"LeH", &Form1Model::LeH},       {"LeB", &Form1Model::LeB},
        {"EstriboEspacamento", &Form1Model::EstriboEspacamento}};
    return t;
}

// The heading of the report, in the order of the file.
struct CampoDaObra {
    const char* registro;
    std::string DadosDaObra::*campo;
};
constexpr std::array<CampoDaObra, 5> kCamposDaObra{{{"Obra", &DadosDaObra::obra},
                                                    {"Cliente", &DadosDaObra::cliente},
                                                    {"Pilar", &DadosDaObra::pilar},
                                                    {"Engenheiro", &DadosDaObra::engenheiro},
                                                    {"Revisão", &DadosDaObra::revisao}}};

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
    if (files::needsPercent(nome))
        return std::string(kCasoCodificado) + ";" + files::percentEncoded(nome) + resto;
    return std::string(kCaso) + ";" + nome + resto;
}

// The records after the 39; false, naming the case and the value, for a case that
// no file can give back.
bool registrosExtras(const Program& p, std::vector<std::string>& e, std::string& erro)
{
    if (!p.OutrosCasos.empty()) {
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
                    return recusa(std::string(v == &c.nd ? "Nd" : "Md") + " do caso " + aspas(c.nome) + " é "
                                  + aspas(*v) + ", que não é um número com ponto decimal");
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
    }
    if (p.BitolaFixa != 0)
        e.push_back(std::string(kBitolaFixa) + ";" + std::string(engine::bar(p.BitolaFixa).label));
    if (p.Form1.Check3.Value != 0)
        e.push_back(std::string(kDAutomatico) + ";" + std::to_string(p.Form1.Check3.Value));
    if (dLinhaReescrita(p))
        e.push_back(std::string(kDDigitado) + ";" + files::percentEncoded(*p.DLinhaDigitado));
    if (p.norma2014())
        e.push_back(std::string(kNorma) + (p.norma2023() ? ";2023" : ";2014"));
    for (const auto& [nome, caixa] : caixasOpcionais()) {
        const std::string& v = (p.Form1.*caixa).Text;
        if (v.empty())
            continue;
        if (!IsNumber(v)) {
            erro = "Não foi possível gravar o arquivo " + aspas(p.NomeArquivo) + ": " + nome + " é " + aspas(v)
                   + ", que não é um número com ponto decimal.";
            return false;
        }
        e.push_back(std::string(nome) + ";" + v);
    }
    if (!p.Form1.EstriboDiametro.Text.empty())
        e.push_back(std::string(kEstriboDiametro) + ";" + p.Form1.EstriboDiametro.Text);
    if (p.Form1.SegundaOrdem.Text == "rigidez")
        e.push_back(std::string(kSegundaOrdem) + ";rigidez");
    for (const auto& [registro, campo] : kCamposDaObra) {
        const std::string& texto = p.Obra.*campo;
        if (texto.empty())
            continue;
        if (!files::isUtf8(texto)) {
            erro = "Não foi possível gravar o arquivo " + aspas(p.NomeArquivo) + ": " + registro
                   + " (dados da obra) não é texto UTF-8.";
            return false;
        }
        e.push_back(std::string(registro) + ";" + files::percentEncoded(texto));
    }
    return true;
}

struct Extras {
    std::string nomeDoCaso1 = "1";
    std::vector<CasoDeCarga> casos;
    int bitolaFixa = 0;
    int dAutomatico = 0;
    std::optional<std::string> dDigitado;
    int norma = 0; // the entry of the list: 0 the 2001 project, 1 2014, 2 2023
    bool rigidez = false;
    std::string estriboDiametro;
    std::vector<std::pair<TextBox Form1Model::*, std::string>> caixasOpcionais;
    DadosDaObra obra;
};

// The records after the 39, or the first that is broken, told in `erro`.
Extras leExtras(const std::vector<std::string>& campos, const std::string& nome, std::string& erro)
{
    Extras x;
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
        if (p[0] == kCasoCodificado && p.size() >= 2) {
            if (auto decodificado = files::percentDecoded(p[1]); decodificado && files::isUtf8(*decodificado)) {
                p[0] = kCaso;
                p[1] = *decodificado;
            } else {
                quebrado("o nome do caso de carga tem um % que não é seguido de dois algarismos hexadecimais");
                continue;
            }
        }
        if (p[0] == kCaso) {
            if (primeiroCaso && p.size() == 2 && !p[1].empty()) {
                x.nomeDoCaso1 = p[1];
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
                x.casos.push_back({p[1], p[2], p[3], p[4], p[5], p[6]});
            }
            primeiroCaso = false;
        } else if (p[0] == kNorma) {
            if (p.size() != 2 || (p[1] != "2014" && p[1] != "2023"))
                quebrado("a norma se grava como Norma;2014 ou Norma;2023");
            else
                x.norma = p[1] == "2014" ? 1 : 2;
        } else if (p[0] == kSegundaOrdem) {
            if (p.size() != 2 || p[1] != "rigidez")
                quebrado("o método da segunda ordem se grava como SegundaOrdem;rigidez");
            else
                x.rigidez = true;
        } else if (const auto k = std::find_if(caixasOpcionais().begin(), caixasOpcionais().end(),
                                               [&](const auto& c) { return p[0] == c.first; });
                   k != caixasOpcionais().end()) {
            if (p.size() != 2 || !IsNumber(p[1]))
                quebrado(std::string(k->first) + " é um número com ponto decimal");
            else
                x.caixasOpcionais.emplace_back(k->second, p[1]);
        } else if (p[0] == kEstriboDiametro) {
            if (p.size() != 2 || std::find(lists::estribo.begin(), lists::estribo.end(), p[1]) == lists::estribo.end())
                quebrado("o diâmetro do estribo digitado é um da lista, de \"5 mm\" a \"10 mm (3/8'')\"");
            else
                x.estriboDiametro = p[1];
        } else if (p[0] == kBitolaFixa) {
            const int k = p.size() == 2 ? engine::barIndexByLabel(p[1]) : 0;
            if (k < engine::kFirstLongitudinalBar)
                quebrado("a bitola fixada deve ser uma das barras longitudinais, de \"10 mm (3/8'')\" a \"40 mm\"");
            else
                x.bitolaFixa = k;
        } else if (p[0] == kDAutomatico) {
            if (p.size() != 2 || (p[1] != "1" && p[1] != "2"))
                quebrado("\"d' automático\" marcado se grava como d' automático;1 (ou 2)");
            else
                x.dAutomatico = p[1][0] - '0';
        } else if (p[0] == kDDigitado) {
            const auto d = p.size() == 2 ? files::percentDecoded(p[1]) : std::nullopt;
            if (!d || !files::isUtf8(*d))
                quebrado("o d' digitado se grava como d' digitado;VALOR, com % e dois algarismos hexadecimais");
            else
                x.dDigitado = *d;
        } else if (const auto campo = std::find_if(kCamposDaObra.begin(), kCamposDaObra.end(),
                                                   [&](const CampoDaObra& c) { return p[0] == c.registro; });
                   campo != kCamposDaObra.end()) {
            const auto texto = p.size() == 2 ? files::percentDecoded(p[1]) : std::nullopt;
            if (!texto || !files::isUtf8(*texto))
                quebrado(std::string(campo->registro) + " se grava como " + campo->registro
                         + ";TEXTO, com % e dois algarismos hexadecimais");
            else
                x.obra.*(campo->campo) = *texto;
        } else {
            quebrado("depois dos 39 registros vêm só casos de carga (Caso;...), a bitola fixada (Bitola fixa;...),"
                     " o d' (d' automático;... e d' digitado;...), os dados da obra (Obra;..., Cliente;..., "
                     "Pilar;..., Engenheiro;..., Revisão;...) e o que a ABNT NBR 6118:2014 acrescenta (Norma;2014...)");
        }
    }
    if (erro.empty() && !primeiroCaso && x.casos.empty())
        erro = "Arquivo " + aspas(nome) + ": o nome do primeiro caso de carga sem outros casos depois dele."
               + " Nenhum valor foi carregado.";
    return x;
}

// The first record whose value does not fit its control, or an empty text.
std::string validaCampos(const std::vector<std::string>& campos, const std::string& nome)
{
    if (campos.size() < kRegistros)
        return "O arquivo " + aspas(nome) + " tem " + std::to_string(campos.size())
               + " registros e um arquivo de valores tem " + std::to_string(kRegistros) + ": falta o registro "
               + std::to_string(campos.size() + 1) + " (" + registros()[campos.size()].controle
               + "). Nenhum valor foi carregado.";
    for (std::size_t i = 0; i < kRegistros; ++i) {
        const Registro& r = registros()[i];
        const std::string& v = campos[i];
        std::string esperado;
        switch (r.tipo) {
        case Tipo::Texto:
            break;
        case Tipo::Verdade:
            if (v != "True" && v != "False")
                esperado = "deveria ser True ou False";
            break;
        case Tipo::Caixa:
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
        }
        if (!esperado.empty())
            return "Arquivo " + aspas(nome) + ", registro " + std::to_string(i + 1) + " (" + r.controle
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
    for (const auto& r : registros()) {
        const std::string valor = r.valor(origem);
        // A check box's number keeps the sign's place the reader drops.
        std::string porque;
        const auto registro = r.tipo == Tipo::Caixa ? std::optional<std::string>(valor)
                                                    : files::recordText(valor, porque);
        if (!registro) {
            erro = "Não foi possível gravar o arquivo " + aspas(nome) + ": o valor " + aspas(valor) + " de "
                   + r.controle + " " + porque + " e não seria lido de volta.";
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
        std::string valor = registros()[i].valor(origem);
        if (registros()[i].tipo == Tipo::Caixa && !valor.empty() && valor.front() == ' ')
            valor.erase(0, 1); // the sign's place
        if (campos[i] != valor)
            lido = "o valor " + aspas(valor) + " de " + registros()[i].controle + " seria lido como "
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
        registros()[i].atribui(*this, campos[i]);
    NomeDoCaso1 = extras.nomeDoCaso1;
    OutrosCasos = extras.casos;
    BitolaFixa = extras.bitolaFixa;
    Form1.Check3.Value = extras.dAutomatico;
    // A file without them is a project of the 2001 rules.
    Form1.Norma.Text = lists::norma[static_cast<std::size_t>(extras.norma)];
    Form1.SegundaOrdem.Text = extras.rigidez ? "rigidez" : "curvatura";
    Form1.EstriboDiametro.Text = extras.estriboDiametro;
    for (const auto& [nome, caixa] : caixasOpcionais())
        (Form1.*caixa).Text.clear();
    for (const auto& [caixa, valor] : extras.caixasOpcionais)
        (Form1.*caixa).Text = valor;
    Obra = extras.obra;
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
