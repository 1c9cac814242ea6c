#include "engine/stirrups.h"

#include "engine/catalogue.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <string>

namespace pilarix::engine {

namespace {
// Looked up by the DiamBitola column, as the bar choice reads the catalogue.
const Bar& catalogueBar(int index) { return bar(index, "DiamBitola"); }
} // namespace

StirrupRules stirrupRules(double barDiameter, double smallerSide, SteelGrade grade, RuleSet rules)
{
    StirrupRules r;
    // At least 5 mm and a quarter of the longitudinal bar. The catalogue walk has no
    // end of its own: with bars up to 40 mm it stops by 10 mm.
    r.minimumDiameter = barDiameter / 4 > 0.5 ? barDiameter / 4 : 0.5;
    int i = 1;
    while (catalogueBar(i).diameter < r.minimumDiameter)
        ++i;
    r.minimumIndex = i;

    r.spacing = smallerSide < 20 ? Int(smallerSide) : 20;
    switch (grade) {
    case SteelGrade::CA25A:
    case SteelGrade::CA25B:
        if (Int(24 * barDiameter) < r.spacing)
            r.spacing = Int(24 * barDiameter);
        break;
    case SteelGrade::CA50A:
    case SteelGrade::CA50B:
        if (Int(12 * barDiameter) < r.spacing)
            r.spacing = Int(12 * barDiameter);
        break;
    default:
        if (rules == RuleSet::Nbr2014 && Int(12 * barDiameter) < r.spacing)
            r.spacing = Int(12 * barDiameter);
        break;
    }
    const double fyk = characteristicYield(grade);
    for (int k = 1; k <= 3; ++k) {
        const double fiT = 10 * catalogueBar(k).diameter;
        double s = Int(9000 * (fiT * fiT) / (10 * barDiameter) / (fyk / 10));
        if (r.spacing < s)
            s = r.spacing;
        r.sameSteelSpacing[static_cast<std::size_t>(k)] = s;
    }
    return r;
}

int leastSteelPerMetre(const StirrupRules& r)
{
    const int m = r.minimumIndex;
    std::array<double, 5> perMetre{};
    for (int k = 1; k <= m - 1; ++k)
        perMetre[static_cast<std::size_t>(k)] = catalogueBar(k).area / r.sameSteelSpacing.at(static_cast<std::size_t>(k));
    perMetre.at(static_cast<std::size_t>(m)) = catalogueBar(m).area / r.spacing;
    double least = perMetre[static_cast<std::size_t>(m)];
    for (int k = 1; k <= m - 1; ++k)
        if (perMetre[static_cast<std::size_t>(k)] < least)
            least = perMetre[static_cast<std::size_t>(k)];
    // Ascending, so that a tie goes to the thinner stirrup.
    int k = 1;
    for (; k <= m; ++k)
        if (perMetre[static_cast<std::size_t>(k)] == least)
            break;
    return k;
}

StirrupQuestion stirrupQuestion(const StirrupRules& r)
{
    const int m = r.minimumIndex;
    StirrupQuestion q;
    // The options print the diameter as stored, in cm, between "fi de " and "mm": the
    // program's own wording, kept as its users know it.
    q.heading = "A bitola do estribo deverá ser de " + Str(10 * catalogueBar(m).diameter) + "mm2 com espaçamento de "
                + Str(r.spacing) + "cm";
    q.explanation = " Porém, se os estribos e a armadura longitudinal forem do MESMO TIPO DE AÇO, poderá ser adotada "
                    "uma das soluções abaixo:";
    q.options[0] = "fi de " + Str(catalogueBar(m).diameter) + "mm a cada " + Str(r.spacing)
                   + "cm. (independe do tipo de aço do estribo).";
    for (int i = 1; i <= m - 1; ++i)
        q.options.at(static_cast<std::size_t>(i)) = "fi de " + Str(catalogueBar(m - i).diameter) + "mm a cada "
                                                     + Str(r.sameSteelSpacing[static_cast<std::size_t>(m - i)]) + "cm.";
    q.options[kLeastSteelOption] = "Utilizar a solução que proporcione menos quantidade de aço por metro";
    q.count = m;
    return q;
}

int stirrupFromAnswer(const StirrupRules& r, int option)
{
    // The options run from the allowed stirrup down to the thinnest; any other answer
    // (the last option, or one that was not offered) asks for the least steel.
    if (option >= 0 && option < r.minimumIndex)
        return r.minimumIndex - option;
    return leastSteelPerMetre(r);
}

HookAllowances hookAllowances(double d, Hook hook)
{
    // Two hooks of 5 φt (at least 5 cm each) bent at 45° or in a half circle, of
    // 10 φt (at least 7 cm each) at a right angle. Supplementary stirrups always get
    // the 45° allowance.
    HookAllowances a;
    if (hook == Hook::Angle45)
        a.stirrup = 10 * d > 10 ? 10 * d : 10.0;
    else
        a.stirrup = 20 * d > 14 ? 20 * d : 14.0;
    a.tie = 10 * d > 10 ? 10 * d : 10;
    return a;
}

std::string stirrupText(double diameter, double spacing) { return "φ" + Str(10 * diameter) + " c/" + Str(spacing); }

PredefinedStirrup predefinedStirrup(int index)
{
    static constexpr PredefinedStirrup kTable[] = {{0.5, 0.16, 1}, {0.63, 0.25, 2}, {0.8, 0.4, 3}, {1, 0.63, 4}};
    if (index < 1 || index > 4)
        throw CalcError("Estribo pré-definido fora da lista: " + std::to_string(index) + ".");
    return kTable[index - 1];
}

} // namespace pilarix::engine
