// The bar catalogue and the choice of a real bar for the required area.

#include "detailing/bar_scan.h"
#include "driver/program.h"

#include "base/number_text.h"

namespace pilarix {

namespace {

constexpr const char* kBitolaInsuficiente =
    "Diâmetro das barras longitudinais devem ser superiores à maior bitola definida pelo usuário.";
constexpr const char* kItemDiametroMaximo = "Item 18.4.2.1 do Projeto de revisão da NB1 / 2001";

enum class Escolha { Ok, BitolaInsuficiente, DiametroExcessivo };

// Steps shared by the window and the silent check: the smallest allowed bar whose
// area covers the area required per bar, then the 1/8-of-the-smaller-side limit.
Escolha escolheBarra(Program& p)
{
    if (!escolheMenorBarra(p)) {
        p.AsBarra = 0;
        p.AsReal = 0;
        return Escolha::BitolaInsuficiente;
    }
    // NBR 6118, 18.4.2.1: a longitudinal bar no thicker than 1/8 of the smaller side.
    if (p.DiamLong > p.MenorDim / 8)
        return Escolha::DiametroExcessivo;
    return Escolha::Ok;
}

} // namespace

bool escolheMenorBarra(Program& p)
{
    // Catalogue bar 4 (10 mm) is the smallest bar a column may carry lengthwise.
    constexpr long kMenorBitolaLongitudinal = 4;
    const long k = p.IndiceBitolaMax;
    if (p.AsNecBarra > p.AreaBitola(k))
        return false;
    // A counted loop: when k is below 4 it does not run and leaves the counter at 4.
    for (p.Indice = kMenorBitolaLongitudinal; p.Indice <= k; ++p.Indice)
        if (p.AreaBitola(p.Indice) >= p.AsNecBarra)
            break;
    const long i = p.Indice;
    p.AsBarra = p.AreaBitola(i);
    p.AsReal = p.NBarrasTotal * p.AreaBitola(i);
    p.DiamLong = p.DiamBitola(i);
    p.PesoLinearLong = p.PesoBitola(i);
    return true;
}

void Program::Bitolas22()
{
    // The commercial bars with their nominal areas and masses as the bar tables give
    // them (rounded figures, never π·φ²/4): weights and areas must match the tables
    // that the site orders steel by.
    struct Bitola {
        double diam, area, peso;
    };
    static constexpr Bitola kCatalogo[11] = {
        {0.5, 0.2, 0.16}, {0.63, 0.315, 0.25}, {0.8, 0.5, 0.4}, {1, 0.8, 0.63},
        {1.25, 1.25, 1.0}, {1.6, 2, 1.6},      {2, 3.15, 2.5},  {2.25, 4, 3.15},
        {2.5, 5, 4.0},     {3.2, 8, 6.3},      {4, 12.5, 10.0},
    };
    for (long i = 1; i <= 11; ++i) {
        DiamBitola(i) = kCatalogo[i - 1].diam;
        AreaBitola(i) = kCatalogo[i - 1].area;
        PesoBitola(i) = kCatalogo[i - 1].peso;
    }
}

void Program::AsReal23()
{
    switch (escolheBarra(*this)) {
    case Escolha::Ok:
        return;
    case Escolha::BitolaInsuficiente:
        FlagErro = "s";
        MensagemErro = kBitolaInsuficiente;
        ItemNorma.clear();
        break;
    case Escolha::DiametroExcessivo:
        FlagErro = "s";
        MensagemErro = "Diâmetro da barra longitudinal excede o máximo permitido = 1/8 da menor dimensão. No caso "
                       + Str(DiamLong) + "cm > " + Str(MenorDim / 8) + "cm";
        ItemNorma = kItemDiametroMaximo;
        break;
    }
    if (!modoBusca())
        MostraErro();
}

void Program::Form10AsReal23()
{
    if (escolheBarra(*this) != Escolha::Ok)
        FlagErro = "s";
}

} // namespace pilarix
