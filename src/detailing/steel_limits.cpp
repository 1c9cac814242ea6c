// Wall columns, the additional coefficient, and minimum and maximum steel.

#include "detailing/bar_scan.h"
#include "driver/program.h"

#include "base/number_text.h"

namespace pilarix {

namespace {

constexpr const char* kItemPilarParede = "Item 18.4.1 do Projeto de revisão da NB1 / 2001";
constexpr const char* kItemTaxaMaxima = "Item 17.3.4.3.2 do Projeto de revisão da NB1 / 2001";
constexpr const char* kTaxaMinimaSemBitola =
    "Taxa de armadura mínima exige barras aço com bitola maior do que o existente";

// The minimum steel as a new required area: the smallest allowed bar whose area
// reaches AsMin / NBarrasTotal. The 1/8-of-the-side limit is not checked again here.
// `mostra` is false for the silent check of the search.
void taxaMinima(Program& p, bool mostra)
{
    p.AsNec = p.AsMin;
    p.AsNecBarra = p.AsNec / p.NBarrasTotal;
    if (!escolheMenorBarra(p)) {
        p.FlagErro = "s";
        if (mostra) {
            // The clause line keeps what the last message left there.
            p.MensagemErro = kTaxaMinimaSemBitola;
            if (!p.modoBusca())
                p.MostraErro();
        }
        return;
    }
    // Not a message: it tells the caller that the bar was chosen again.
    p.MensagemErro = "voltar";
    p.FlagErro = "n";
}

// The minimum steel of a column, the larger of 0.15 Nd/fyd and 0.4 % of Ac, and the
// maximum of NBR 6118, 17.3.4.3.2: its 8 % holds in splice regions, so the steel
// outside them is kept to 4 % of Ac. True when the provided steel exceeds it.
bool limitesDeArmadura(Program& p, bool mostra)
{
    p.AsMin = 0.15 * p.Nd / p.fyd;
    if (0.004 * p.Ac >= p.AsMin)
        p.AsMin = 0.004 * p.Ac;
    p.AsMinBarra = p.AsMin / p.NBarrasTotal;
    p.AsMax = (0.08 * p.Ac) / 2;
    if (p.AsReal < p.AsMin)
        taxaMinima(p, mostra);
    return p.AsReal > p.AsMax;
}

} // namespace

void Program::CeoficienteAdic25()
{
    // NBR 6118, 18.4.1: a section whose larger side exceeds five times the smaller is
    // a wall, outside the rules for columns.
    bool parede = false;
    double maior = 0;
    if (Base < Altura) {
        MenorDim = Base;
        maior = Altura;
        parede = Altura > 5 * Base;
    } else {
        MenorDim = Altura;
        maior = Base;
        parede = Base > 5 * Altura;
    }
    if (parede) {
        FlagErro = "sPparede";
        MensagemErro = "Maior dimensão da seção transversal = " + Str(maior)
                       + "cm, excedeu 5 vezes a menor dimensão = " + Str(5 * MenorDim)
                       + ". O pilar deve ser tratado como pilar parede.";
        ItemNorma = kItemPilarParede;
        if (!modoBusca())
            MostraErro();
    }

    // Thin sections carry the additional coefficient γn of NBR 6118, by whole
    // centimetres of the smaller side; the last row that matches wins.
    static constexpr struct {
        double abaixoDe, gama;
    } kDegraus[] = {{19, 1.05}, {18, 1.1}, {17, 1.15}, {16, 1.2}, {15, 1.25}, {14, 1.3}, {13, 1.35}};
    if (MenorDim >= 19)
        GamaN = 1.0;
    for (const auto& d : kDegraus)
        if (MenorDim < d.abaixoDe)
            GamaN = d.gama;
}

void Program::AsMinMax24()
{
    if (!limitesDeArmadura(*this, true))
        return;
    FlagErro = "s";
    MensagemErro = "A taxa de armadura excede o máximo permitido = 8,0%Ac em reigião de emendas. No caso temos "
                   + Format(AsReal, "##0.00") + "cm2 que é maior que " + Format(AsMax, "##0.00")
                   + "cm2 correspondente a 4%Ac fora da região de emendas";
    ItemNorma = kItemTaxaMaxima;
    if (!modoBusca())
        MostraErro();
}

void Program::Taxaminima45() { taxaMinima(*this, true); }

void Program::Form10AsMinMax24()
{
    if (limitesDeArmadura(*this, false))
        FlagErro = "s";
}

} // namespace pilarix
