#include "engine/checks2014.h"

#include "base/number_text.h"

namespace pilarix::engine {

namespace {
constexpr std::string_view kItemGammaN = "Item 13.2.3 da ABNT NBR 6118:2014";
constexpr std::string_view kItemStandardColumn = "Item 15.8.3.3 da ABNT NBR 6118:2014";
constexpr std::string_view kItemMinimumSteel = "Item 17.3.5.3.1 da ABNT NBR 6118:2014";
constexpr std::string_view kItemMaximumSteel = "Item 17.3.5.3.2 da ABNT NBR 6118:2014";
constexpr std::string_view kItemBar = "Item 18.4.2.1 da ABNT NBR 6118:2014";
constexpr std::string_view kItemSpacing = "Item 18.4.2.2 da ABNT NBR 6118:2014";
constexpr std::string_view kItemStirrup = "Item 18.4.3 da ABNT NBR 6118:2014";
constexpr std::string_view kItemCover = "Item 7.4.7 da ABNT NBR 6118:2014";
constexpr std::string_view kItemBarCover = "Item 7.4.7.5 da ABNT NBR 6118:2014";
constexpr std::string_view kItemAggregate = "Item 7.4.7.6 da ABNT NBR 6118:2014";
constexpr std::string_view kItemTies = "Item 18.2.4 da ABNT NBR 6118:2014";

Check2014 make(Rule2014 id, std::string text) { return {id, std::move(text), clauseOf(id)}; }

// Lengths as the spacing messages write them: two decimals at most, "." as the point.
std::string cm(double x) { return Str(r2(x)) + " cm"; }
std::string mm(double diameter) { return Str(r2(10 * diameter)) + " mm"; }
std::string cm2(double x) { return Format(x, "##0.00") + " cm2"; }
} // namespace

std::string_view clauseOf(Rule2014 id)
{
    switch (id) {
    case Rule2014::SideBelowMinimum:
    case Rule2014::AreaBelowMinimum:
        return kItemGammaN;
    case Rule2014::SlendernessAbove90:
        return kItemStandardColumn;
    case Rule2014::SteelBelowMinimum:
        return kItemMinimumSteel;
    case Rule2014::SteelAboveMaximum:
        return kItemMaximumSteel;
    case Rule2014::BarBelowMinimum:
    case Rule2014::BarAboveEighthOfSide:
        return kItemBar;
    case Rule2014::FreeSpacingBelowMinimum:
    case Rule2014::AxisSpacingAboveMaximum:
        return kItemSpacing;
    case Rule2014::StirrupBelowMinimum:
    case Rule2014::StirrupSpacingAboveMaximum:
        return kItemStirrup;
    case Rule2014::CoverBelowNominal:
        return kItemCover;
    case Rule2014::CoverBelowBarDiameter:
        return kItemBarCover;
    case Rule2014::AggregateAboveCover:
        return kItemAggregate;
    case Rule2014::SupplementaryStirrupsNeeded:
        return kItemTies;
    }
    return {};
}

namespace checks2014 {

Check2014 sideBelowMinimum(double smallerSide)
{
    return make(Rule2014::SideBelowMinimum, "Menor dimensão da seção = " + cm(smallerSide)
                                                + ", inferior ao mínimo de 14 cm para pilares.");
}

Check2014 areaBelowMinimum(double area)
{
    return make(Rule2014::AreaBelowMinimum, "Área da seção transversal = " + cm2(area)
                                                + ", inferior ao mínimo de 360 cm2 para pilares.");
}

Check2014 slendernessAbove90(double lambda, double side)
{
    return make(Rule2014::SlendernessAbove90,
                "Índice de esbeltez λ = " + Format(lambda, "##0.0") + " na direção de " + cm(side)
                    + ", maior que 90: os métodos do pilar-padrão (curvatura e rigidez aproximadas) não se aplicam.");
}

Check2014 steelBelowMinimum(double provided, double minimum)
{
    return make(Rule2014::SteelBelowMinimum, "Armadura longitudinal = " + cm2(provided)
                                                 + ", menor que a mínima = " + cm2(minimum)
                                                 + " (0,15 Nd/fyd, e não menos que 0,4% Ac).");
}

Check2014 steelAboveMaximum(double provided, double maximum)
{
    return make(Rule2014::SteelAboveMaximum, "Armadura longitudinal = " + cm2(provided) + ", maior que a máxima = "
                                                 + cm2(maximum) + " (4% Ac fora da região de emendas).");
}

Check2014 barBelowMinimum(double diameter)
{
    return make(Rule2014::BarBelowMinimum,
                "Diâmetro da barra longitudinal = " + mm(diameter) + ", menor que o mínimo de 10 mm.");
}

Check2014 barAboveEighthOfSide(double diameter, double smallerSide)
{
    return make(Rule2014::BarAboveEighthOfSide, "Diâmetro da barra longitudinal = " + mm(diameter)
                                                    + ", maior que 1/8 da menor dimensão = " + mm(smallerSide / 8)
                                                    + ".");
}

Check2014 freeSpacingBelowMinimum(double spacing, double minimum)
{
    return make(Rule2014::FreeSpacingBelowMinimum,
                "Espaçamento livre entre barras = " + cm(spacing) + ", menor que o mínimo = " + cm(minimum)
                    + " (20 mm, o diâmetro da barra e 1,2 vez o diâmetro máximo do agregado).");
}

Check2014 axisSpacingAboveMaximum(double spacing, double maximum)
{
    return make(Rule2014::AxisSpacingAboveMaximum,
                "Espaçamento entre eixos das barras = " + cm(spacing) + ", maior que o máximo = " + cm(maximum)
                    + " (2 vezes a menor dimensão e 40 cm).");
}

Check2014 stirrupBelowMinimum(double diameter, double minimum)
{
    return make(Rule2014::StirrupBelowMinimum, "Diâmetro do estribo = " + mm(diameter) + ", menor que o mínimo = "
                                                   + mm(minimum) + " (5 mm e 1/4 do diâmetro da barra longitudinal).");
}

Check2014 stirrupSpacingAboveMaximum(double spacing, double maximum)
{
    return make(Rule2014::StirrupSpacingAboveMaximum,
                "Espaçamento dos estribos = " + cm(spacing) + ", maior que o máximo = " + cm(maximum)
                    + " (20 cm, a menor dimensão, 24 φ para CA-25 e 12 φ para CA-50 e CA-60).");
}

Check2014 coverBelowNominal(double cover, double nominal)
{
    return make(Rule2014::CoverBelowNominal,
                "Cobrimento = " + cm(cover) + ", menor que o cobrimento nominal = " + cm(nominal) + ".");
}

Check2014 coverBelowBarDiameter(double nominal, double barDiameter)
{
    return make(Rule2014::CoverBelowBarDiameter, "Cobrimento nominal = " + cm(nominal)
                                                     + ", menor que o diâmetro da barra longitudinal = "
                                                     + cm(barDiameter) + ".");
}

Check2014 aggregateAboveCover(double aggregate, double nominal)
{
    return make(Rule2014::AggregateAboveCover, "Diâmetro máximo do agregado graúdo = " + cm(aggregate)
                                                   + ", maior que 1,2 vez o cobrimento nominal = " + cm(1.2 * nominal)
                                                   + ".");
}

Check2014 supplementaryStirrupsNeeded(int bars, double reach)
{
    return make(Rule2014::SupplementaryStirrupsNeeded,
                std::to_string(bars) + (bars == 1 ? " barra não é protegida" : " barras não são protegidas")
                    + " contra a flambagem pelos cantos do estribo (mais de 20 φt = " + cm(reach)
                    + " do canto, ou além da segunda barra): são necessários estribos suplementares.");
}

} // namespace checks2014

} // namespace pilarix::engine
