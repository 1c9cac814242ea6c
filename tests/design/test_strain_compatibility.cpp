// The required steel checked against a calculation that shares nothing with the
// method of solicitation zones: plain strain compatibility over the whole ultimate
// domain (pivots 10 ‰ at the farthest layer, 3.5 ‰ at the top, 2 ‰ at 3/7 h), the
// parabola-rectangle concrete integrated numerically, and a bisection on the ratio.
// Wherever the zone method converges, its ratio must agree with this one.

#include "driver/program.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <vector>

using namespace pilarix;

namespace {

struct Section {
    double delta = 0;
    std::vector<double> y;     // layer depths / h
    std::vector<double> share; // bars of the layer / all bars
    double fyd = 0, Es = 0, sigcd = 0;
    bool classB = false;
};

double steelStress(const Section& s, double eps) // eps in per mille, shortening positive
{
    const double a = std::fabs(eps);
    double sigma;
    if (!s.classB) {
        sigma = std::min(a * s.Es / 1000, s.fyd);
    } else {
        const double ep = 0.7 * s.fyd * 1000 / s.Es;
        const double epyd = 2 + s.fyd * 1000 / s.Es;
        if (a <= ep)
            sigma = a * s.Es / 1000;
        else if (a >= epyd)
            sigma = s.fyd;
        else { // invert eps = sigma/Es + (sigma/fyd - 0.7)^2 / 45 by bisection
            double lo = 0.7 * s.fyd, hi = s.fyd;
            for (int i = 0; i < 200; ++i) {
                const double mid = (lo + hi) / 2;
                const double e = 1000 * (mid / s.Es + std::pow(mid / s.fyd - 0.7, 2) / 45);
                (e < a ? lo : hi) = mid;
            }
            sigma = (lo + hi) / 2;
        }
    }
    return eps < 0 ? -sigma : sigma;
}

double concrete(double eps) // sigma_c / sigma_cd
{
    if (eps <= 0)
        return 0;
    if (eps >= 2)
        return 1;
    return eps - eps * eps / 4;
}

// Strain at the top and gradient over h for the field parameter t in [0, 3]:
// [0,1] rotation about 10 per mille at depth 1 - delta, [1,2] about 3.5 per mille at the
// top, [2,3] about 2 per mille at depth 3/7.
void field(const Section& s, double t, double& epsTop, double& theta)
{
    const double L = 3.5 * (1 - s.delta) / 13.5;
    if (t <= 1) {
        epsTop = -10 + 13.5 * t;
        theta = (epsTop + 10) / (1 - s.delta);
    } else if (t <= 2) {
        const double bx = L + (1 - L) * (t - 1);
        epsTop = 3.5;
        theta = 3.5 / bx;
    } else {
        const double e = 2 * (t - 2); // strain at the bottom face
        theta = 7 * (2 - e) / 4;
        epsTop = 2 + theta * 3 / 7;
    }
}

// Reduced force and moment (about mid-height) of the section with ratio rho.
void resultants(const Section& s, double rho, double t, double& nu, double& mu)
{
    double epsTop, theta;
    field(s, t, epsTop, theta);
    constexpr int strips = 1000; // Simpson over the depth
    double n = 0, m = 0;
    for (int i = 0; i <= strips; ++i) {
        const double y = static_cast<double>(i) / strips;
        const double w = (i == 0 || i == strips) ? 1 : (i % 2 ? 4 : 2);
        const double sc = concrete(epsTop - theta * y);
        n += w * sc;
        m += w * sc * (0.5 - y);
    }
    n /= 3.0 * strips;
    m /= 3.0 * strips;
    for (std::size_t i = 0; i < s.y.size(); ++i) {
        const double f = rho * s.share[i] * steelStress(s, epsTop - theta * s.y[i]) / s.sigcd;
        n += f;
        m += f * (0.5 - s.y[i]);
    }
    nu = n;
    mu = m;
}

// The moment the section with ratio rho carries under nu; nothing when no
// admissible field carries nu.
std::optional<double> capacity(const Section& s, double rho, double nu)
{
    double n0, m0, n3, m3;
    resultants(s, rho, 0, n0, m0);
    resultants(s, rho, 3, n3, m3);
    if (nu < n0 || nu > n3)
        return std::nullopt;
    double lo = 0, hi = 3;
    for (int i = 0; i < 60; ++i) {
        const double mid = (lo + hi) / 2;
        double n, m;
        resultants(s, rho, mid, n, m);
        (n < nu ? lo : hi) = mid;
    }
    double n, m;
    resultants(s, rho, (lo + hi) / 2, n, m);
    return m;
}

double requiredRatio(const Section& s, double nu, double mu)
{
    auto enough = [&](double rho) {
        const auto m = capacity(s, rho, nu);
        return m && *m >= mu;
    };
    if (enough(0))
        return 0;
    double lo = 0, hi = 0.5;
    for (int i = 0; i < 45; ++i) {
        const double mid = (lo + hi) / 2;
        (enough(mid) ? hi : lo) = mid;
    }
    return hi;
}

struct Case {
    const char* b;
    const char* h;
    const char* nb;
    const char* nh;
    const char* nd; // kN
    const char* md; // kN.cm
    const char* steel;
    const char* dl;
};

} // namespace

TEST(StrainCompatibility, RequiredSteelAgreesWithAnIndependentCalculation)
{
    const std::vector<Case> cases{
        {"20", "50", "2", "4", "400", "10000", "Aço CA-50A", "4"},
        {"20", "50", "2", "4", "400", "2000", "Aço CA-50A", "4"},
        {"20", "50", "2", "4", "1500", "5000", "Aço CA-50A", "4"},
        {"20", "50", "2", "4", "1500", "15000", "Aço CA-50B", "4"},
        {"20", "50", "3", "5", "-100", "3000", "Aço CA-50A", "4"},
        {"20", "50", "2", "2", "100", "8000", "Aço CA-25A", "4"},
        {"30", "30", "3", "3", "800", "4000", "Aço CA-60B", "4"},
        {"30", "60", "2", "6", "2500", "20000", "Aço CA-60A", "5"},
        {"40", "120", "4", "20", "3000", "120000", "Aço CA-50A", "4"},
        {"40", "120", "4", "20", "9000", "30000", "Aço CA-50B", "4"},
        {"25", "40", "2", "3", "0", "6000", "Aço CA-50A", "4"},
        {"25", "40", "2", "3", "2200", "1000", "Aço CA-25B", "4"},
        {"20", "20", "2", "2", "600", "300", "Aço CA-50A", "3.5"},
        {"20", "40", "2", "4", "-300", "100", "Aço CA-50A", "4"},
    };
    for (const auto& c : cases) {
        SilentDialogs dialogs;
        Program p(dialogs);
        auto& w = p.Form1;
        w.Text1.Text = c.b;
        w.Text2.Text = c.h;
        w.Text4.Text = c.nb;
        w.Text5.Text = c.nh;
        w.Text16.Text = c.nd;
        w.Text17.Text = c.md;
        w.Combo1.Text = c.steel;
        w.Text3.Text = c.dl;
        p.Command1_Click();
        const std::string label = std::string(c.b) + "x" + c.h + " " + c.nd + " kN " + c.md + " kN.cm " + c.steel
                                  + " zone " + p.Zona;
        ASSERT_TRUE(p.Form1.Text30.Text == "Ok" || p.Form1.Text30.Text == "erro") << label;

        Section s;
        s.delta = p.Delta;
        s.fyd = p.fyd;
        s.Es = p.Es;
        s.sigcd = p.SigCd;
        s.classB = std::string(c.steel).back() == 'B';
        for (long i = 0; i < p.nAltura; ++i) {
            s.y.push_back(p.YRel(i));
            s.share.push_back(p.NBarCam(i) / p.NBarrasTotal);
        }
        const double expected = requiredRatio(s, p.Ni, p.Mi);
        EXPECT_NEAR(p.Rho, expected, std::max(0.005 * expected, 2e-5)) << label << " nu=" << p.Ni << " mu=" << p.Mi;
    }
}
