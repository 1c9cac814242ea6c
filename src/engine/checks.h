#pragma once
// Every message the calculation gives, with the clause of NBR 6118 (2001 revision
// project) it rests on: the texts stand here and only here.
//
//   Check             one failed rule: what (id), the message with its numbers, the clause
//   clauseOf(id)      the clause of a rule ("" where the message names none)
//   the functions below compose each message from its numbers, as the program words it.

#include <optional>
#include <string>
#include <string_view>

namespace pilarix::engine {

enum class CheckId {
    // input
    FckZero,
    FckBelowMinimum,
    FckAboveMaximum,
    EsZero,
    GammaCZero,
    GammaSZero,
    // section
    WallColumn,
    // longitudinal bars
    BarBelowRequired,
    BarAboveEighthOfSide,
    MaximumRatio,
    SectionOverloaded,
    MinimumRatioNeedsLargerBar,
    FixedBarBelowRequired,
    FixedBarBelowMinimum,
    // stirrups
    PredefinedStirrupTooThin,
    // spacing
    FreeSpacingWidth,
    FreeSpacingDepth,
    AxisSpacingWidth,
    AxisSpacingDepth,
    // the design by strain compatibility where the zones method finds no equilibrium
    AreaByStrainCompatibility,
    BeyondAnyArrangement,
    // load cases
    CaseNotCarried,
    // the verdict: the detailed section under its forces, the final arrangement
    SectionNotCarried,
    FinalCoverBelowNominal,
    FinalCoverBelowBar,
    FinalBarAboveEighthOfSide,
    FinalStirrupTooThin,
    FinalStirrupSpacing,
    // input taken otherwise than typed
    MomentAsMagnitude,
    // a rule of ABNT NBR 6118:2014 of its own (γn, slenderness, the nominal cover and
    // the bar): the text and clause come with it
    Rule2014,
    // cover (questions)
    CoverAggregate,
    CoverBelowNominal,
    CoverBelowBarDiameter,
};

struct Check {
    CheckId id;
    std::string text;
    std::string_view clause;
    // False for the one message that names no clause of its own: the dialog keeps
    // showing the clause of the message before it.
    bool namesClause = true;
};

std::string_view clauseOf(CheckId id);

namespace checks {
Check fckZero();
Check fckBelowMinimum(double fck);  // fck in kgf/cm²; the message says MPa
Check fckAboveMaximum(double fck);
Check fckAboveC90(double fck); // under ABNT NBR 6118:2014
Check esZero();
Check gammaCZero();
Check gammaSZero();
Check wallColumn(double largerSide, double smallerSide);
Check barBelowRequired();
Check barAboveEighthOfSide(double barDiameter, double smallerSide);
Check maximumRatio(double asReal, double asMax);
// The design needs more steel (cm²) than the section may hold outside laps.
Check sectionOverloaded(double asNec, double asMax);
Check minimumRatioNeedsLargerBar();
// The bar the engineer fixed: its diameter (cm), its area and the area needed, per bar (cm²).
Check fixedBarBelowRequired(double diameter, double barArea, double requiredPerBar);
// ... and the provided and minimum areas of the section (cm²).
Check fixedBarBelowMinimum(double diameter, double providedArea, double minimumArea);
Check predefinedStirrupTooThin(double minimumDiameter);
// `limit` is the text naming the governing limit (see the limit texts below).
Check freeSpacing(bool widthFaces, double spacing, std::string_view limit, double minimum);
Check axisSpacing(bool widthFaces, double spacing, std::string_view limit, double maximum);
// ν and μ reduced as the zones method reduces them; As in cm².
Check areaByStrainCompatibility(double nu, double mu, double area);
// NSd in kgf and MSd in kgf·cm, γn included.
Check beyondAnyArrangement(double nSd, double mSd);
// A load case the detailed section does not carry: its name, its design forces (kgf,
// kgf·cm, γn included) and its utilisation (a fraction).
Check caseNotCarried(const std::string& name, double nSd, double mSd, double utilisation);
// The detailed section does not carry its design forces: its utilisation (a
// fraction, +∞ when unbounded), the area strain compatibility asks of the same
// layout (none when no amount does), and, where the method's own checks all passed,
// the areas it found and provided (cm²), so that the engineer sees why the two differ.
struct MethodOk {
    double asNec = 0, asReal = 0;
};
Check sectionNotCarried(double utilisation, std::optional<double> asCompat, std::optional<MethodOk> methodOk);
// The detailed section could not be built for strain compatibility (the reason).
Check sectionNotVerified(const std::string& reason);
// The final arrangement (cm): effective cover, nominal cover, bar and stirrup.
Check finalCoverBelowNominal(double cover, double nominalCover, double barDiameter, double stirrupDiameter);
Check finalCoverBelowBar(double barCover, double barDiameter);
Check finalBarAboveEighthOfSide(double barDiameter, double smallerSide);
Check finalStirrupTooThin(double stirrupDiameter, double minimumDiameter, double barDiameter);
Check finalStirrupSpacing(double spacing, double maximum, double barDiameter);
// A direction of a load case the detailed section does not carry (2014): the case,
// "h" or "b", its design forces (kgf, kgf·cm, γn and second order included).
Check directionNotCarried(const std::string& name, const char* direction, double nSd, double mSd, double utilisation);
// A negative moment (kgf·cm, γn not included) designed by its magnitude.
Check momentAsMagnitude(double md);
Check coverAggregate(double nominalCover, double aggregate);
Check coverBelowNominal(double effectiveCover, double nominalCover);
Check coverBelowBarDiameter(double barCover, double barDiameter);
} // namespace checks

// The limits that spacing messages name.
namespace limits {
inline constexpr std::string_view kFreeByAggregate = " 2,4 vezes o diâmetro máximo do agragado, fora das emendas";
inline constexpr std::string_view kFreeByBar = " 4 vezes o diâmetro da barra longitudinal";
inline constexpr std::string_view kAxisBySide = " 2 vezes a menor dimensão do trecho considerado";
inline constexpr std::string_view kAxisAbsolute = "máximo permitido";
inline constexpr std::string_view kFreeByAggregate2014 = " 1,2 vezes o diâmetro máximo do agregado";
inline constexpr std::string_view kFreeByBar2014 = " o diâmetro da barra longitudinal";
inline constexpr std::string_view kFreeAbsolute2014 = " 2 cm";
} // namespace limits

// The captions of the first button of the cover question.
inline constexpr std::string_view kUseMinimumCover = "&1 - Utilizar cobrimento mínimo";
inline constexpr std::string_view kRoundNominalCover = "&1 - Calcular cobrimento nominal múltiplo de 0,5";

// The notice of a search that found no arrangement.
inline constexpr std::string_view kNoArrangement =
    "Nenhum arranjo de armaduras pode ser usado para os esforços plicados";

} // namespace pilarix::engine
