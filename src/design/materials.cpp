// Steel and concrete laws: design yield stress and strain, and the design stress of the steel for a strain.

#include "driver/program.h"

#include <cmath>

namespace pilarix {

namespace {
// Cold-worked steel (class B) has no yield plateau at the proportional limit: its
// curve bends between 0.7 fyd and fyd and is told apart by the letter of its class.
bool classeB(const std::string& aco)
{
    // The letter first: the stress of every bar of every field asks this.
    return !aco.empty() && aco.back() == 'B' && (aco == "Aço CA-25B" || aco == "Aço CA-50B" || aco == "Aço CA-60B");
}
} // namespace

void Program::Aço04()
{
    const std::string& aco = Form1.Combo1.Text;
    if (aco == "Aço CA-25A" || aco == "Aço CA-25B")
        fyk = 2500;
    if (aco == "Aço CA-50A" || aco == "Aço CA-50B")
        fyk = 5000;
    if (aco == "Aço CA-60A" || aco == "Aço CA-60B")
        fyk = 6000;

    fyd = fyk / GamaS;

    // The conventional 2 per mille of permanent strain at the yield of cold-worked
    // steel (NBR 6118, 8.3.6).
    if (classeB(aco))
        EpYd = 2 + (fyd * 1000) / Es;
    else
        EpYd = (fyd * 1000) / Es;

    // The steel stress of a uniformly shortened section: the concrete fails at 2 per
    // mille, and a class B bar there may still be on its curve, below fyd.
    Eps(Indice) = 2;
    SigSd05();
    SigS2 = Sig(Indice);
}

void Program::SigSd05()
{
    const double e = Eps(Indice);
    const double ae = std::fabs(e);
    double sigma;

    if (classeB(Form1.Combo1.Text)) {
        const double ep = 0.7 * fyd * 1000 / Es; // proportional limit, per mille
        if (ae <= ep) {
            sigma = ae * Es / 1000;
        } else if (ae >= EpYd) {
            sigma = fyd;
        } else {
            // Larger root of eps = sigma/Es + (sigma/fyd - 0.7)^2 / 45. The constant
            // term is taken to single precision, as the stress tables of the program
            // were always computed: the curve stays bit for bit the same.
            const double A = 1 / (45 * (fyd * fyd));
            const double B = 1.4 / (45 * fyd) - 1 / Es;
            const double C = static_cast<float>(0.49 / 45 - ae / 1000);
            const double D = std::sqrt(B * B - 4 * A * C);
            sigma = (B + D) / (2 * A);
        }
    } else if (ae >= EpYd) {
        sigma = fyd;
    } else {
        sigma = ae * Es / 1000;
    }

    // Tension and compression follow the same law.
    const double sinal = (e > 0) ? 1.0 : (e < 0) ? -1.0 : 0.0;
    Sig(Indice) = sinal * sigma;
}

} // namespace pilarix
