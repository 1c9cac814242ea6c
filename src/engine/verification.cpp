#include "engine/verification.h"

#include "base/calc_error.h"

namespace pilarix::engine {

std::optional<ReinforcedSection> detailedSection(const ColumnInput& in, const ColumnResult& r)
{
    if (!r.detailed || !r.bar || r.failure)
        return std::nullopt;
    try {
        return rectangularColumn(in.base, in.depth, r.design.dLinha, in.barsOnWidthFace, in.barsOnDepthFace,
                                 r.bar->barArea, r.design.concrete, r.design.steel);
    } catch (const CalcError&) {
        // A layout strain compatibility cannot take (a face of one bar, a d' past
        // mid-depth): there is nothing to verify.
        return std::nullopt;
    }
}

Verification verify(const ReinforcedSection& section, double nSd, double mSd, const VerificationOptions& options)
{
    Verification v;
    v.nSd = nSd;
    v.mSd = mSd;
    const AxialCapacity axial = axialCapacity(section);
    v.nRdMax = axial.nRdMax;
    v.nRdMin = axial.nRdMin;
    if (const auto m = momentCapacity(section, nSd))
        v.mRd = m->mRd;
    v.utilisation = utilisation(section, nSd, mSd).ratio;
    if (options.requiredArea)
        v.asCompat = requiredSteelArea(section, nSd, mSd);
    if (options.curve)
        for (const auto& p : interactionCurve(section).points)
            v.curve.emplace_back(p.n, p.m);
    return v;
}

std::optional<Verification> verify(const ColumnInput& in, const ColumnResult& r, const VerificationOptions& options)
{
    const auto section = detailedSection(in, r);
    if (!section)
        return std::nullopt;
    try {
        return verify(*section, in.Nd * r.design.gammaN, in.Md * r.design.gammaN, options);
    } catch (const CalcError&) {
        return std::nullopt;
    }
}

} // namespace pilarix::engine
