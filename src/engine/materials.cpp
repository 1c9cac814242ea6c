#include "engine/materials.h"

#include <array>
#include <cmath>
#include <utility>

namespace pilarix::engine {

namespace {
constexpr std::array<std::pair<std::string_view, SteelGrade>, 6> kGrades{{
    {"Aço CA-25A", SteelGrade::CA25A},
    {"Aço CA-50A", SteelGrade::CA50A},
    {"Aço CA-60A", SteelGrade::CA60A},
    {"Aço CA-25B", SteelGrade::CA25B},
    {"Aço CA-50B", SteelGrade::CA50B},
    {"Aço CA-60B", SteelGrade::CA60B},
}};
} // namespace

std::optional<SteelGrade> steelGradeFromText(std::string_view text)
{
    for (const auto& [t, g] : kGrades)
        if (t == text)
            return g;
    return std::nullopt;
}

std::string_view steelGradeText(SteelGrade grade)
{
    for (const auto& [t, g] : kGrades)
        if (g == grade)
            return t;
    return {};
}

bool isClassB(SteelGrade grade)
{
    return grade == SteelGrade::CA25B || grade == SteelGrade::CA50B || grade == SteelGrade::CA60B;
}

double characteristicYield(SteelGrade grade)
{
    switch (grade) {
    case SteelGrade::CA25A:
    case SteelGrade::CA25B:
        return 2500;
    case SteelGrade::CA50A:
    case SteelGrade::CA50B:
        return 5000;
    case SteelGrade::CA60A:
    case SteelGrade::CA60B:
        return 6000;
    }
    return 0;
}

Concrete designConcrete(double fck, double gammaC)
{
    Concrete c;
    c.fck = fck;
    c.gammaC = gammaC;
    c.fcd = fck / gammaC;
    c.sigcd = 0.85 * c.fcd;
    return c;
}

Steel designSteel(SteelGrade grade, double gammaS, double Es)
{
    Steel s;
    s.grade = grade;
    s.classB = isClassB(grade);
    s.Es = Es;
    s.gammaS = gammaS;
    s.fyk = characteristicYield(grade);
    s.fyd = s.fyk / gammaS;
    // The conventional 2 per mille of permanent strain at the yield of cold-worked
    // steel (NBR 6118, 8.3.6).
    s.epsYd = s.classB ? 2 + (s.fyd * 1000) / Es : (s.fyd * 1000) / Es;
    // A uniformly shortened section fails at 2 per mille: a class B bar there may
    // still be on its curve, below fyd.
    s.sigS2 = steelStress(s, 2);
    return s;
}

double steelStress(const Steel& s, double e)
{
    const double ae = std::fabs(e);
    double sigma;
    if (s.classB) {
        const double ep = 0.7 * s.fyd * 1000 / s.Es; // proportional limit, ‰
        if (ae <= ep) {
            sigma = ae * s.Es / 1000;
        } else if (ae >= s.epsYd) {
            sigma = s.fyd;
        } else {
            // The larger root of ε = σ/Es + (σ/fyd − 0.7)²/45. The constant term is
            // taken to single precision, as the stress tables of the program always
            // were: the curve stays bit for bit the same.
            const double A = 1 / (45 * (s.fyd * s.fyd));
            const double B = 1.4 / (45 * s.fyd) - 1 / s.Es;
            const double C = static_cast<float>(0.49 / 45 - ae / 1000);
            const double D = std::sqrt(B * B - 4 * A * C);
            sigma = (B + D) / (2 * A);
        }
    } else if (ae >= s.epsYd) {
        sigma = s.fyd;
    } else {
        sigma = ae * s.Es / 1000;
    }
    const double sign = (e > 0) ? 1.0 : (e < 0) ? -1.0 : 0.0;
    return sign * sigma;
}

} // namespace pilarix::engine
