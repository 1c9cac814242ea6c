// The passes of a whole calculation: the design of the section, then the bar, the
// stirrup and the cover; where a cover correction moves d' the pass runs again from
// the design; then the steel limits, the spacing, the supplementary stirrups, the
// weight and the drawing. Every stage keeps the name the method gives it, for the
// messages of a calculation that cannot go on.

#include "engine/column.h"

#include "engine/arrangement_check.h"
#include "engine/bar_choice.h"
#include "engine/catalogue.h"
#include "engine/cover.h"
#include "engine/failure.h"
#include "engine/interaction.h"
#include "engine/spacing.h"
#include "engine/steel_limits.h"
#include "engine/stirrups.h"
#include "engine/supplementary_stirrups.h"
#include "engine/zone_method.h"

#include "base/calc_error.h"
#include "base/number_text.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace pilarix::engine {

std::string dLinhaText(double d)
{
    const double f = d - Int(d);
    return Str(Int(d)) + "." + Str(Int(f * 100000 * 10000 + 0.5) / 10000);
}

bool ColumnResult::ok() const
{
    return !failure && detailed && flag == ErrorFlag::None && carried && arrangementFailures == 0;
}

namespace {

// One calculation: the input, the method's variables, the questions, and what the
// passes have found so far.
class Passes {
public:
    Passes(const ColumnInput& in, MethodState& s, Memory& memory, Questions* questions,
           const CandidateStirrup* candidate)
        : in_(in), s(s), memory_(memory), questions_(questions), candidate_(candidate),
          method_(s, steel_, in.precision, in.barsOnDepthFace, summary_)
    {
        summary_ = {in.base, in.depth, in.barsOnWidthFace, static_cast<double>(in.barsOnDepthFace), 0,
                    in.Nd,   in.Md,    in.fck,             in.precision};
    }

    void run(ColumnResult& r);
    void runDesign(ColumnResult& r);
    // The texts the silent pass leaves to the end: nothing reads them in between.
    void writeDeferredTexts(ColumnResult& r);

private:
    bool silent() const { return candidate_ != nullptr; }
    void check(const char* stage)
    {
        summary_.dLinha = s.dLinha;
        checkFloatingPoint(stage, summary_);
    }
    void fail(ColumnResult& r, Check c);
    bool designPass(ColumnResult& r);
    void areaByStrainCompatibility(ColumnResult& r, bool zoneFound);
    void chooseBar(ColumnResult& r);
    void takeBar(ColumnResult& r, const BarChoice& b);
    void chooseStirrup(ColumnResult& r);
    void chooseStirrupByMode(ColumnResult& r);
    void checkCandidateStirrup();
    void checkCover(ColumnResult& r);
    void ask(ColumnResult& r, CoverRule rule, Check c, std::optional<std::string_view> caption);
    void correctCoverToNominal(ColumnResult& r);
    void rewriteDLinha(ColumnResult& r);
    void correctCoverToBar(ColumnResult& r);
    void limitSteel(ColumnResult& r);
    void checkSpacing(ColumnResult& r);
    void markTies();
    void finish(ColumnResult& r);
    // The verdict beyond the method's checks: the final arrangement as built, and the
    // detailed section under the design forces by strain compatibility.
    std::vector<Check> recheck() const;
    void checkFinalArrangement(ColumnResult& r);
    void checkCarried(ColumnResult& r);

    const ColumnInput& in_;
    MethodState& s;
    Memory& memory_;
    Questions* questions_;
    const CandidateStirrup* candidate_;
    Steel steel_;
    ColumnSummary summary_;
    detail::ZoneMethod method_;
    std::optional<std::string> typedText_; // d' as a correction rewrote it
    std::optional<double> correctedDLinha_; // the same, found from the cover
    std::optional<std::pair<double, double>> stirrupForText_;
    bool barTooSmall_ = false;
    bool barRechosen_ = false; // the minimum steel asked for a thicker bar after the cover stage
    StirrupRules rules_;
};

// A failed check of the window: the error state takes it and the front is told.
// The silent pass of the search only marks the calculation as failed.
void Passes::fail(ColumnResult& r, Check c)
{
    s.FlagErro = ErrorFlag::Failed;
    if (silent())
        return;
    s.MensagemErro = c.text;
    if (c.namesClause)
        s.ItemNorma = std::string(c.clause);
    r.checks.push_back(c);
    questions_->tell(r.checks.back());
}

bool Passes::designPass(ColumnResult& r)
{
    // d': typed, read back from the text a correction wrote; or found from the cover,
    // starting at 3 cm and kept as the correction set it on a repeated pass.
    if (in_.dLinha.automatic) {
        if (s.Recalcula == Recalculation::No)
            s.dLinha = 3.0;
    } else {
        s.dLinha = typedText_ ? Val(*typedText_) : in_.dLinha.typed;
    }
    check("dLinha01");

    s.fcd = in_.fck / in_.gammaC;
    s.SigCd = 0.85 * s.fcd;
    s.Ac = in_.depth * in_.base;
    s.MeiaAltura = in_.depth / 2;
    s.MeioD = 0.5;
    check("Programa0 (fcd, σcd)");

    steel_ = designSteel(in_.steel, in_.gammaS, in_.Es);
    s.fyk = steel_.fyk;
    s.fyd = steel_.fyd;
    s.EpYd = steel_.epsYd;
    // The steel law is probed at 2 per mille in the layer arrays, at the shared counter.
    s.Eps(s.Indice) = 2;
    s.Sig(s.Indice) = steelStress(steel_, 2);
    s.SigS2 = s.Sig(s.Indice);
    check("Aço04");

    s.Delta = s.Delta2 = s.DeltaD = s.dLinha / in_.depth;
    check("Programa0 (δ)");

    // The bar layers: one per bar of a depth face, the two outer ones holding a whole
    // width face, the inner ones one bar on each depth face; layer 1 the farthest
    // from the compressed face (depth h − d'), the last the nearest (depth d').
    const double nb = in_.barsOnWidthFace;
    const int na = in_.barsOnDepthFace;
    s.NBarrasTotal = CInt16(2 * (nb + na) - 4, "número total de barras");
    for (s.Indice = 1; s.Indice <= na; ++s.Indice)
        s.NBarCam(s.Indice - 1) = (s.Indice == 1 || s.Indice == na) ? nb : 2;
    for (s.Indice = 1; s.Indice <= na; ++s.Indice) {
        s.YCam(s.Indice - 1) = (in_.depth - s.dLinha) - (s.Indice - 1) * (in_.depth - 2 * s.dLinha) / (na - 1);
        s.YRel(s.Indice - 1) = s.YCam(s.Indice - 1) / in_.depth;
    }
    check("SArran1R03");

    const ColumnClass column = classifyColumn(in_.base, in_.depth);
    s.MenorDim = column.smallerSide;
    if (column.wall) {
        s.FlagErro = ErrorFlag::Wall;
        const Check c = checks::wallColumn(column.largerSide, column.smallerSide);
        s.MensagemErro = c.text;
        s.ItemNorma = std::string(c.clause);
        r.checks.push_back(c);
        if (!silent())
            questions_->tell(r.checks.back());
    }
    s.GamaN = in_.gammaN.value_or(column.gammaN);
    check("CeoficienteAdic25");
    if (s.FlagErro == ErrorFlag::Wall)
        return false;

    s.Ni = (in_.Nd * s.GamaN) / (s.Ac * s.SigCd);
    s.Mi = (in_.Md * s.GamaN) / (in_.depth * (s.Ac * s.SigCd));
    check("Programa0 (ν, μ)");
    method_.criticalForces();
    check("SNiCrit06");
    method_.referenceFields();
    check("SConstZ10");
    method_.zoneBoundMoments();
    check("SMiACEC13");
    bool zoneFound = false;
    try {
        method_.concreteOnlyMoment();
        check("SMiZero14");
        method_.classifyZone();
        zoneFound = true;
        check("Szona15");
        if (s.Ni == 0 && s.Mi == 0) {
            s.Rho = 0;
        } else {
            method_.reinforcementRatio();
            check("SRO16");
        }
    } catch (const MarchFailure&) {
        areaByStrainCompatibility(r, zoneFound);
    }

    s.AsNec = s.Ac * s.Rho;
    // The other direction of a 2014 design, or its minimum, may need more: the same
    // perimeter arrangement carries both.
    if (in_.requiredAreaAtLeast > s.AsNec) {
        s.AsNec = in_.requiredAreaAtLeast;
        s.Rho = s.AsNec / s.Ac;
    }
    s.AsNecCopia = s.AsNec;
    s.AsBarraD = s.AsNec / s.NBarrasTotal;
    s.AsNecBarra = s.AsNec / s.NBarrasTotal;
    for (long i = 1; i <= na; ++i)
        s.AsCam(i - 1) = s.AsNecBarra * s.NBarCam(i - 1);
    check("Programa0 (área por barra)");
    r.designed = true;
    return true;
}

// Where a march of the zones method cannot find the equilibrium of the section (a
// start field already past its root: zone E with a large δ, a low-yield steel), the
// required area is the one strain compatibility finds for the same layout, and the
// calculation goes on with it. Where not even a steel area equal to the concrete's
// carries the forces, no arrangement does, and the calculation stops there.
void Passes::areaByStrainCompatibility(ColumnResult& r, bool zoneFound)
{
    const double nSd = in_.Nd * s.GamaN;
    const double mSd = in_.Md * s.GamaN;
    const ReinforcedSection layout =
        rectangularColumn(in_.base, in_.depth, s.dLinha, in_.barsOnWidthFace, in_.barsOnDepthFace, 1.0,
                          designConcrete(in_.fck, in_.gammaC), steel_);
    const std::optional<double> area = requiredSteelArea(layout, nSd, mSd);
    if (!area)
        throw CalcError(checks::beyondAnyArrangement(nSd, mSd).text);
    s.Rho = *area / s.Ac;
    // The field of the equilibrium: the neutral axis of the ultimate plane the point
    // reaches, as a fraction of h (a fully shortened section as the method writes it).
    const Utilisation u = utilisation(withSteelArea(layout, *area), nSd, mSd);
    if (u.plane && u.plane->top != u.plane->bottom)
        s.BetaX = u.plane->top / (u.plane->top - u.plane->bottom);
    else
        s.BetaX = 10000;
    if (!zoneFound)
        s.Zona = Zone::None;
    if (!silent()) {
        r.checks.push_back(checks::areaByStrainCompatibility(s.Ni, s.Mi, *area));
        const Check& c = r.checks.back();
        s.MensagemErro = c.text;
        s.ItemNorma = std::string(c.clause);
        questions_->tell(c);
    }
    r.byStrainCompatibility = true;
    // The march's faults, if it had any, are behind: the area is the new one's.
    startFloatingPointWatch();
}

// The bar of the column: the counter of the catalogue ends on it.
void Passes::takeBar(ColumnResult& r, const BarChoice& b)
{
    r.bar = b;
    s.Indice = b.index;
    s.AsBarra = b.barArea;
    s.AsReal = b.providedArea;
    s.DiamLong = b.diameter;
    s.PesoLinearLong = b.massPerMetre;
}

// The thinnest allowed bar for the area required per bar, then the 1/8 rule. A bar
// the engineer fixed is taken as it is, and every rule still applies to it.
void Passes::chooseBar(ColumnResult& r)
{
    if (in_.fixedBarIndex != 0 && !silent()) {
        const Bar& fixed = bar(in_.fixedBarIndex);
        takeBar(r, {fixed.index, fixed.diameter, fixed.area, s.NBarrasTotal * fixed.area, fixed.mass});
        if (fixed.area < s.AsNecBarra)
            fail(r, checks::fixedBarBelowRequired(fixed.diameter, fixed.area, s.AsNecBarra));
        if (exceedsEighthOfSide(s.DiamLong, s.MenorDim))
            fail(r, checks::barAboveEighthOfSide(s.DiamLong, s.MenorDim));
        check("AsReal23");
        return;
    }
    const auto bar = smallestBar(s.AsNecBarra, s.NBarrasTotal, in_.maxBarIndex);
    if (!bar) {
        s.AsBarra = 0;
        s.AsReal = 0;
        barTooSmall_ = true;
        fail(r, checks::barBelowRequired());
        check("AsReal23");
        return;
    }
    takeBar(r, *bar);
    if (exceedsEighthOfSide(s.DiamLong, s.MenorDim))
        fail(r, silent() ? Check{CheckId::BarAboveEighthOfSide, {}, {}, true}
                         : checks::barAboveEighthOfSide(s.DiamLong, s.MenorDim));
    check("AsReal23");
}

void Passes::chooseStirrup(ColumnResult& r)
{
    rules_ = stirrupRules(s.DiamLong, s.MenorDim, in_.steel, in_.rules);
    s.DiamEstriboMin = rules_.minimumDiameter;
    s.IndiceEstriboMin = rules_.minimumIndex;
    s.Indice = rules_.minimumIndex;
    const Bar& minimum = bar(rules_.minimumIndex);
    s.DiamEstribo = minimum.diameter;
    s.PesoEstribo = minimum.mass;
    s.EspEstribo = rules_.spacing;
    s.EspEstriboEsc = s.EspEstribo;
    chooseStirrupByMode(r);
    s.TextoEstribo = stirrupText(s.DiamEstribo, s.EspEstribo);
    check("Estribo28");
}

void Passes::chooseStirrupByMode(ColumnResult& r)
{
    int chosen = 0; // a catalogue index chosen here, to be staged
    if (in_.stirrupMode == StirrupMode::Economic) {
        // Without the same-steel rule the thinnest allowed stirrup at the normal spacing.
        if (!in_.stirrupsOfBarSteel)
            return;
        chosen = leastSteelPerMetre(rules_);
    } else if (in_.stirrupMode == StirrupMode::Predefined) {
        const PredefinedStirrup pre = predefinedStirrup(in_.predefinedStirrup);
        if (pre.diameter >= s.DiamEstribo) {
            s.DiamEstribo = pre.diameter;
            s.PesoEstribo = pre.mass;
            return;
        }
        if (!in_.stirrupsOfBarSteel) {
            // The calculation goes on with the minimum; the error flag is not touched.
            const Check c = checks::predefinedStirrupTooThin(s.DiamEstribo);
            s.MensagemErro = c.text;
            s.ItemNorma = std::string(c.clause);
            r.checks.push_back(c);
            questions_->tell(r.checks.back());
            return;
        }
        s.DiamEstribo = pre.diameter;
        s.PesoEstribo = pre.mass;
        s.EspEstribo = rules_.sameSteelSpacing.at(static_cast<std::size_t>(pre.index));
        return;
    } else if (in_.typedStirrup) {
        // The engineer's stirrup, in every pass: the rules are the re-check's to tell.
        int k = 1;
        while (k < kLastStirrupBar && bar(k).diameter < in_.typedStirrup->diameter - 1e-9)
            ++k;
        const Bar& typed = bar(k);
        s.Indice = typed.index;
        s.DiamEstriboEsc = typed.diameter;
        s.PesoEstriboEsc = typed.mass;
        s.EspEstriboEsc = in_.typedStirrup->spacing;
    } else if (rules_.minimumIndex == 1) {
        // 5 mm is already allowed: nothing to choose.
        s.DiamEstriboEsc = bar(1).diameter;
        s.PesoEstriboEsc = bar(1).mass;
        s.EspEstriboEsc = s.EspEstribo;
    } else if (s.Recalcula != Recalculation::Yes) {
        chosen = stirrupFromAnswer(rules_, questions_->chooseStirrup(stirrupQuestion(rules_)));
    } else {
        // A repeated pass asks nothing: it keeps the stirrup chosen in the first pass,
        // and a thinner one of the bars' own steel keeps its own spacing, as the first
        // pass gave it. Otherwise a column whose cover was corrected would get another
        // stirrup than the same column opened with the corrected d'.
        for (int k = 1; k < rules_.minimumIndex; ++k)
            if (bar(k).diameter == s.DiamEstriboEsc)
                s.EspEstriboEsc = rules_.sameSteelSpacing.at(static_cast<std::size_t>(k));
    }
    if (chosen != 0) {
        s.Indice = chosen;
        s.DiamEstriboEsc = bar(chosen).diameter;
        s.PesoEstriboEsc = bar(chosen).mass;
        if (chosen < rules_.minimumIndex)
            s.EspEstriboEsc = rules_.sameSteelSpacing.at(static_cast<std::size_t>(chosen));
    }
    s.DiamEstribo = s.DiamEstriboEsc;
    s.PesoEstribo = s.PesoEstriboEsc;
    s.EspEstribo = s.EspEstriboEsc;
}

// The search has set the stirrup; only its spacing is checked here, and a stirrup
// below the minimum passes only under the same-steel rule.
void Passes::checkCandidateStirrup()
{
    rules_ = stirrupRules(s.DiamLong, s.MenorDim, in_.steel, in_.rules);
    s.DiamEstriboMin = rules_.minimumDiameter;
    s.IndiceEstriboMin = rules_.minimumIndex;
    s.Indice = rules_.minimumIndex;
    s.EspEstribo = rules_.spacing;
    int k = 1;
    while (k < kBarCount && bar(k).diameter < s.DiamEstribo)
        ++k;
    if (k < rules_.minimumIndex) {
        if (in_.stirrupsOfBarSteel)
            s.EspEstribo = rules_.sameSteelSpacing.at(static_cast<std::size_t>(k));
        else
            s.FlagErro = ErrorFlag::Failed;
    }
    stirrupForText_ = {s.DiamEstribo, s.EspEstribo};
    check("Estribo28");
}

void Passes::ask(ColumnResult& r, CoverRule rule, Check c, std::optional<std::string_view> caption)
{
    r.checks.push_back(c);
    const CoverAnswer a = questions_->askCover({rule, c.text, c.clause, caption});
    if (a == CoverAnswer::Ignore) {
        s.FlagErro = ErrorFlag::Failed;
        return;
    }
    switch (rule) {
    case CoverRule::AggregateSize:
        s.CobNominal = coverForAggregate(in_.aggregate);
        break;
    case CoverRule::BelowNominal:
        correctCoverToNominal(r);
        break;
    case CoverRule::BelowBarDiameter:
        correctCoverToBar(r);
        break;
    }
}

// A corrected d' is written back into the typed box; a typed d' is read back from
// that text on the next pass, so it is composed at once.
void Passes::rewriteDLinha(ColumnResult& r)
{
    if (in_.dLinha.automatic) {
        correctedDLinha_ = s.dLinha;
        return;
    }
    typedText_ = dLinhaText(s.dLinha);
    r.dLinhaText = typedText_;
}

void Passes::writeDeferredTexts(ColumnResult& r)
{
    if (correctedDLinha_)
        r.dLinhaText = dLinhaText(*correctedDLinha_);
    if (stirrupForText_)
        s.TextoEstribo = stirrupText(stirrupForText_->first, stirrupForText_->second);
}

// The nominal cover enlarged to a whole inner depth of the stirrup; d' follows.
void Passes::correctCoverToNominal(ColumnResult& r)
{
    const WholeInnerDepth w = coverForWholeInnerDepth(in_.depth, s.CobNominal);
    s.AlturaInterna = w.innerDepth;
    s.CobEfetivo = w.cover;
    s.dLinha = s.DiamEstribo + s.DiamLong / 2 + s.CobEfetivo;
    rewriteDLinha(r);
    s.Recalcula = Recalculation::Yes;
}

// NBR 6118, 7.4.7.5: the cover of a longitudinal bar is at least its diameter.
void Passes::correctCoverToBar(ColumnResult& r)
{
    s.CobEfetivo = s.DiamLong - s.DiamEstribo;
    s.CobNominal = s.CobEfetivo;
    s.CobEfetivo = roundUpToHalf(s.CobEfetivo);
    const double d = s.DiamEstribo + s.DiamLong / 2 + s.CobEfetivo;
    if (s.dLinha < d) {
        s.dLinha = d;
        rewriteDLinha(r);
        s.Recalcula = Recalculation::Yes;
    }
}

// The window asks before correcting; the search and a ticked "correct without
// asking" correct at once, as the first button would.
void Passes::checkCover(ColumnResult& r)
{
    if (s.Recalcula != Recalculation::Yes) {
        s.DeltaC = in_.deltaC;
        s.CobNominal = nominalCover(in_.exposure, s.DeltaC);
        if (in_.aggregate > 1.2 * s.CobNominal) {
            if (silent())
                s.CobNominal = coverForAggregate(in_.aggregate);
            else
                ask(r, CoverRule::AggregateSize, checks::coverAggregate(s.CobNominal, in_.aggregate),
                    kRoundNominalCover);
        }
    }
    s.Recalcula = Recalculation::No;

    const bool correct = silent() || in_.correctCoverWithoutAsking;
    s.CobEfetivo = s.dLinha - s.DiamEstribo - s.DiamLong / 2;
    if (roundedCover(s.CobNominal) > roundedCover(s.CobEfetivo)) {
        if (correct)
            correctCoverToNominal(r);
        else
            ask(r, CoverRule::BelowNominal, checks::coverBelowNominal(s.CobEfetivo, s.CobNominal), kUseMinimumCover);
    }
    if (roundedCover(s.CobEfetivo + s.DiamEstribo) < roundedCover(s.DiamLong)) {
        if (correct)
            correctCoverToBar(r);
        else
            ask(r, CoverRule::BelowBarDiameter, checks::coverBelowBarDiameter(s.CobEfetivo + s.DiamEstribo, s.DiamLong),
                std::nullopt);
    }

    const HookAllowances hooks = hookAllowances(s.DiamEstribo, in_.hook);
    s.ComprGancho = hooks.stirrup;
    s.ComprGanchoSup = hooks.tie;
    s.BaseEstribo = in_.base - 2 * s.CobEfetivo;
    s.AlturaEstribo = in_.depth - 2 * s.CobEfetivo;
    s.ComprEstribo = 2 * (s.BaseEstribo + s.AlturaEstribo) + s.ComprGancho;
    check("Cobrimento27");
}

// Minimum and maximum steel; below the minimum the bar is chosen again for it.
void Passes::limitSteel(ColumnResult& r)
{
    // 2014 takes the minimum from the design force with γn (17.3.5.3.1).
    const SteelLimits l =
        steelLimits(in_.rules == RuleSet::Nbr2014 ? in_.Nd * s.GamaN : in_.Nd, s.fyd, s.Ac, s.NBarrasTotal);
    s.AsMin = l.asMin;
    s.AsMinBarra = l.asMinPerBar;
    s.AsMax = l.asMax;
    if (s.AsReal < s.AsMin && in_.fixedBarIndex != 0 && !silent()) {
        fail(r, checks::fixedBarBelowMinimum(s.DiamLong, s.AsReal, s.AsMin));
    } else if (s.AsReal < s.AsMin) {
        s.AsNec = s.AsMin;
        s.AsNecBarra = s.AsNec / s.NBarrasTotal;
        if (const auto b = smallestBar(s.AsNecBarra, s.NBarrasTotal, in_.maxBarIndex)) {
            // The 1/8 rule is not checked again. Not a message: it tells that the bar
            // was chosen again, and clears an earlier failure.
            takeBar(r, *b);
            barRechosen_ = true;
            s.MensagemErro = "voltar";
            s.FlagErro = ErrorFlag::None;
        } else {
            fail(r, checks::minimumRatioNeedsLargerBar());
        }
    }
    if (s.AsReal > s.AsMax) {
        if (silent()) {
            s.FlagErro = ErrorFlag::Failed;
        } else {
            const Check c = checks::maximumRatio(s.AsReal, s.AsMax);
            s.FlagErro = ErrorFlag::Failed;
            s.MensagemErro = c.text;
            s.ItemNorma = std::string(c.clause);
            r.checks.push_back(c);
            questions_->tell(r.checks.back());
        }
    }
    check("AsMinMax24");
}

void Passes::checkSpacing(ColumnResult& r)
{
    const SpacingCheck c = engine::checkSpacing(in_.base, in_.depth, s.dLinha, in_.barsOnWidthFace,
                                                in_.barsOnDepthFace, s.DiamLong, in_.aggregate, s.MenorDim, !silent(),
                                                in_.rules);
    s.EspLivreH = c.values.freeWidth;
    s.EspLivreV = c.values.freeDepth;
    s.EspEixoH = c.values.axisWidth;
    s.EspEixoV = c.values.axisDepth;
    s.EspLivreMin = c.values.minimumFree;
    s.EspEixoMax = c.values.maximumAxis;
    s.TextoLimite = std::string(c.axisLimit);
    for (const Check& f : c.failures)
        fail(r, f);
    check("Espaçamento26");
}

void Passes::markTies()
{
    s.NSupH = detail::markFaceTies(in_.base, s.dLinha, in_.barsOnWidthFace, s.DiamEstribo, s.EspEixoH, s.nMeioH,
                                   s.SupH, s.Indice);
    s.EspSupH = s.EspEixoH;
    check("EstriboSuplementarH29");
    s.NSupV = detail::markFaceTies(in_.depth, s.dLinha, in_.barsOnDepthFace, s.DiamEstribo, s.EspEixoV, s.nMeioV,
                                   s.SupV, s.Indice);
    s.EspSupV = s.EspEixoV;
    check("EstriboSuplementarV30");
}

void Passes::run(ColumnResult& r)
{
    s.Recalcula = Recalculation::No;
    for (int pass = 1;; ++pass) {
        if (pass > kPassCap)
            throw CalcError("A correção do cobrimento pediu um novo cálculo mais de " + std::to_string(kPassCap)
                            + " vezes sem chegar a um d' estável (d' = " + Str(s.dLinha) + " cm). Dados: "
                            + describe(summary_) + ".");
        r.passes = pass;
        s.MensagemErro.clear();
        if (s.Recalcula != Recalculation::Yes)
            s.FlagErro = ErrorFlag::None;
        // Zone "O" needs no search and must give no steel, not a ratio left over
        // from an earlier calculation.
        s.Rho = 0;
        if (!designPass(r))
            return;

        if (!silent()) {
            // A section that needs more steel than it may hold says so first, before
            // the bar, the stirrup and the cover have anything to say about it.
            if (const double asMax = steelLimits(in_.Nd, s.fyd, s.Ac, s.NBarrasTotal).asMax; s.AsNec > asMax) {
                fail(r, checks::sectionOverloaded(s.AsNec, asMax));
                return;
            }
            chooseBar(r);
            if (barTooSmall_)
                return;
            chooseStirrup(r);
            checkCover(r);
            if (s.Recalcula == Recalculation::Yes)
                continue;
            limitSteel(r);
            checkSpacing(r);
            markTies();
            s.Excesso = 100 * (s.AsReal - s.AsNec) / s.AsReal;
            check("Programa0 (excesso de aço)");
            s.PesoLong = s.NBarrasTotal * s.PesoLinearLong * in_.length / 100;
            check("Peso29");
            finish(r);
            checkFinalArrangement(r);
            checkCarried(r);
            return;
        }

        chooseBar(r);
        if (s.FlagErro == ErrorFlag::Failed)
            return;
        checkCandidateStirrup();
        if (s.FlagErro == ErrorFlag::Failed)
            return;
        checkCover(r);
        if (s.Recalcula == Recalculation::Yes)
            continue;
        limitSteel(r);
        if (s.FlagErro != ErrorFlag::Failed)
            checkSpacing(r);
        if (s.FlagErro != ErrorFlag::Failed) {
            markTies();
            s.PesoLong = s.NBarrasTotal * s.PesoLinearLong * in_.length / 100;
            check("Peso29");
            r.passedSearch = recheck().empty();
        }
        return;
    }
}

void Passes::runDesign(ColumnResult& r)
{
    s.Recalcula = Recalculation::No;
    r.passes = 1;
    s.MensagemErro.clear();
    s.FlagErro = ErrorFlag::None;
    s.Rho = 0;
    designPass(r);
}

void Passes::finish(ColumnResult& r)
{
    r.detailed = true;
    DetailedSection d;
    d.width = in_.base;
    d.depth = in_.depth;
    d.dLinha = s.dLinha;
    d.barsOnWidthFace = in_.barsOnWidthFace;
    d.barsOnDepthFace = in_.barsOnDepthFace;
    d.totalBars = s.NBarrasTotal;
    d.barDiameter = s.DiamLong;
    d.stirrupDiameter = s.DiamEstribo;
    d.stirrupSpacing = s.EspEstribo;
    d.cover = s.CobEfetivo;
    d.hook = in_.hook;
    d.hookLength = s.ComprGancho / 2;
    d.tieHookLength = s.ComprGanchoSup / 2;
    for (long i = 1; i <= in_.barsOnWidthFace && i <= 500; ++i)
        d.tiesAcrossWidth.push_back(s.SupH(i) == TieFlag::Tie);
    for (long j = 1; j <= in_.barsOnDepthFace && j <= 500; ++j)
        d.tiesAcrossDepth.push_back(s.SupV(j) == TieFlag::Tie);
    r.geometry = sectionGeometry(d);
    check("Desenha35");
}

std::vector<Check> Passes::recheck() const
{
    FinalArrangement a;
    a.base = in_.base;
    a.depth = in_.depth;
    a.dLinha = s.dLinha;
    a.barsOnWidthFace = in_.barsOnWidthFace;
    a.barsOnDepthFace = in_.barsOnDepthFace;
    a.barDiameter = s.DiamLong;
    a.stirrupDiameter = s.DiamEstribo;
    a.stirrupSpacing = s.EspEstribo;
    a.nominalCover = s.CobNominal;
    a.aggregate = in_.aggregate;
    a.steel = in_.steel;
    a.rules = in_.rules;
    // A thinner stirrup at its own spacing is the same-steel rule: ticked, or chosen
    // by the engineer in "Escolha dos estribos", which offers it on that condition.
    a.stirrupsOfBarSteel =
        in_.stirrupsOfBarSteel || (!silent() && in_.stirrupMode == StirrupMode::Manual);
    return recheckArrangement(a);
}

namespace {
// The check of the passes that stands for the same rule of the final arrangement.
std::optional<CheckId> ruleOfThePasses(CheckId id)
{
    switch (id) {
    case CheckId::FinalCoverBelowNominal:
        return CheckId::CoverBelowNominal;
    case CheckId::FinalCoverBelowBar:
        return CheckId::CoverBelowBarDiameter;
    case CheckId::FinalBarAboveEighthOfSide:
        return CheckId::BarAboveEighthOfSide;
    default:
        return std::nullopt;
    }
}

bool isSpacingRule(CheckId id)
{
    return id == CheckId::FreeSpacingWidth || id == CheckId::FreeSpacingDepth || id == CheckId::AxisSpacingWidth
           || id == CheckId::AxisSpacingDepth;
}
} // namespace

// A rule the passes already told about the same bar is not told twice; one they
// checked with the bar the minimum steel later replaced is told again, for the bar
// that is built. The spacing is always checked with the final bar.
void Passes::checkFinalArrangement(ColumnResult& r)
{
    for (const Check& c : recheck()) {
        const auto same = isSpacingRule(c.id) ? std::optional<CheckId>(c.id) : ruleOfThePasses(c.id);
        const bool told = same && (isSpacingRule(c.id) || !barRechosen_)
                          && std::any_of(r.checks.begin(), r.checks.end(), [&](const Check& k) { return k.id == *same; });
        ++r.arrangementFailures;
        if (told)
            continue;
        r.checks.push_back(c);
        questions_->tell(r.checks.back());
    }
}

// Strain compatibility of the detailed section under the forces it was designed
// for: the verdict holds only where it carries them.
void Passes::checkCarried(ColumnResult& r)
{
    const double nSd = in_.Nd * s.GamaN;
    const double mSd = in_.Md * s.GamaN;
    try {
        const Concrete concrete = designConcrete(in_.fck, in_.gammaC);
        const ReinforcedSection detailed = rectangularColumn(in_.base, in_.depth, s.dLinha, in_.barsOnWidthFace,
                                                             in_.barsOnDepthFace, s.AsBarra, concrete, steel_);
        r.utilisation = utilisation(detailed, nSd, mSd).ratio;
        if (r.utilisation <= 1) {
            startFloatingPointWatch();
            return;
        }
        const ReinforcedSection layout = rectangularColumn(in_.base, in_.depth, s.dLinha, in_.barsOnWidthFace,
                                                           in_.barsOnDepthFace, 1.0, concrete, steel_);
        const std::optional<double> asCompat = requiredSteelArea(layout, nSd, mSd);
        std::optional<checks::MethodOk> methodOk;
        if (s.FlagErro == ErrorFlag::None)
            methodOk = checks::MethodOk{s.AsNec, s.AsReal};
        r.checks.push_back(checks::sectionNotCarried(r.utilisation, asCompat, methodOk));
    } catch (const CalcError& e) {
        r.checks.push_back(checks::sectionNotVerified(e.what()));
    }
    r.carried = false;
    questions_->tell(r.checks.back());
    // Strain compatibility's own arithmetic is not the method's: its faults are not
    // the calculation's.
    startFloatingPointWatch();
}

// The results of the calculation as its variables hold them.
void collect(const MethodState& s, ColumnResult& r, const ColumnInput& in)
{
    if (!r.designed)
        return;
    auto& d = r.design;
    d.concrete = designConcrete(in.fck, in.gammaC);
    d.steel = designSteel(in.steel, in.gammaS, in.Es);
    d.dLinha = s.dLinha;
    d.delta = s.Delta;
    d.smallerSide = s.MenorDim;
    d.gammaN = s.GamaN;
    d.nu = s.Ni;
    d.mu = s.Mi;
    d.c1 = {s.BetaXC1, s.EtaC1, s.EtaLinC1, s.KapaC1, s.LambdaC1};
    d.c2 = {s.BetaXC2, s.EtaC2, s.EtaLinC2, s.KapaC2, s.LambdaC2};
    d.a = {s.BetaXA, s.EtaA, s.EtaLinA, s.KapaA, s.LambdaA};
    d.e = {s.BetaXE, s.EtaE, s.EtaLinE, s.KapaE, s.LambdaE};
    d.niCrit = s.NiCrit;
    d.mi0 = s.Mi0;
    d.miA = s.MiA;
    d.miE = s.MiE;
    d.miC = s.MiC;
    d.miC1 = s.MiC1;
    d.zone = s.Zona;
    d.betaX = s.BetaX;
    d.rho = s.Rho;
    d.asNec = s.AsNec;
    d.totalBars = s.NBarrasTotal;
    if (r.bar)
        r.bar = BarChoice{r.bar->index, s.DiamLong, s.AsBarra, s.AsReal, s.PesoLinearLong};
    r.stirrup = {s.DiamEstribo, s.EspEstribo, s.PesoEstribo, s.DiamEstriboMin, s.ComprGancho, s.ComprGanchoSup,
                 s.TextoEstribo};
    r.cover = {s.CobNominal, s.CobEfetivo, s.BaseEstribo, s.AlturaEstribo, s.ComprEstribo};
    r.asMin = s.AsMin;
    r.asMax = s.AsMax;
    r.spacing = {s.EspLivreH, s.EspLivreV, s.EspEixoH, s.EspEixoV, s.EspLivreMin, s.EspEixoMax};
    r.tiesAcrossWidth = static_cast<int>(s.NSupH);
    r.tiesAcrossDepth = static_cast<int>(s.NSupV);
    r.excess = s.Excesso;
    r.steelWeight = s.PesoLong;
}

ColumnResult run(const ColumnInput& given, Questions* questions, Memory& memory, MethodState& s,
                 const CandidateStirrup* candidate, bool designOnly = false)
{
    ColumnResult r;
    // The section is symmetric about both axes: a moment of either sign needs the
    // same steel, and the method is written for a positive one.
    ColumnInput in = given;
    if (in.Md < 0) {
        in.Md = -in.Md;
        r.momentAsMagnitude = true;
        if (questions && !candidate && !designOnly) {
            r.checks.push_back(checks::momentAsMagnitude(given.Md));
            questions->tell(r.checks.back());
        }
    }
    // What the method carries from the calculation before.
    s.Mi0 = memory.mu0;
    s.Lambda = memory.lambda;
    s.DiamEstriboEsc = memory.stirrup.diameter;
    s.PesoEstriboEsc = memory.stirrup.mass;
    if (candidate) {
        s.DiamEstribo = candidate->diameter;
        s.PesoEstribo = candidate->mass;
    }
    Passes passes(in, s, memory, questions, candidate);
    startFloatingPointWatch();
    try {
        if (designOnly)
            passes.runDesign(r);
        else
            passes.run(r);
    } catch (const CalcError& e) {
        r.failure = e.what();
    }
    passes.writeDeferredTexts(r);
    memory = {s.Mi0, s.Lambda, {s.DiamEstriboEsc, s.PesoEstriboEsc}};
    r.flag = s.FlagErro;
    // The search reads only whether the candidate passed; the rest is the state's.
    if (!candidate)
        collect(s, r, in);
    if (r.failure) {
        r.detailed = false;
        r.geometry.reset();
    }
    return r;
}

} // namespace

ColumnResult calculate(const ColumnInput& input, Questions& questions, Memory& memory, MethodState& state)
{
    return run(input, &questions, memory, state, nullptr);
}

ColumnResult calculate(const ColumnInput& input, Questions& questions, Memory& memory)
{
    MethodState state;
    return calculate(input, questions, memory, state);
}

ColumnResult design(const ColumnInput& input, Memory& memory)
{
    MethodState state;
    FixedAnswers quiet;
    return run(input, &quiet, memory, state, nullptr, true);
}

ColumnResult calculateCandidate(const ColumnInput& input, const CandidateStirrup& stirrup, Memory& memory,
                                MethodState& state)
{
    return run(input, nullptr, memory, state, &stirrup);
}

} // namespace pilarix::engine
