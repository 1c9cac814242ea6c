#pragma once
// Concrete and steel as the design uses them (NBR 6118, 8.2 and 8.3), in kgf/cm² with
// strains in per mille, shortening positive.
//
//   designConcrete(fck, γc)         fcd = fck/γc and σcd = 0.85 fcd
//   designSteel(grade, γs, Es)      fyk, fyd, εyd and σs at 2 ‰
//   steelStress(steel, ε)           the design stress–strain law of the steel's class:
//                                   class A bilinear; class B (cold-worked) bilinear to
//                                   0.7 fyd, then the curve ε = σ/Es + (σ/fyd − 0.7)²/45
//                                   up to fyd at εyd. Tension and compression alike.

#include <optional>
#include <string_view>

namespace pilarix::engine {

enum class SteelGrade { CA25A, CA50A, CA60A, CA25B, CA50B, CA60B };

// "Aço CA-50A" and the like, as the steel list spells them; nullopt for any other text.
std::optional<SteelGrade> steelGradeFromText(std::string_view text);
std::string_view steelGradeText(SteelGrade grade);
bool isClassB(SteelGrade grade);
double characteristicYield(SteelGrade grade); // fyk, kgf/cm²: 2500, 5000 or 6000

struct Concrete {
    double fck = 0;    // kgf/cm²
    double gammaC = 0; // γc
    double fcd = 0;    // fck / γc
    double sigcd = 0;  // 0.85 fcd: the stress of the rectangular part of the diagram
};

struct Steel {
    SteelGrade grade = SteelGrade::CA50A;
    bool classB = false;
    double Es = 0;     // kgf/cm²
    double gammaS = 0; // γs
    double fyk = 0;    // kgf/cm²
    double fyd = 0;    // fyk / γs
    double epsYd = 0;  // ‰: fyd/Es, plus the 2 ‰ of permanent strain of class B
    double sigS2 = 0;  // design stress at 2 ‰, the strain of uniformly shortened concrete
};

Concrete designConcrete(double fck, double gammaC);
Steel designSteel(SteelGrade grade, double gammaS, double Es);

// Design stress (kgf/cm², with the sign of the strain) at the strain e (‰).
double steelStress(const Steel& steel, double strainPermille);

} // namespace pilarix::engine
