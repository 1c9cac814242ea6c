#include "window/window_input.h"

#include "base/calc_error.h"
#include "base/number_text.h"
#include "app/units.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <cstdlib>
#include <functional>

namespace pilarix {

namespace {

constexpr unsigned P = 1, R = 2, B = 4; // Projeto, Resultado, Busca

unsigned bit(Alcance a) { return a == Alcance::Projeto ? P : a == Alcance::Resultado ? R : B; }

struct Entrada {
    std::string nome;
    unsigned alcances;
    std::function<std::string(const Program&)> le;
    std::function<void(Program&, const std::string&)> poe;
};

template <typename Campo>
Entrada campo(const char* nome, unsigned alcances, Campo campo)
{
    return {nome, alcances, [campo](const Program& p) { return campo(const_cast<Program&>(p)); },
            [campo](Program& p, const std::string& v) { campo(p) = v; }};
}

std::string marca(int v) { return std::to_string(v); }

Entrada caixaDeMarcar(const char* nome, unsigned alcances, CheckBox Form1Model::*c)
{
    return {nome, alcances, [c](const Program& p) { return marca((p.Form1.*c).Value); },
            [c](Program& p, const std::string& v) {
                (p.Form1.*c).Value = v == "1" ? 1 : v == "2" ? 2 : 0;
                // With d' found from the cover, the d' box and its estimate are out of use.
                if (c == &Form1Model::Check3) {
                    p.Form1.Text3.Enabled = !p.Form1.Check3.ticked();
                    p.Form1.Command17.Enabled = !p.Form1.Check3.ticked();
                }
            }};
}

// A group of options as the name of the one selected ("" when none is).
Entrada grupo(std::vector<std::pair<std::string, OptionButton Form1Model::*>> opcoes, unsigned alcances)
{
    std::string nome;
    for (const auto& [n, o] : opcoes)
        nome += (nome.empty() ? "" : "|") + n;
    return {nome, alcances,
            [opcoes](const Program& p) {
                for (const auto& [n, o] : opcoes)
                    if ((p.Form1.*o).Value)
                        return n;
                return std::string();
            },
            [opcoes](Program& p, const std::string& v) {
                for (const auto& [n, o] : opcoes)
                    (p.Form1.*o).Value = n == v;
            }};
}

std::string casos(const Program& p)
{
    std::string s = p.NomeDoCaso1;
    for (const auto& c : p.OutrosCasos) {
        s += "\n" + c.nome + ";" + c.nd + ";" + c.md;
        if (!c.mdBase.empty() || !c.myTopo.empty() || !c.myBase.empty())
            s += ";" + c.mdBase + ";" + c.myTopo + ";" + c.myBase;
    }
    return s;
}

void poeCasos(Program& p, const std::string& s)
{
    std::vector<std::string> linhas;
    std::size_t inicio = 0;
    for (;;) {
        const auto fim = s.find('\n', inicio);
        linhas.push_back(s.substr(inicio, fim - inicio));
        if (fim == std::string::npos)
            break;
        inicio = fim + 1;
    }
    p.NomeDoCaso1 = linhas.front();
    p.OutrosCasos.clear();
    for (std::size_t i = 1; i < linhas.size(); ++i) {
        std::vector<std::string> campos;
        for (std::size_t inicio = 0;;) {
            const auto fim = linhas[i].find(';', inicio);
            campos.push_back(linhas[i].substr(inicio, fim - inicio));
            if (fim == std::string::npos)
                break;
            inicio = fim + 1;
        }
        campos.resize(6);
        p.OutrosCasos.push_back({campos[0], campos[1], campos[2], campos[3], campos[4], campos[5]});
    }
}

const std::vector<Entrada>& entradas()
{
    using F = Form1Model;
    static const std::vector<Entrada> tabela = [] {
        std::vector<Entrada> t;
        auto texto = [&t](const char* nome, unsigned alcances, TextBox F::*c) {
            t.push_back(campo(nome, alcances, [c](Program& p) -> std::string& { return (p.Form1.*c).Text; }));
        };
        auto lista = [&t](const char* nome, unsigned alcances, ComboBox F::*c) {
            t.push_back(campo(nome, alcances, [c](Program& p) -> std::string& { return (p.Form1.*c).Text; }));
        };
        // "Dimensões"
        texto("Text1", P | R | B, &F::Text1);
        texto("Text2", P | R | B, &F::Text2);
        texto("Text23", P | R | B, &F::Text23);
        texto("Text31", P, &F::Text31);
        texto("Text32", P, &F::Text32);
        // "Arranjo"
        texto("Text4", P | R, &F::Text4);
        texto("Text5", P | R, &F::Text5);
        texto("Text3", P | R, &F::Text3);
        t.push_back(caixaDeMarcar("Check3", P | R, &F::Check3));
        // "Esforços e Resistências"
        texto("Text16", P | R | B, &F::Text16);
        lista("Combo4", P | R | B, &F::Combo4);
        texto("Text17", P | R | B, &F::Text17);
        lista("Combo5", P | R | B, &F::Combo5);
        texto("Text18", P | R | B, &F::Text18);
        lista("Combo6", P | R | B, &F::Combo6);
        texto("Text20", P | R | B, &F::Text20);
        lista("Combo7", P | R | B, &F::Combo7);
        texto("Text21", P | R | B, &F::Text21);
        texto("Text22", P | R | B, &F::Text22);
        lista("Combo1", P | R | B, &F::Combo1);
        // "Cobrimento"
        t.push_back(grupo({{"Option1", &F::Option1}, {"Option2", &F::Option2}}, P | R | B));
        lista("Combo2", P | R | B, &F::Combo2);
        t.push_back(caixaDeMarcar("Check1", P | R, &F::Check1));
        // "Bitola (mm)"
        t.push_back(caixaDeMarcar("Check2", P | R | B, &F::Check2));
        t.push_back({"Bitola fixa", P | R | B, [](const Program& p) { return std::to_string(p.BitolaFixa); },
                     [](Program& p, const std::string& v) { p.BitolaFixa = std::atoi(v.c_str()); }});
        // "Estribos" and "Ganchos"
        t.push_back(grupo({{"Option3", &F::Option3}, {"Option5", &F::Option5}, {"Option6", &F::Option6}}, P | R));
        lista("Combo3", P | R, &F::Combo3);
        lista("EstriboDiametro", P | R, &F::EstriboDiametro);
        texto("EstriboEspacamento", P | R, &F::EstriboEspacamento);
        t.push_back(caixaDeMarcar("Check5", P | R | B, &F::Check5));
        // The hooks are elements of an array: their group reads them by index.
        t.push_back({"Option7(0)|Option7(1)", P | R,
                     [](const Program& p) {
                         return std::string(p.Form1.Option7[0].Value   ? "Option7(0)"
                                            : p.Form1.Option7[1].Value ? "Option7(1)"
                                                                       : "");
                     },
                     [](Program& p, const std::string& v) {
                         p.Form1.Option7[0].Value = v == "Option7(0)";
                         p.Form1.Option7[1].Value = v == "Option7(1)";
                     }});
        texto("Text6", P, &F::Text6);
        // ABNT NBR 6118:2014
        lista("Norma", P | R | B, &F::Norma);
        lista("SegundaOrdem", P | R | B, &F::SegundaOrdem);
        texto("MdBase", P | R | B, &F::MdBase);
        texto("MyTopo", P | R | B, &F::MyTopo);
        texto("MyBase", P | R | B, &F::MyBase);
        texto("LeH", P | R | B, &F::LeH);
        texto("LeB", P | R | B, &F::LeB);
        // "Outros valores"
        t.push_back(campo("Form8.Combo1", P | R | B, [](Program& p) -> std::string& { return p.Form8.Combo1.Text; }));
        t.push_back(campo("Form8.Combo3", P | R | B, [](Program& p) -> std::string& { return p.Form8.Combo3.Text; }));
        t.push_back(campo("Form8.Text2", P | R | B, [](Program& p) -> std::string& { return p.Form8.Text2.Text; }));
        t.push_back(campo("Form8.Text1", P | R | B, [](Program& p) -> std::string& { return p.Form8.Text1.Text; }));
        // Every load case is calculated and verified, and the search keeps only the
        // arrangements that carry them all.
        t.push_back({"Casos", P | R | B, casos, poeCasos});
        // The work, the client, the column's name, the engineer and the revision: the project's, not the result's.
        t.push_back(campo("Obra", P, [](Program& p) -> std::string& { return p.Obra.obra; }));
        t.push_back(campo("Cliente", P, [](Program& p) -> std::string& { return p.Obra.cliente; }));
        t.push_back(campo("Pilar", P, [](Program& p) -> std::string& { return p.Obra.pilar; }));
        t.push_back(campo("Engenheiro", P, [](Program& p) -> std::string& { return p.Obra.engenheiro; }));
        t.push_back(campo("Revisao", P, [](Program& p) -> std::string& { return p.Obra.revisao; }));
        return t;
    }();
    return tabela;
}

// The value of a box in the program's reading, none where it is no number or one
// too large for the program.
std::optional<double> valor(const std::string& texto)
{
    if (!numeroCompleto(texto))
        return std::nullopt;
    try {
        return Val(texto);
    } catch (const CalcError&) {
        return std::nullopt;
    }
}

bool vazia(const std::string& texto)
{
    for (const char c : texto)
        if (!std::isspace(static_cast<unsigned char>(c)))
            return false;
    return true;
}

std::string aspas(const std::string& s) { return "\"" + s + "\""; }

// The ranges an engineer would accept for a column, in the program's units (cm,
// kgf, kgf·cm, kgf/cm²), checked on the value as the unit of its list makes it.
// Outside them the method still runs, and answers with numbers that mean nothing
// (a negative γc gives a negative βx, a negative length a negative weight).
struct Faixa {
    const TextBox* caixa;
    const char* nome;
    const char* unidade; // the list of the box's unit, none for a fixed one
    double minimo, maximo;
    bool minimoIncluso;
    const char* faixa;   // the range as the engineer reads it
};

std::optional<std::string> foraDaFaixa(const Program& p)
{
    const auto& f = p.Form1;
    auto fator = [](const std::string& unidade) { return unitFactor(unidade).value_or(1); };
    const Faixa faixas[] = {
        {&f.Text1, "Base (cm)", nullptr, 0, 2000, false, "maior que 0 e no máximo 2000 cm"},
        {&f.Text2, "Altura (cm)", nullptr, 0, 2000, false, "maior que 0 e no máximo 2000 cm"},
        {&f.Text23, "Comprimento (cm)", nullptr, 0, 10000, false, "maior que 0 e no máximo 10000 cm"},
        {&f.Text4, "Barras nas faces da base", nullptr, 2, 500, true, "um número inteiro de 2 a 500"},
        {&f.Text5, "Barras nas faces da altura", nullptr, 2, 500, true, "um número inteiro de 2 a 500"},
        {&f.Text16, "Nd", f.Combo4.Text.c_str(), -1e8, 1e8, true, "de -1000000 kN a 1000000 kN"},
        {&f.Text17, "Md", f.Combo5.Text.c_str(), -1e10, 1e10, true, "de -1000000 kN.m a 1000000 kN.m"},
        {&f.Text20, "Es", f.Combo7.Text.c_str(), 1e6, 3e6, true, "de 100000 MPa a 300000 MPa"},
        {&f.Text21, "γc (coef. do concreto)", nullptr, 1, 3, true, "de 1 a 3"},
        {&f.Text22, "γs (coef. do aço)", nullptr, 1, 3, true, "de 1 a 3"},
    };
    for (const auto& x : faixas) {
        const double v = *valor(x.caixa->Text) * (x.unidade ? fator(x.unidade) : 1);
        const bool inteiro = x.caixa == &f.Text4 || x.caixa == &f.Text5;
        const bool abaixo = x.minimoIncluso ? v < x.minimo : v <= x.minimo;
        if (abaixo || v > x.maximo || (inteiro && v != std::floor(v)))
            return "A caixa " + aspas(x.nome) + " tem " + x.caixa->Text + (x.unidade ? " " + std::string(x.unidade) : "")
                   + ", fora do que o programa aceita: " + x.faixa + ".";
    }
    // d' lies between a face and the middle of the section, in both directions.
    if (!f.Check3.ticked() && !vazia(f.Text3.Text)) {
        const double d = *valor(f.Text3.Text);
        const double menor = std::min(std::max(*valor(f.Text1.Text), 12.0), std::max(*valor(f.Text2.Text), 12.0));
        if (!(d > 0 && d < menor / 2))
            return "A caixa \"d' (cm)\" tem " + f.Text3.Text
                   + ", fora do que o programa aceita: maior que 0 e menor que metade do menor lado da seção ("
                   + Str(menor / 2) + " cm); deixe-a vazia para que o cobrimento a defina.";
    }
    // What ABNT NBR 6118:2014 adds: empty, or numbers within the same bounds.
    const struct {
        const TextBox* caixa;
        const char* nome;
        bool comprimento;
    } extras[] = {{&f.MdBase, "Md na base", false}, {&f.MyTopo, "My no topo", false}, {&f.MyBase, "My na base", false},
                  {&f.LeH, "ℓe na direção de h (cm)", true}, {&f.LeB, "ℓe na direção de b (cm)", true}};
    for (const auto& x : extras) {
        if (vazia(x.caixa->Text))
            continue;
        const auto v = valor(x.caixa->Text);
        if (!v)
            return "A caixa " + aspas(x.nome) + " tem " + aspas(x.caixa->Text) + ", que não é um número: digite "
                   + (x.comprimento ? "o comprimento efetivo em cm, ou deixe-a vazia para o comprimento do pilar"
                                    : "o momento na unidade de Md, ou deixe-a vazia")
                   + ".";
        const bool fora = x.comprimento ? !(*v > 0 && *v <= 10000) : std::fabs(*v * fator(f.Combo5.Text)) > 1e10;
        if (fora)
            return "A caixa " + aspas(x.nome) + " tem " + x.caixa->Text + ", fora do que o programa aceita: "
                   + (x.comprimento ? "maior que 0 e no máximo 10000 cm" : "de -1000000 kN.m a 1000000 kN.m") + ".";
    }
    // Every load case beyond the first, in the units of the main window's lists.
    for (const auto& c : p.OutrosCasos) {
        const auto nd = valor(c.nd);
        const auto md = valor(c.md);
        if (!nd || !md)
            return "O caso " + aspas(c.nome) + " tem " + aspas(!nd ? c.nd : c.md)
                   + ", que não é um número: digite as forças do caso nas unidades da janela.";
        if (std::fabs(*nd * fator(f.Combo4.Text)) > 1e8 || std::fabs(*md * fator(f.Combo5.Text)) > 1e10)
            return "O caso " + aspas(c.nome) + " tem forças fora do que o programa aceita: |Nd| até 1000000 kN e |Md| "
                   "até 1000000 kN.m.";
    }
    return std::nullopt;
}

} // namespace

std::vector<std::pair<std::string, std::string>> valoresDaEntrada(const Program& p, Alcance alcance)
{
    std::vector<std::pair<std::string, std::string>> v;
    for (const auto& e : entradas())
        if (e.alcances & bit(alcance))
            v.emplace_back(e.nome, e.le(p));
    return v;
}

std::string fotoDaEntrada(const Program& p, Alcance alcance)
{
    std::string foto;
    for (const auto& [nome, valor] : valoresDaEntrada(p, alcance))
        foto += nome + '=' + valor + '\x1f';
    return foto;
}

bool restauraEntrada(Program& p, const std::string& nome, const std::string& valor)
{
    for (const auto& e : entradas())
        if (e.nome == nome) {
            e.poe(p, valor);
            return true;
        }
    return false;
}

bool numeroCompleto(const std::string& texto)
{
    std::size_t i = 0;
    const std::size_t n = texto.size();
    auto digito = [&](std::size_t k) { return k < n && std::isdigit(static_cast<unsigned char>(texto[k])); };
    auto branco = [&](std::size_t k) { return k < n && (texto[k] == ' ' || texto[k] == '\t'); };
    while (branco(i))
        ++i;
    if (i < n && (texto[i] == '-' || texto[i] == '+'))
        ++i;
    bool digitos = false;
    while (digito(i))
        ++i, digitos = true;
    if (i < n && texto[i] == '.')
        for (++i; digito(i); ++i)
            digitos = true;
    if (!digitos)
        return false;
    if (i < n && (texto[i] == 'e' || texto[i] == 'E')) {
        ++i;
        if (i < n && (texto[i] == '-' || texto[i] == '+'))
            ++i;
        if (!digito(i))
            return false;
        while (digito(i))
            ++i;
    }
    while (branco(i))
        ++i;
    return i == n;
}

std::optional<std::string> conferenciaDaEntrada(const Program& p)
{
    const auto& f = p.Form1;
    struct Exigida {
        const TextBox* caixa;
        const char* nome;
        const char* oQue;
    };
    const std::array<Exigida, 11> exigidas{{
        {&f.Text1, "Base (cm)", "a base b da seção, em cm"},
        {&f.Text2, "Altura (cm)", "a altura h da seção, em cm"},
        {&f.Text23, "Comprimento (cm)", "o comprimento do pilar, em cm"},
        {&f.Text4, "Barras nas faces da base", "o número de barras em cada face de largura b"},
        {&f.Text5, "Barras nas faces da altura", "o número de barras em cada face de altura h"},
        {&f.Text16, "Nd", "a força normal de cálculo"},
        {&f.Text17, "Md", "o momento fletor de cálculo"},
        {&f.Text18, "Fck", "a resistência característica do concreto"},
        {&f.Text20, "Es", "o módulo de elasticidade do aço"},
        {&f.Text21, "γc (coef. do concreto)", "o coeficiente de minoração do concreto"},
        {&f.Text22, "γs (coef. do aço)", "o coeficiente de minoração do aço"},
    }};
    const std::string nada = " Nada foi calculado.";
    for (const auto& e : exigidas) {
        if (vazia(e.caixa->Text))
            return "A caixa " + aspas(e.nome) + " está vazia: digite " + e.oQue + "." + nada;
        if (!valor(e.caixa->Text))
            return "A caixa " + aspas(e.nome) + " tem " + aspas(e.caixa->Text) + ", que não é um número: digite "
                   + e.oQue + "." + nada;
    }
    // A rectangular column has a bar in each corner, so each face holds two bars at
    // least; with fewer the spacing along the face has nothing to divide by. The
    // calculation's own correction only lowers a count that does not fit.
    for (const auto& [caixa, nome] : {std::pair{&f.Text4, "Barras nas faces da base"},
                                      std::pair{&f.Text5, "Barras nas faces da altura"}})
        if (*valor(caixa->Text) < 2)
            return "A caixa " + aspas(nome) + " tem " + caixa->Text
                   + ": cada face precisa de pelo menos 2 barras, uma em cada canto da seção (item 18.4.2.2)."
                   + nada;
    // d' may be left empty: the cover question then corrects it.
    if (!f.Check3.ticked() && !vazia(f.Text3.Text) && !valor(f.Text3.Text))
        return "A caixa \"d' (cm)\" tem " + aspas(f.Text3.Text)
               + ", que não é um número: digite d' em cm, deixe-a vazia ou marque \"d' automático\"." + nada;
    if (auto m = foraDaFaixa(p))
        return *m + nada;
    // The typed stirrup's spacing, with "Definir manualmente": empty asks the question.
    if (f.Option6.Value && !vazia(f.EstriboEspacamento.Text)) {
        const auto e = valor(f.EstriboEspacamento.Text);
        const std::string nome = aspas("Espaçamento do estribo (cm)");
        if (!e)
            return "A caixa " + nome + " tem " + aspas(f.EstriboEspacamento.Text)
                   + ", que não é um número: digite o espaçamento em cm, ou deixe-a vazia para escolher o estribo "
                     "durante o cálculo."
                   + nada;
        if (!(*e > 0 && *e <= 100))
            return "A caixa " + nome + " tem " + f.EstriboEspacamento.Text
                   + ", fora do que o programa aceita: maior que 0 e no máximo 100 cm." + nada;
    }
    if (auto m = conferenciaDeOutrosValores(p.Form8.Text1.Text, p.Form8.Text2.Text))
        return *m + " (Valores > Outros)" + nada;
    if (auto m = conferenciaDaEscala(f.Text6.Text))
        return *m + nada;
    return std::nullopt;
}

std::optional<std::string> conferenciaDeOutrosValores(const std::string& precisao, const std::string& agregado)
{
    const std::string faixa = "maior que 0 e no máximo 0.01 (o padrão é 0.0001)";
    if (vazia(precisao))
        return "A precisão está vazia: digite um valor " + faixa + ".";
    const auto p = valor(precisao);
    if (!p)
        return "Precisão = " + aspas(precisao) + " não é um número: digite um valor " + faixa + ".";
    if (!(*p > 0 && *p <= 0.01))
        return "Precisão = " + precisao + " está fora do intervalo aceito: " + faixa + ".";
    if (vazia(agregado))
        return std::nullopt;
    const auto a = valor(agregado);
    if (!a)
        return "Diâmetro máximo do agregado graúdo = " + aspas(agregado)
               + " não é um número: digite o diâmetro em cm ou deixe a caixa vazia.";
    if (!(*a > 0))
        return "Diâmetro máximo do agregado graúdo = " + agregado
               + " cm: deve ser maior que zero; deixe a caixa vazia quando o agregado não for dado.";
    return std::nullopt;
}

std::optional<std::string> conferenciaDaEscala(const std::string& escala)
{
    const std::string oQue = "a escala do desenho exportado, em pixels por centímetro, maior que zero";
    if (vazia(escala))
        return "A caixa \"Escala\" está vazia: digite " + oQue + ".";
    const auto e = valor(escala);
    if (!e)
        return "Escala = " + aspas(escala) + " não é um número: digite " + oQue + ".";
    if (!(*e > 0))
        return "Escala = " + escala + ": digite " + oQue + ".";
    return std::nullopt;
}

} // namespace pilarix
