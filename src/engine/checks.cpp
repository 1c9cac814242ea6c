#include "engine/checks.h"

#include "base/number_text.h"

#include <cmath>

namespace pilarix::engine {

namespace {
constexpr std::string_view kItemFck = "Item 8.2.1 do Projeto de revisão da NB1 / 2001";
constexpr std::string_view kItemWall = "Item 18.4.1 do Projeto de revisão da NB1 / 2001";
constexpr std::string_view kItemBarDiameter = "Item 18.4.2.1 do Projeto de revisão da NB1 / 2001";
constexpr std::string_view kItemMaximumRatio = "Item 17.3.4.3.2 do Projeto de revisão da NB1 / 2001";
constexpr std::string_view kItemStirrup = "Item 18.4.3";
constexpr std::string_view kItemSpacing = "Item 18.4.2.2 do Projeto de revisão da NB1 / 2001";
constexpr std::string_view kItemAggregate = "Item 7.4.7.6 do Projeto de revisão da NB1 / 2001";
constexpr std::string_view kItemCover = "Item 7.4.7 ";
constexpr std::string_view kItemBarCover = "Item 7.4.7.5";
constexpr std::string_view kItemUltimateStrains = "Item 17.2.2 do Projeto de revisão da NB1 / 2001";

Check make(CheckId id, std::string text) { return {id, std::move(text), clauseOf(id), true}; }
} // namespace

std::string_view clauseOf(CheckId id)
{
    switch (id) {
    case CheckId::FckBelowMinimum:
    case CheckId::FckAboveMaximum:
        return kItemFck;
    case CheckId::WallColumn:
        return kItemWall;
    case CheckId::BarAboveEighthOfSide:
        return kItemBarDiameter;
    case CheckId::MaximumRatio:
    case CheckId::SectionOverloaded:
        return kItemMaximumRatio;
    case CheckId::PredefinedStirrupTooThin:
        return kItemStirrup;
    case CheckId::FreeSpacingWidth:
    case CheckId::FreeSpacingDepth:
    case CheckId::AxisSpacingWidth:
    case CheckId::AxisSpacingDepth:
        return kItemSpacing;
    case CheckId::CoverAggregate:
        return kItemAggregate;
    case CheckId::AreaByStrainCompatibility:
    case CheckId::BeyondAnyArrangement:
    case CheckId::CaseNotCarried:
    case CheckId::SectionNotCarried:
        return kItemUltimateStrains;
    case CheckId::FinalCoverBelowNominal:
        return kItemCover;
    case CheckId::FinalCoverBelowBar:
        return kItemBarCover;
    case CheckId::FinalBarAboveEighthOfSide:
        return kItemBarDiameter;
    case CheckId::FinalStirrupTooThin:
    case CheckId::FinalStirrupSpacing:
        return kItemStirrup;
    case CheckId::MomentAsMagnitude:
    case CheckId::Rule2014:
        return {};
    case CheckId::CoverBelowNominal:
        return kItemCover;
    case CheckId::CoverBelowBarDiameter:
        return kItemBarCover;
    case CheckId::FckZero:
    case CheckId::EsZero:
    case CheckId::GammaCZero:
    case CheckId::GammaSZero:
    case CheckId::BarBelowRequired:
    case CheckId::MinimumRatioNeedsLargerBar:
    case CheckId::FixedBarBelowRequired:
    case CheckId::FixedBarBelowMinimum:
        return {};
    }
    return {};
}

namespace checks {

Check fckZero() { return make(CheckId::FckZero, "Fck deve ser diferente de zero"); }

// 1 MPa is exactly 10 kgf/cm² throughout the program.
Check fckBelowMinimum(double fck)
{
    return make(CheckId::FckBelowMinimum, "Fck = " + Str(fck / 10) + " , inferior a 20 Mpa (valor mínimo para pilares).");
}

Check fckAboveC90(double fck)
{
    return {CheckId::FckAboveMaximum,
            "Fck = " + Str(fck / 10) + " MPa, maior que 90 MPa (classe C90, a maior abrangida pela norma).",
            "Item 8.2.1 da ABNT NBR 6118:2014", true};
}

Check fckAboveMaximum(double fck)
{
    return make(CheckId::FckAboveMaximum,
                "Fck = " + Str(fck / 10) + " , maior que 50 Mpa (valor máximo abrangido pela norma).");
}

Check esZero() { return make(CheckId::EsZero, "Es deve ser diferente de zero"); }

Check gammaCZero()
{
    return make(CheckId::GammaCZero, "GamaC (coeficiente de minoração do concreto) deve ser diferente de zero");
}

Check gammaSZero()
{
    return make(CheckId::GammaSZero, "GamaS (coeficiente de minoração do aço) deve ser diferente de zero");
}

// The number after the second text is five times the smaller side, the limit.
Check wallColumn(double largerSide, double smallerSide)
{
    return make(CheckId::WallColumn, "Maior dimensão da seção transversal = " + Str(largerSide)
                                         + "cm, excedeu 5 vezes a menor dimensão = " + Str(5 * smallerSide)
                                         + ". O pilar deve ser tratado como pilar parede.");
}

Check barBelowRequired()
{
    return make(CheckId::BarBelowRequired,
                "Diâmetro das barras longitudinais devem ser superiores à maior bitola definida pelo usuário.");
}

Check barAboveEighthOfSide(double barDiameter, double smallerSide)
{
    return make(CheckId::BarAboveEighthOfSide,
                "Diâmetro da barra longitudinal excede o máximo permitido = 1/8 da menor dimensão. No caso "
                    + Str(barDiameter) + "cm > " + Str(smallerSide / 8) + "cm");
}

Check sectionOverloaded(double asNec, double asMax)
{
    return make(CheckId::SectionOverloaded,
                "A seção não comporta os esforços: são necessários " + Format(asNec, "##0.00")
                    + " cm², o máximo é " + Format(asMax, "##0.00")
                    + " cm² (4 % da seção fora das regiões de emenda). Aumente a seção ou a resistência do concreto.");
}

Check maximumRatio(double asReal, double asMax)
{
    return make(CheckId::MaximumRatio,
                "A taxa de armadura excede o máximo permitido = 8,0%Ac em reigião de emendas. No caso temos "
                    + Format(asReal, "##0.00") + "cm2 que é maior que " + Format(asMax, "##0.00")
                    + "cm2 correspondente a 4%Ac fora da região de emendas");
}

Check minimumRatioNeedsLargerBar()
{
    Check c = make(CheckId::MinimumRatioNeedsLargerBar,
                   "Taxa de armadura mínima exige barras aço com bitola maior do que o existente");
    c.namesClause = false;
    return c;
}

Check fixedBarBelowRequired(double diameter, double barArea, double requiredPerBar)
{
    return make(CheckId::FixedBarBelowRequired,
                "A bitola fixada, " + Str(10 * diameter) + " mm, tem " + Format(barArea, "##0.00")
                    + " cm2 por barra, menos que os " + Format(requiredPerBar, "##0.00")
                    + " cm2 por barra que a seção exige. Escolha uma bitola maior ou marque Automático.");
}

Check fixedBarBelowMinimum(double diameter, double providedArea, double minimumArea)
{
    return make(CheckId::FixedBarBelowMinimum,
                "Com a bitola fixada, " + Str(10 * diameter) + " mm, a seção tem " + Format(providedArea, "##0.00")
                    + " cm2 de armadura, menos que a armadura mínima de " + Format(minimumArea, "##0.00")
                    + " cm2. Escolha uma bitola maior ou marque Automático.");
}

Check predefinedStirrupTooThin(double minimumDiameter)
{
    return make(CheckId::PredefinedStirrupTooThin,
                "O estribo pré-definido possue diâmetro inferior ao permitido pela norma. Será usado o valor mínimo "
                "permitido que é de "
                    + Str(10 * minimumDiameter) + "mm.");
}

Check freeSpacing(bool widthFaces, double spacing, std::string_view limit, double minimum)
{
    return make(widthFaces ? CheckId::FreeSpacingWidth : CheckId::FreeSpacingDepth,
                std::string(widthFaces ? "Espaçamento livre entre barras horizontais = "
                                       : "Espaçamento livre entre barras verticais = ")
                    + Str(r2(spacing)) + "cm menor que " + std::string(limit) + " = " + Str(r2(minimum)) + "cm");
}

Check axisSpacing(bool widthFaces, double spacing, std::string_view limit, double maximum)
{
    return make(widthFaces ? CheckId::AxisSpacingWidth : CheckId::AxisSpacingDepth,
                std::string(widthFaces ? "Espaçamento entre eixos das barras horizontais = "
                                       : "Espaçamento entre eixos das barras verticais = ")
                    + Str(r2(spacing)) + "cm maior que " + std::string(limit) + " = " + Str(r2(maximum)) + "cm");
}

Check areaByStrainCompatibility(double nu, double mu, double area)
{
    return make(CheckId::AreaByStrainCompatibility,
                "O método das zonas de solicitação não encontrou o equilíbrio da seção para estes esforços (ν = "
                    + Format(nu, "##0.000") + ", μ = " + Format(mu, "##0.000")
                    + "). A armadura necessária foi calculada pela compatibilidade de deformações da seção: As = "
                    + Format(area, "##0.00") + " cm2.");
}

// 1 kN is 100 kgf and 1 kN.m is 10000 kgf.cm, as everywhere in the program.
Check beyondAnyArrangement(double nSd, double mSd)
{
    return make(CheckId::BeyondAnyArrangement,
                "Os esforços de cálculo (Nd = " + Format(nSd / 100, "##0.0") + " kN, Md = " + Format(mSd / 10000, "##0.00")
                    + " kN.m, já multiplicados por γn) excedem o que esta seção resiste com qualquer armadura: "
                      "nem uma área de aço igual à da seção de concreto os equilibra. Aumente a seção.");
}

Check caseNotCarried(const std::string& name, double nSd, double mSd, double utilisation)
{
    const std::string u = std::isfinite(utilisation) ? Format(100 * utilisation, "##0.0") + " %" : "sem limite";
    return make(CheckId::CaseNotCarried, "O caso \"" + name + "\" (Nd = " + Format(nSd / 100, "##0.0")
                                             + " kN, Md = " + Format(mSd / 10000, "##0.00")
                                             + " kN.m, já multiplicados por γn) não é resistido pela seção detalhada: "
                                               "utilização de "
                                             + u + ".");
}

Check sectionNotCarried(double utilisation, std::optional<double> asCompat, std::optional<MethodOk> methodOk)
{
    std::string t = std::isfinite(utilisation)
                        ? "A seção detalhada resiste a " + Format(100 / utilisation, "##0") + " % dos esforços"
                        : "A seção detalhada não resiste aos esforços";
    t += " (utilização de " + (std::isfinite(utilisation) ? Format(100 * utilisation, "##0.0") + " %" : "sem limite")
         + ")";
    if (asCompat)
        t += "; por compatibilidade de deformações são necessários " + Format(*asCompat, "##0.00") + " cm²";
    else
        t += "; nenhuma armadura com este arranjo resiste a eles";
    t += ".";
    if (methodOk)
        t += " Pelo método das zonas de solicitação, sozinho, o resultado seria \"Ok\" (As,nec = "
             + Format(methodOk->asNec, "##0.00") + " cm², As,ef = " + Format(methodOk->asReal, "##0.00")
             + " cm²): a verificação por compatibilidade de deformações prevalece.";
    return make(CheckId::SectionNotCarried, t);
}

Check sectionNotVerified(const std::string& reason)
{
    return make(CheckId::SectionNotCarried,
                "A seção detalhada não pôde ser verificada por compatibilidade de deformações: " + reason);
}

Check finalCoverBelowNominal(double cover, double nominalCover, double barDiameter, double stirrupDiameter)
{
    return make(CheckId::FinalCoverBelowNominal,
                "Arranjo final: com a barra de " + Str(10 * barDiameter) + " mm e o estribo de "
                    + Str(10 * stirrupDiameter) + " mm o cobrimento efetivo é de " + Format(cover, "##0.000")
                    + " cm, menor que o cobrimento nominal = " + Str(nominalCover) + " cm.");
}

Check finalCoverBelowBar(double barCover, double barDiameter)
{
    return make(CheckId::FinalCoverBelowBar, "Arranjo final: o cobrimento das barras longitudinais é de "
                                                 + Format(barCover, "##0.000") + " cm, menor que o diâmetro da barra = "
                                                 + Str(barDiameter) + " cm.");
}

Check finalBarAboveEighthOfSide(double barDiameter, double smallerSide)
{
    return make(CheckId::FinalBarAboveEighthOfSide, "Arranjo final: a barra longitudinal de " + Str(barDiameter)
                                                        + " cm excede 1/8 da menor dimensão = "
                                                        + Str(smallerSide / 8) + " cm.");
}

Check finalStirrupTooThin(double stirrupDiameter, double minimumDiameter, double barDiameter)
{
    return make(CheckId::FinalStirrupTooThin,
                "Arranjo final: o estribo de " + Str(10 * stirrupDiameter) + " mm é mais fino que o mínimo de "
                    + Str(10 * minimumDiameter) + " mm para a barra longitudinal de " + Str(10 * barDiameter)
                    + " mm.");
}

Check finalStirrupSpacing(double spacing, double maximum, double barDiameter)
{
    return make(CheckId::FinalStirrupSpacing, "Arranjo final: o espaçamento dos estribos, " + Str(spacing)
                                                  + " cm, excede o máximo de " + Str(maximum)
                                                  + " cm para a barra longitudinal de " + Str(10 * barDiameter)
                                                  + " mm.");
}

Check directionNotCarried(const std::string& name, const char* direction, double nSd, double mSd, double utilisation)
{
    const std::string u = std::isfinite(utilisation) ? Format(100 * utilisation, "##0.0") + " %" : "sem limite";
    return make(CheckId::CaseNotCarried, "Na direção de " + std::string(direction) + ", o caso \"" + name
                                             + "\" (Nd = " + Format(nSd / 100, "##0.0") + " kN, Md,tot = "
                                             + Format(mSd / 100, "##0.0")
                                             + " kN.cm, já multiplicados por γn) não é resistido pela seção "
                                               "detalhada: utilização de "
                                             + u + ".");
}

Check momentAsMagnitude(double md)
{
    return make(CheckId::MomentAsMagnitude,
                "O momento fletor foi dado negativo (Md = " + Str(md / 100)
                    + " kN.cm). A seção é simétrica: foi dimensionada para o seu valor absoluto.");
}

Check coverAggregate(double nominalCover, double aggregate)
{
    return make(CheckId::CoverAggregate, "Cobrimento nominal = " + Str(nominalCover) + " cm, < "
                                             + Str(r2(aggregate / 1.2))
                                             + " cm (dimensão máxima do argagado graúdo / 1.2)");
}

Check coverBelowNominal(double effectiveCover, double nominalCover)
{
    return make(CheckId::CoverBelowNominal, "Cobrimento efetivo = " + Str(effectiveCover)
                                                + " cm menor que o combrimento nominal = " + Str(nominalCover) + " cm.");
}

Check coverBelowBarDiameter(double barCover, double barDiameter)
{
    return make(CheckId::CoverBelowBarDiameter, "Cobrimento mínimo das barras longitudinais = " + Str(barCover)
                                                    + " cm menor que o mínimo = " + Str(barDiameter)
                                                    + " cm (diâmetro da barra logitudinal)");
}

} // namespace checks

} // namespace pilarix::engine
