#pragma once
// Cover of the reinforcement (NBR 6118, 7.4.7) and the corrections that move d'.
//
//   nominalCover(class, Δc)           the minimum cover of the class plus Δc
//   roundUpToHalf(c)                  covers are given to the site in steps of 0.5 cm
//   coverForAggregate(aggregate)      the nominal cover the largest aggregate asks for:
//                                     aggregate / 1.2, rounded up to 0.5 cm
//   coverForWholeInnerDepth(h, cnom)  the nominal cover enlarged until the inner depth of
//                                     the stirrup is a whole number of centimetres
//   roundedCover(x)                   a cover to four decimals, as covers are compared

#include "engine/options.h"

namespace pilarix::engine {

double nominalCover(ExposureClass exposure, double deltaC);
double roundUpToHalf(double cover);
double coverForAggregate(double aggregate);

struct WholeInnerDepth {
    double innerDepth = 0; // whole cm
    double cover = 0;
};
WholeInnerDepth coverForWholeInnerDepth(double depth, double nominalCover);

double roundedCover(double cover);

} // namespace pilarix::engine
