// The report's figures of a column by ABNT NBR 6118:2014 (or 2023), in the units the
// window shows: moments in Md's unit and in kN·m, lengths in cm, areas in cm². Each
// figure carries the clause it comes from.

#include "report/report_2014.h"

#include "base/number_text.h"
#include "report/report_numbers.h"
#include "app/calculation_record.h"

#include <algorithm>
#include <cmath>

namespace pilarix::report {

namespace {

using namespace numbers;

std::string percent(double fraction)
{
    return std::isfinite(fraction) ? fixed(100 * fraction, 1) + " %" : std::string("sem limite");
}

const char* kCurvatureClause = "item 15.8.3.3.2";
const char* kStiffnessClause = "item 15.8.3.3.3";

void line(Section& s, std::string label, std::string value, std::string unit = {}, std::string note = {})
{
    s.lines.push_back({std::move(label), std::move(value), std::move(unit), std::move(note)});
}

Section direction(const engine::Direction2014& d, char which, bool curvature, bool governs, const Unit& m)
{
    const engine::DirectionSlenderness& s = d.slenderness;
    Section out;
    out.title = std::string("Direção de ") + which + " (" + (which == 'h' ? "Mx" : "My") + ", lado de " + Str(s.side)
                + " cm)" + (governs ? ": a que governa" : "");
    line(out, "ℓe", Str(s.effectiveLength), "cm", "comprimento efetivo nesta direção");
    line(out, "λ = 3.46 ℓe / h", fixed(s.lambda, 2), "", "item 15.8.2");
    line(out, "λ1 = (25 + 12.5 e1/h) / αb, de 35 a 90", fixed(s.lambda1, 2), "", "item 15.8.2");
    line(out, "αb", fixed(s.alphaB, 3), "", "item 15.8.2");
    line(out, "e1 = |MA| / Nd", fixed(s.e1, 2), "cm", "item 15.8.2");
    if (s.refusal) {
        out.notes.push_back(s.refusal->text + " (" + std::string(s.refusal->clause) + ")");
        return out;
    }
    line(out, "M1d,mín = Nd (1.5 + 0.03 h)", momentText(s.minimumMoment, m), "", "item 11.3.3.4.3");
    line(out, "M1d,A (o maior de |MA| e M1d,mín)", momentText(s.firstOrderMoment, m));
    line(out, "Efeitos locais de 2ª ordem", s.secondOrder ? "considerados (λ > λ1)" : "dispensados (λ ≤ λ1)", "",
         "item 15.8.2");
    if (s.secondOrder) {
        if (curvature)
            line(out, "1/r = 0.005 / (h (ν + 0.5)) ≤ 0.005 / h", Format(s.curvature, "0.000E+00"), "1/cm",
                 kCurvatureClause);
        line(out, "M2d", momentText(s.secondOrderMoment, m), "", curvature ? kCurvatureClause : kStiffnessClause);
    }
    line(out, "Md,tot", momentText(s.totalMoment, m), "",
         s.secondOrder ? (curvature ? kCurvatureClause : kStiffnessClause) : "item 11.3.3.4.3");
    line(out, "As,nec", fixed(d.asNec, 2), "cm²", "dimensionamento por zonas de solicitação nesta direção");
    line(out, "Utilização da seção detalhada", percent(d.utilisation), "", "nesta direção, sozinha");
    return out;
}

} // namespace

std::string sectionName(const std::string& engineName)
{
    return engineName == "intermediaria" ? std::string("intermediária") : engineName;
}

std::optional<MomentContour> momentContourOf(const app::CalculationRecord& rec)
{
    if (!rec.project.rules2014() || !rec.result2014 || !rec.result2014->oblique)
        return std::nullopt;
    const engine::Column2014Result& r = *rec.result2014;
    const engine::ObliqueCheck& o = *r.oblique;
    const Unit f = rec.project.units.shownForce();
    const Unit m = rec.project.units.shownMoment();
    MomentContour c;
    c.forceUnit = f.name;
    c.momentUnit = m.name;
    c.nSd = o.nSd / f.factor;
    if (!r.cases.empty())
        c.governingCase = r.cases[static_cast<std::size_t>(r.governingCase)].loadCase.name;
    c.several = r.cases.size() > 1;
    for (const auto& [x, y] : o.contour)
        c.contour.emplace_back(x / m.factor, y / m.factor);
    c.mRdxx = o.mRdxx / m.factor;
    c.mRdyy = o.mRdyy / m.factor;
    for (const auto& k : o.points)
        c.points.push_back({k.caseName, sectionName(k.section), k.mx / m.factor, k.my / m.factor, k.nSd / f.factor,
                            k.utilisation});
    c.envelopeCase = o.envelope.caseName;
    c.semiAxisX = o.envelope.semiAxisX / m.factor;
    c.semiAxisY = o.envelope.semiAxisY / m.factor;
    c.margin = o.envelope.margin;
    c.inside = o.envelope.inside;
    c.utilisation = o.utilisation;
    return c;
}

void addNorma2014(const app::CalculationRecord& rec, ReportData& report)
{
    if (!rec.project.rules2014())
        return;
    report.norma = rec.text.ruleSet;
    // The rule set heads the data, before anything it governs.
    if (!report.sections.empty()) {
        auto& lines = report.sections.front().lines;
        lines.insert(lines.begin(), Line{"Norma", report.norma, "", "regras de γn, esbeltez, 2ª ordem e detalhamento"});
    }
    if (!rec.result2014)
        return;
    const engine::Column2014Result& r = *rec.result2014;
    const Unit f = rec.project.units.shownForce();
    const Unit m = rec.project.units.shownMoment();
    const bool curvature = rec.project.slenderness.method != engine::SecondOrderMethod::ApproximateStiffness;

    Section general;
    general.title = "Esbeltez e efeitos locais de 2ª ordem (" + report.norma + ")";
    line(general, "γn = 1.95 − 0.05 b", fixed(r.gammaN, 3), "", "item 13.2.3, Tabela 13.1");
    if (r.refusal || r.cases.empty()) {
        if (r.refusal)
            general.notes.push_back(r.refusal->text + " (" + std::string(r.refusal->clause) + ")");
        general.notes.push_back("O pilar não foi dimensionado por esta norma.");
        report.norma2014.push_back(std::move(general));
        return;
    }
    const engine::CaseResult2014& g = r.cases[static_cast<std::size_t>(r.governingCase)];
    line(general, "Método da 2ª ordem",
         curvature ? "pilar-padrão com curvatura aproximada" : "pilar-padrão com rigidez κ aproximada", "",
         curvature ? kCurvatureClause : kStiffnessClause);
    if (r.cases.size() > 1)
        line(general, "Caso determinante", g.loadCase.name, "", "o caso e a direção que pedem mais aço");
    line(general, "Direção determinante", std::string(1, r.governingDirection), "",
         r.governingDirection == 'h' ? "a de Md (Mx)" : "a de My");
    line(general, "N_Sd = γn·Nd", forceText(g.nSd, f));
    line(general, "ν = N_Sd / (Ac fcd)", fixed(g.nu, 3));
    line(general, "As,nec (a maior dos casos e direções)", fixed(r.asNec, 2), "cm²");
    general.notes.push_back("Os momentos de cálculo incluem γn. M1d,mín entra em cada direção sozinha; na flexão "
                            "oblíqua ele é a envoltória mínima.");
    report.norma2014.push_back(std::move(general));
    report.norma2014.push_back(direction(g.h, 'h', curvature, r.governingDirection == 'h', m));
    report.norma2014.push_back(direction(g.b, 'b', curvature, r.governingDirection == 'b', m));

    Section both;
    both.title = "Flexão composta oblíqua (" + report.norma + ")";
    if (!r.oblique) {
        both.notes.push_back("Sem verificação das duas direções juntas: a seção não foi detalhada.");
        report.norma2014.push_back(std::move(both));
        return;
    }
    const engine::ObliqueCheck& o = *r.oblique;
    line(both, "N_Sd do contorno", forceText(o.nSd, f), "", "o do caso determinante");
    line(both, "M_Rd,xx em N_Sd", momentText(o.mRdxx, m), "", "item 17.2.5");
    line(both, "M_Rd,yy em N_Sd", momentText(o.mRdyy, m), "", "item 17.2.5");
    for (const auto& k : o.points) {
        std::string label = "Caso " + k.caseName + ", " + sectionName(k.section);
        line(both, label, "Mx = " + significant(k.mx / m.factor) + ", My = " + significant(k.my / m.factor), m.name,
             "utilização " + percent(k.utilisation) + "; interação simplificada de 17.2.5.2: "
                 + (std::isfinite(k.simplified) ? fixed(k.simplified, 3) : std::string("—")));
    }
    line(both, "Utilização (o ponto mais solicitado)", percent(o.utilisation), "",
         "item 17.2.5, compatibilidade de deformações à força normal de cada ponto");
    if (!o.envelope.caseName.empty()) {
        line(both, "Envoltória mínima: caso", o.envelope.caseName, "", "itens 11.3.3.4.3 e 15.3.2");
        line(both, "Semi-eixos (M1d,mín,xx e M1d,mín,yy, com M2d onde há 2ª ordem)",
             significant(o.envelope.semiAxisX / m.factor) + " e " + significant(o.envelope.semiAxisY / m.factor),
             m.name, "itens 11.3.3.4.3 e 15.3.2");
        line(both, "Margem da envoltória (contorno / elipse, a menor)", fixed(o.envelope.margin, 3), "",
             o.envelope.inside ? "≥ 1: a elipse está dentro do contorno resistente"
                               : "< 1: a elipse sai do contorno resistente");
    }
    for (const auto& c : o.failures)
        both.notes.push_back(c.text + " (" + std::string(c.clause) + ")");
    report.norma2014.push_back(std::move(both));
    report.momentContour = momentContourOf(rec);
}

} // namespace pilarix::report
