#include "engine/clauses2014.h"

namespace pilarix::engine {

std::string_view clauseOf2014(CheckId id)
{
    switch (id) {
    case CheckId::FckBelowMinimum:
    case CheckId::FckAboveMaximum:
        return "Item 8.2.1 da ABNT NBR 6118:2014";
    case CheckId::WallColumn:
        return "Item 18.5 da ABNT NBR 6118:2014";
    case CheckId::BarAboveEighthOfSide:
    case CheckId::FinalBarAboveEighthOfSide:
        return "Item 18.4.2.1 da ABNT NBR 6118:2014";
    case CheckId::MaximumRatio:
    case CheckId::SectionOverloaded:
        return "Item 17.3.5.3.2 da ABNT NBR 6118:2014";
    case CheckId::PredefinedStirrupTooThin:
    case CheckId::FinalStirrupTooThin:
    case CheckId::FinalStirrupSpacing:
        return "Item 18.4.3 da ABNT NBR 6118:2014";
    case CheckId::FreeSpacingWidth:
    case CheckId::FreeSpacingDepth:
    case CheckId::AxisSpacingWidth:
    case CheckId::AxisSpacingDepth:
        return "Item 18.4.2.2 da ABNT NBR 6118:2014";
    case CheckId::CoverAggregate:
        return "Item 7.4.7.6 da ABNT NBR 6118:2014";
    case CheckId::AreaByStrainCompatibility:
    case CheckId::BeyondAnyArrangement:
    case CheckId::CaseNotCarried:
    case CheckId::SectionNotCarried:
        return "Item 17.2.2 da ABNT NBR 6118:2014";
    case CheckId::CoverBelowNominal:
    case CheckId::FinalCoverBelowNominal:
        return "Item 7.4.7.2 da ABNT NBR 6118:2014";
    case CheckId::CoverBelowBarDiameter:
    case CheckId::FinalCoverBelowBar:
        return "Item 7.4.7.5 da ABNT NBR 6118:2014";
    default:
        return {};
    }
}

Check with2014Clause(Check check)
{
    if (const std::string_view c = clauseOf2014(check.id); !c.empty())
        check.clause = c;
    return check;
}

Check fromCheck2014(const Check2014& check) { return {CheckId::Rule2014, check.text, check.clause, true}; }

CoverAnswer Questions2014::askCover(const CoverQuestion& question)
{
    CoverQuestion q = question;
    const CheckId id = q.rule == CoverRule::AggregateSize  ? CheckId::CoverAggregate
                       : q.rule == CoverRule::BelowNominal ? CheckId::CoverBelowNominal
                                                           : CheckId::CoverBelowBarDiameter;
    q.clause = clauseOf2014(id);
    return inner_.askCover(q);
}

} // namespace pilarix::engine
