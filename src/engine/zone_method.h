#pragma once
// The method of solicitation zones over the method's variables: the strain field of
// a relative neutral-axis depth, the reference fields, the zone bounds, the zone and
// the reinforcement ratio. Used by design() (column.h) and by the passes of a
// whole calculation; not a public interface of the engine.
//
// A strain field is identified by βx = x/h from the most compressed face. The
// ultimate fields turn about three pivots (NBR 6118, 17.2.2): 10 per mille of
// lengthening at the farthest layer, 3.5 per mille of shortening at the compressed
// face, and 2 per mille at 3/7 of the depth when the whole section is shortened.
// A field βx and a ratio ρ balance (ν, μ) when
//   ν = η + ρ·σs,med/σcd                      (forces)
//   0.5·ν − μ = η' + ρ·σs,med·κ/σcd           (moments about the compressed face)

#include "engine/failure.h"
#include "engine/materials.h"
#include "engine/method_state.h"

namespace pilarix::engine::detail {

class ZoneMethod {
public:
    ZoneMethod(MethodState& s, const Steel& steel, double precision, int barsOnDepthFace, const ColumnSummary& summary)
        : s(s), steel_(steel), P(precision), nAltura_(barsOnDepthFace), summary_(summary)
    {
    }

    // ---- the strain field ----
    void layerStrains();                     // SEpSig11: ε and σ of every layer at βx
    void fieldFromNeutralAxis();             // SBxTeta07: εc and θ from βx, then η and η'
    void concreteResultant();                // SEta08: η (rewrites βx as εc/θ)
    void concreteMoment();                   // SEtalin09: η'
    void barResultant();                     // SKapa12: σs,med, its depth κ and λ
    void fieldFromLeastCompressedStrain();   // SEc1Bx18: the field of a fully shortened section

    // ---- zones ----
    void criticalForces();    // SNiCrit06
    void referenceFields();   // SConstZ10
    void zoneBoundMoments();  // SMiACEC13
    void concreteOnlyMoment();// SMiZero14: μ0
    void classifyZone();      // Szona15
    void reinforcementRatio();// SRO16

private:
    void criticalField();     // Critico21
    void marchMomentResidual();        // SProc_BK19
    void marchForceMomentResidual();   // SProc_AK20
    void marchLeastCompressedStrain(); // SProc_BC17
    // Each says whether it reached its field by a march.
    void zoneE();
    bool zoneC();
    bool zoneA();
    void checkEquilibrium();
    void uniformShortening();
    void ratioFromMoment();
    void ratioFromForce();

    // The fields and residuals the marches evaluate.
    static void fieldAtBetaX(ZoneMethod& m);
    static void fieldAtLeastStrain(ZoneMethod& m);
    static void concreteFieldAtBetaX(ZoneMethod& m);
    static void concreteFieldShortened(ZoneMethod& m);
    static double concreteResidual(ZoneMethod& m);
    static double momentResidual(ZoneMethod& m);
    static double forceMomentResidual(ZoneMethod& m);

    friend class March;

    MethodState& s;
    const Steel& steel_;
    const double P;
    const int nAltura_;
    const ColumnSummary& summary_;
};

} // namespace pilarix::engine::detail
