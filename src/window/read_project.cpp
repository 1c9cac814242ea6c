// The typed project of a calculation, read from the window after Ler02: the rule
// set, the column, every load case (the first the window's Nd and Md, the others from
// the cases table, in the units of Nd and Md; under 2014 with the moments of both ends
// in both directions), the effective lengths and the method of the second order, and
// the units the results are shown in.

#include "window/program.h"

#include "base/number_text.h"
#include "app/units.h"

namespace pilarix {

namespace {
// An empty box is no moment.
double lido(const std::string& texto) { return texto.empty() ? 0 : Val(texto); }
} // namespace

std::vector<engine::Case2014> Program::casos2014() const
{
    const double fn = unitFactor(Form1.Combo4.Text).value_or(Nd != 0 ? Nd / Val(Form1.Text16.Text) : 1);
    const double fm = unitFactor(Form1.Combo5.Text).value_or(Md != 0 ? Md / Val(Form1.Text17.Text) : 1);
    std::vector<engine::Case2014> casos{{NomeDoCaso1, Nd, Md, lido(Form1.MdBase.Text) * fm, lido(Form1.MyTopo.Text) * fm,
                                         lido(Form1.MyBase.Text) * fm}};
    for (const auto& c : OutrosCasos)
        casos.push_back({c.nome, Val(c.nd) * fn, Val(c.md) * fm, lido(c.mdBase) * fm, lido(c.myTopo) * fm,
                         lido(c.myBase) * fm});
    return casos;
}

engine::Slenderness2014Input Program::esbeltez2014() const
{
    engine::Slenderness2014Input s;
    s.effectiveLengthH = lido(Form1.LeH.Text);
    s.effectiveLengthB = lido(Form1.LeB.Text);
    s.method = Form1.SegundaOrdem.Text == "rigidez" ? engine::SecondOrderMethod::ApproximateStiffness
                                                     : engine::SecondOrderMethod::ApproximateCurvature;
    return s;
}

app::Project Program::projetoDoCalculo() const
{
    app::Project projeto;
    projeto.rules = norma2023()   ? app::RuleSet::Nbr2023
                    : norma2014() ? app::RuleSet::Nbr2014
                                  : app::RuleSet::Nbr2001;
    projeto.column = entradaDoCalculo();
    projeto.cases = casos2014();
    projeto.slenderness = esbeltez2014();
    projeto.units = {Form1.Combo4.Text, Form1.Combo5.Text, Form1.Combo6.Text};
    return projeto;
}

} // namespace pilarix
