#include "window/window_input.h"

#include "base/calc_error.h"
#include "base/number_text.h"
#include "app/units.h"
#include "window/control_table.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>

namespace pilarix {

namespace {

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
    for (const auto& c : controles())
        if (c.em(alcance))
            v.emplace_back(c.nome, c.valor(p));
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
    const Controle* c = controle(nome);
    // Only what the window compares is put back: a button of a group goes back as its group.
    if (!c || c->alcances == 0)
        return false;
    c->atribui(p, valor);
    // With d' found from the cover, the d' box and its estimate are out of use.
    if (c->noForm1 && c->alvo(p) == Controle::Alvo(&p.Form1.Check3)) {
        p.Form1.Text3.Enabled = !p.Form1.Check3.ticked();
        p.Form1.Command17.Enabled = !p.Form1.Check3.ticked();
    }
    return true;
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
