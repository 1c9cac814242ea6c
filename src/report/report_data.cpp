// The calculation report's contents from the record of one calculation: what it was
// given (the project), what it found (ColumnResult), the check by strain
// compatibility and every dialog it showed. Numbers are written as the window writes
// them (a point for the decimals), so that the report reads like the screen the
// engineer checked it on.

#include "report/report_data.h"

#include "report/report_2014.h"

#include "base/number_text.h"
#include "report/report_numbers.h"
#include "engine/catalogue.h"
#include "engine/checks.h"
#include "engine/column.h"
#include "engine/materials.h"
#include "app/calculation_record.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>

#ifndef PILARIX_VERSION
#define PILARIX_VERSION "?"
#endif

namespace pilarix::report {

std::string_view programVersion() { return PILARIX_VERSION; }

double drawingScale(double width, double height, double roomWidth, double roomHeight)
{
    const double need = std::max(width / roomWidth, height / roomHeight);
    if (!(need > 0) || !std::isfinite(need))
        return 1;
    static constexpr std::array<double, 4> kSteps{1, 2, 2.5, 5};
    for (double decade = 1; decade <= 1000; decade *= 10)
        for (double step : kSteps)
            if (step * decade >= need)
                return step * decade;
    return std::ceil(need);
}

std::string scaleText(double n) { return "1:" + Str(n); }

namespace {

// ---- numbers ----

using namespace numbers;
constexpr double kKgfCm2PerMpa = 10;

std::string mpa(double kgfCm2, int decimals) { return fixed(kgfCm2 / kKgfCm2PerMpa, decimals); }

std::string projectName(const std::string& file)
{
    const std::string name = std::filesystem::path(file).filename().string();
    if (name.empty() || name == "Padrão.txt")
        return "sem título";
    return name;
}

std::string trimmed(const std::string& s)
{
    const auto first = s.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    return s.substr(first, s.find_last_not_of(' ') - first + 1);
}

std::string barLabel(int index)
{
    if (index < 1 || index > engine::kBarCount)
        return "—";
    return std::string(engine::bar(index).label);
}

// ---- the arrangement a search put into the window ----

// ---- sections ----

class Writer {
public:
    explicit Writer(Section& s) : s_(s) {}
    Writer& line(std::string label, std::string value, std::string unit = {}, std::string note = {})
    {
        s_.lines.push_back({std::move(label), std::move(value), std::move(unit), std::move(note)});
        return *this;
    }
    Writer& note(std::string text)
    {
        s_.notes.push_back(std::move(text));
        return *this;
    }

private:
    Section& s_;
};

// Where d' came from, as it did: typed, found from the cover ("d' automático"),
// put in by the arrangement the search chose, and what the cover correction made of
// it. The window keeps d' as it stood before the calculation rewrote the box
// (DLinhaDigitado, which a project file keeps as "d' digitado").
std::string dLinhaNote(const app::CalculationRecord& rec, const engine::ColumnResult& r, const SolutionRow* fromSearch)
{
    std::string note;
    if (fromSearch)
        note = "o da solução nº " + Str(rec.solutionShown)
               + " da busca da melhor solução, que o achou pelo cobrimento e o pôs na caixa d′";
    else if (rec.project.column.dLinha.automatic)
        note = rec.text.words.dLinhaFromCover + ": achado pelo cobrimento, a partir de 3 cm";
    else if (const auto& typed = rec.text.dLinhaAsTyped; typed && trimmed(*typed).empty())
        note = "caixa d′ vazia (0 cm)";
    else
        note = "digitado: " + (typed ? trimmed(*typed) : Str(rec.project.column.dLinha.typed)) + " cm";
    if (r.dLinhaText)
        note += "; reescrito pela correção do cobrimento para " + trimmed(*r.dLinhaText) + " cm";
    return note;
}

void inputSection(const app::CalculationRecord& rec, const engine::ColumnResult& r, const SolutionRow* fromSearch,
                  Section& s)
{
    const engine::ColumnInput& in = rec.project.column;
    const Unit force = rec.project.units.shownForce();
    const Unit moment = rec.project.units.shownMoment();
    const int total =
        r.designed ? r.design.totalBars : static_cast<int>(2 * (in.barsOnWidthFace + in.barsOnDepthFace) - 4);
    const double dLinha = r.designed ? r.design.dLinha : in.dLinha.typed;
    // The forces the design was made for, so that ν and μ follow from what is printed.
    const CaseOutcome* governing = rec.governingCase();
    const double nd = governing ? governing->Nd : in.Nd;
    const double md = governing ? governing->Md : in.Md;
    const std::string of = governing ? "do caso determinante \"" + governing->name + "\", para as quais o pilar foi "
                                                                                    "dimensionado"
                                     : std::string();

    Writer w(s);
    w.line("Seção b × h", Str(in.base) + " × " + Str(in.depth), "cm")
        .line("Comprimento", Str(in.length), "cm")
        .line("Barras por face", Str(in.barsOnWidthFace) + " nas faces de largura b, " + Str(in.barsOnDepthFace)
                                     + " nas faces de altura h",
              "", Str(total) + " barras ao todo")
        .line("d′ (da face ao centro da barra)", fixed(dLinha, 3), "cm", dLinhaNote(rec, r, fromSearch))
        .line("Nd", forceText(nd, force, true), "", of)
        .line("Md", momentText(md, moment, true), "", of);
    if (r.designed) {
        const double gn = r.design.gammaN;
        w.line("γn", fixed(gn, 2), "", "menor dimensão da seção " + Str(r.design.smallerSide) + " cm")
            .line("Força normal de cálculo γn·Nd", forceText(gn * nd, force))
            .line("Momento de cálculo γn·Md", momentText(gn * md, moment));
    }

    const engine::Concrete c = engine::designConcrete(in.fck, in.gammaC);
    w.line("fck do concreto", mpa(c.fck, 1), "MPa")
        .line("γc", Str(in.gammaC))
        .line("fcd = fck / γc", mpa(c.fcd, 3), "MPa")
        .line("σcd = 0.85 fcd", mpa(c.sigcd, 3), "MPa");

    const engine::Steel a = engine::designSteel(in.steel, in.gammaS, in.Es);
    w.line("Aço da armadura", std::string(engine::steelGradeText(in.steel)), "", a.classB ? "classe B" : "classe A")
        .line("fyk", mpa(a.fyk, 0), "MPa")
        .line("γs", Str(in.gammaS))
        .line("fyd = fyk / γs", mpa(a.fyd, 2), "MPa")
        .line("Es", mpa(a.Es, 0), "MPa")
        .line("εyd", fixed(a.epsYd, 3), "‰");

    const std::string tolerance = in.deltaC == 1     ? rec.text.words.tolerance10
                                  : in.deltaC == 0.5 ? rec.text.words.tolerance5
                                                     : std::string();
    // Left empty in "Outros valores", the aggregate counts as 0: the cover and spacing
    // rules that depend on it then give way to the bar's, and the report says why.
    if (in.aggregate > 0)
        w.line("Diâmetro máximo do agregado graúdo", Str(in.aggregate), "cm");
    else
        w.line("Diâmetro máximo do agregado graúdo", "não informado", "",
               "as regras de cobrimento e espaçamento que dependem dele não se aplicam");
    static constexpr std::array<const char*, 4> kExposure{"I", "II", "III", "IV"};
    w.line("Classe de agressividade ambiental", kExposure.at(static_cast<std::size_t>(in.exposure) - 1))
        .line("Tolerância de execução do cobrimento Δc", Str(in.deltaC), "cm", tolerance)
        .line("Correção do cobrimento", in.correctCoverWithoutAsking ? "sem perguntar" : "perguntando a cada caso")
        .line("Precisão", Str(in.precision))
        .line("Maior bitola longitudinal permitida", barLabel(in.maxBarIndex))
        .line("Maior bitola de estribo permitida", barLabel(static_cast<int>(in.maxStirrupIndex)));
}

// The input as the window's boxes held it, for a calculation that stopped while
// reading them: nothing else of it exists.
void typedInputSection(const app::CalculationRecord& rec, Section& s)
{
    Writer w(s);
    // A box left empty says so, rather than leave its unit alone.
    for (const auto& box : rec.text.asTyped) {
        if (box.text.empty())
            w.line(box.label, "(vazia)");
        else
            w.line(box.label, box.text, box.unit);
    }
}

std::string zoneText(engine::Zone z)
{
    if (z == engine::Zone::None)
        return "nenhuma";
    return Str(static_cast<int>(z)) + " (" + engine::zoneLetter(z) + ")";
}

void designSection(const app::CalculationRecord& rec, const engine::ColumnResult& r, Section& s)
{
    Writer w(s);
    if (!r.designed) {
        w.note(r.flag == engine::ErrorFlag::Wall
                   ? "O pilar não foi dimensionado: a seção deve ser tratada como pilar-parede (ver as mensagens)."
                   : "O pilar não foi dimensionado: o cálculo não pôde prosseguir (ver as mensagens).");
        return;
    }
    const engine::DesignResult& d = r.design;
    const double h = rec.project.column.depth;
    std::string compat = "As,compat: sem verificação";
    if (const auto& v = rec.verification)
        compat = v->asCompat
                     ? "As,compat = " + fixed(*v->asCompat, 2) + " cm², por compatibilidade de deformações"
                     : "As,compat: nenhuma área de aço resiste aos esforços";
    w.line("ν = γn·Nd / (b·h·σcd)", fixed(d.nu, 4))
        .line("μ = γn·Md / (b·h²·σcd)", fixed(d.mu, 4))
        .line("δ = d′ / h", fixed(d.delta, 4))
        .line("Zona de solicitação", zoneText(d.zone))
        .line("βx = x / h", fixed(d.betaX, 3))
        .line("Altura da linha neutra x = βx·h", fixed(d.betaX * h, 1), "cm")
        .line("ρ = As / Ac", fixed(d.rho, 5), "", fixed(100 * d.rho, 3) + " %")
        .line("As,nec", fixed(d.asNec, 2), "cm²", compat);
    if (r.detailed && d.asNec == r.asMin && d.asNec > 0)
        w.note("A armadura mínima governa: As,nec é As,mín.");
    if (r.byStrainCompatibility)
        w.note("O método das zonas de solicitação não achou o equilíbrio da seção: As,nec é a área da compatibilidade "
               "de deformações.");
    if (r.passes > 1)
        w.note("O cálculo foi refeito " + Str(r.passes - 1) + (r.passes == 2 ? " vez" : " vezes")
               + " porque a correção do cobrimento mudou d′.");
}

// How the stirrup was chosen, in the words of the window's options.
std::string stirrupChoice(const app::CalculationRecord& rec, const engine::ColumnResult& r)
{
    const engine::ColumnInput& in = rec.project.column;
    const app::OptionWords& words = rec.text.words;
    std::string how;
    switch (in.stirrupMode) {
    case engine::StirrupMode::Predefined:
        how = words.stirrupPredefined + " " + barLabel(in.predefinedStirrup);
        // Told once, though every repeated pass tells it again.
        if (std::any_of(r.checks.begin(), r.checks.end(),
                        [](const engine::Check& c) { return c.id == engine::CheckId::PredefinedStirrupTooThin; }))
            how += ", abaixo do mínimo: adotado o mínimo";
        break;
    case engine::StirrupMode::Economic:
        how = words.stirrupEconomic;
        break;
    case engine::StirrupMode::Manual:
        how = words.stirrupManual;
        for (const auto& m : rec.transcript)
            if (m.kind == DialogRecord::Kind::Stirrup)
                how += ": " + m.respostaTexto;
        break;
    }
    if (in.stirrupsOfBarSteel)
        how += "; " + words.stirrupsOfBarSteel;
    return how;
}

void detailSection(const app::CalculationRecord& rec, const engine::ColumnResult& r, Section& s)
{
    Writer w(s);
    if (!r.detailed) {
        w.note(r.designed ? "A seção não foi detalhada: nenhuma bitola permitida atende à área necessária, ou o "
                            "cálculo não pôde prosseguir (ver as mensagens)."
                          : "A seção não foi detalhada.");
        return;
    }
    const engine::MethodState& m = rec.method;
    const engine::ColumnInput& in = rec.project.column;
    if (r.bar)
        w.line("Barras longitudinais", Str(r.design.totalBars) + " φ " + barLabel(r.bar->index));
    w.line("As,ef (efetiva)", fixed(r.bar ? r.bar->providedArea : 0, 2), "cm²")
        .line("As,mín", fixed(r.asMin, 2), "cm²")
        .line("As,máx", fixed(r.asMax, 2), "cm²")
        .line("Área por barra",
              "mínima " + fixed(m.AsMinBarra, 2) + ", teórica " + fixed(m.AsBarraD, 2) + ", efetiva "
                  + fixed(m.AsBarra, 2),
              "cm²")
        .line("Excesso de aço", fixed(r.excess, 2), "%")
        .line("Espaçamento livre entre barras",
              fixed(r.spacing.freeWidth, 2) + " cm nas faces b, " + fixed(r.spacing.freeDepth, 2) + " cm nas faces h",
              "", "mínimo " + fixed(r.spacing.minimumFree, 2) + " cm")
        .line("Espaçamento entre eixos das barras",
              fixed(r.spacing.axisWidth, 2) + " cm nas faces b, " + fixed(r.spacing.axisDepth, 2) + " cm nas faces h",
              "", "máximo " + fixed(r.spacing.maximumAxis, 2) + " cm (" + trimmed(m.TextoLimite) + ")")
        .line("Cobrimento nominal", fixed(r.cover.nominal, 2), "cm")
        .line("Cobrimento efetivo", fixed(r.cover.effective, 2), "cm")
        .line("Estribo", r.stirrup.text, "", stirrupChoice(rec, r))
        .line("Diâmetro mínimo do estribo", fixed(r.stirrup.minimumDiameter * 10, 1), "mm")
        .line("Dimensões internas do estribo",
              fixed(r.cover.stirrupInnerWidth, 2) + " × " + fixed(r.cover.stirrupInnerDepth, 2), "cm",
              "comprimento com os ganchos " + fixed(r.cover.stirrupLength, 2) + " cm")
        .line("Ganchos", in.hook == engine::Hook::Angle45 ? "a 45° ou semicirculares" : "a 90°", "",
              "os dois ganchos do estribo " + fixed(r.stirrup.hookAllowance, 2)
                  + " cm; os dois de um estribo suplementar " + fixed(r.stirrup.tieHookAllowance, 2) + " cm")
        .line("Estribos suplementares",
              Str(r.tiesAcrossWidth) + " nas faces b, " + Str(r.tiesAcrossDepth) + " nas faces h")
        .line("Peso do aço longitudinal", fixed(r.steelWeight, 2), "kg", "comprimento " + Str(in.length) + " cm");
}

// ---- messages ----

// The two checks that tell without failing: the calculation goes on with the
// minimum stirrup, or with the area of strain compatibility.
bool onlyTells(const DialogRecord& d)
{
    return d.check == engine::CheckId::PredefinedStirrupTooThin
           || d.check == engine::CheckId::AreaByStrainCompatibility;
}

std::vector<Message> messagesOf(const app::CalculationRecord& rec, bool runFailed)
{
    std::vector<Message> out;
    for (const DialogRecord& d : rec.transcript) {
        Message m;
        m.window = d.janela;
        m.text = d.mensagem;
        m.clause = d.item;
        switch (d.kind) {
        case DialogRecord::Kind::Error:
            m.kind = Message::Kind::Error;
            m.failed = runFailed && !onlyTells(d);
            break;
        case DialogRecord::Kind::Cover:
            m.kind = Message::Kind::Question;
            m.answer = withoutAccessKey(d.respostaTexto);
            m.failed = runFailed && d.resposta != 1; // the arrangement kept as it was
            break;
        case DialogRecord::Kind::Stirrup:
            m.kind = Message::Kind::Question;
            // An option the dialog did not use is empty: the page lists those it showed.
            for (const auto& o : d.opcoes)
                if (!o.empty())
                    m.options.push_back(o);
            m.answer = d.respostaTexto;
            break;
        case DialogRecord::Kind::Notice:
            m.kind = Message::Kind::Notice;
            m.failed = runFailed;
            break;
        }
        out.push_back(std::move(m));
    }
    return out;
}

// ---- the check by strain compatibility ----

void verificationSection(const app::CalculationRecord& rec, ReportData& out)
{
    Writer w(out.verification);
    if (!rec.verification) {
        w.note("Sem verificação por compatibilidade de deformações: a seção não foi detalhada.");
        return;
    }
    const engine::Verification& v = *rec.verification;
    const Unit force = rec.project.units.shownForce();
    const Unit moment = rec.project.units.shownMoment();
    const bool finite = std::isfinite(v.utilisation);
    w.line("N_Sd = γn·Nd", forceText(v.nSd, force))
        .line("M_Sd = γn·Md", momentText(v.mSd, moment))
        .line("M_Rd em N_Sd",
              v.mRd ? momentText(*v.mRd, moment) : std::string("N_Sd fora da faixa resistente (N_Rd,mín a N_Rd,máx)"))
        .line("N_Rd,máx", forceText(v.nRdMax, force))
        .line("N_Rd,mín", forceText(v.nRdMin, force))
        .line("Utilização", finite ? fixed(100 * v.utilisation, 1) : std::string("sem limite"), finite ? "%" : "",
              v.utilisation <= 1 ? "o ponto de cálculo está dentro da curva resistente"
                                 : "o ponto de cálculo está fora da curva resistente: a seção não resiste")
        .line("As,compat", v.asCompat ? fixed(*v.asCompat, 2) : std::string("nenhuma área de aço resiste"),
              v.asCompat ? "cm²" : "", "a área que o mesmo arranjo precisa para (N_Sd, M_Sd)");

    Diagram d;
    d.forceUnit = force.name;
    d.momentUnit = moment.name;
    d.curve.reserve(v.curve.size());
    for (const auto& [n, m] : v.curve)
        d.curve.emplace_back(n / force.factor, m / moment.factor);
    d.nSd = v.nSd / force.factor;
    d.mSd = v.mSd / moment.factor;
    if (rec.cases.empty()) {
        d.cases.push_back({"Sd", d.nSd, d.mSd, v.utilisation, true});
    } else {
        // Every load case on the governing case's section, γn as the design took it.
        const double gn = rec.result ? rec.result->design.gammaN : 1;
        for (const auto& c : rec.cases)
            d.cases.push_back({c.name, gn * c.Nd / force.factor, gn * c.Md / moment.factor, c.utilisation, c.governing});
    }
    if (v.mRd)
        d.mRd = *v.mRd / moment.factor;
    d.utilisation = v.utilisation;
    out.diagram = std::move(d);
}

// ---- the load cases ----

void casesList(const app::CalculationRecord& rec, ReportData& out)
{
    if (rec.cases.size() < 2)
        return;
    const Unit force = rec.project.units.shownForce();
    const Unit moment = rec.project.units.shownMoment();
    for (const auto& c : rec.cases) {
        CaseLine l;
        l.name = c.name;
        l.nd = forceText(c.Nd, force, true);
        l.md = momentText(c.Md, moment, true);
        l.zone = zoneText(c.zone);
        l.asNec = fixed(c.asNec, 2);
        l.utilisation = std::isnan(c.utilisation) ? std::string("não verificada")
                        : std::isfinite(c.utilisation) ? fixed(100 * c.utilisation, 1) + " %"
                                                       : std::string("sem limite");
        l.carried = c.utilisation <= 1;
        l.governing = c.governing;
        if (c.governing)
            out.governingCase = c.name;
        out.cases.push_back(std::move(l));
    }
    out.casesNotes.push_back("Cada caso dimensionado pelo método das zonas de solicitação desde o início; o que exige "
                             "a maior área de aço é detalhado, e a seção detalhada é verificada para todos os casos "
                             "por compatibilidade de deformações (utilização).");
}

} // namespace

// ---- the steel's quantities ----

Quantities steelQuantities(const engine::ColumnInput& in, const engine::ColumnResult& r)
{
    Quantities q;
    if (!r.detailed || !r.bar || !(r.stirrup.spacing > 0) || !(in.length > 0))
        return q;
    // The stirrup's catalogue bar by its diameter; its mass is the one the method took.
    int stirrupIndex = 0;
    for (const auto& b : engine::catalogue())
        if (std::abs(b.diameter - r.stirrup.diameter) < 1e-9)
            stirrupIndex = b.index;
    const double stirrupMass = stirrupIndex ? engine::bar(stirrupIndex).mass : r.stirrup.massPerMetre;

    const auto row = [&q](std::string piece, int index, int count, double unitLength, double mass) {
        if (count <= 0)
            return;
        const double total = count * unitLength / 100;
        q.rows.push_back({std::move(piece), index, count, unitLength, total, mass, total * mass});
        q.totalWeight += total * mass;
    };
    const engine::Bar& longitudinal = engine::bar(r.bar->index);
    row("Barras longitudinais", longitudinal.index, r.design.totalBars, in.length, longitudinal.mass);
    // One at each end and one every spacing between; a ratio a hair over a whole number
    // by rounding is that number.
    q.stirrupLevels = static_cast<int>(std::ceil(in.length / r.stirrup.spacing - 1e-9)) + 1;
    row("Estribos", stirrupIndex, q.stirrupLevels, r.cover.stirrupLength, stirrupMass);
    // A tie of the width faces runs across h, one of the depth faces across b.
    row("Estribos suplementares das faces b", stirrupIndex, q.stirrupLevels * r.tiesAcrossWidth,
        r.cover.stirrupInnerDepth + r.stirrup.tieHookAllowance, stirrupMass);
    row("Estribos suplementares das faces h", stirrupIndex, q.stirrupLevels * r.tiesAcrossDepth,
        r.cover.stirrupInnerWidth + r.stirrup.tieHookAllowance, stirrupMass);
    q.concreteVolume = in.base * in.depth * in.length / 1e6;
    q.rate = q.concreteVolume > 0 ? q.totalWeight / q.concreteVolume : 0;
    q.assumptions = {
        "Barras longitudinais com o comprimento do pilar, sem emendas, ancoragens nem esperas.",
        "Estribos ao longo de todo o comprimento: comprimento / espaçamento, arredondado para cima, mais um.",
        "Comprimento do estribo: o do cálculo, 2·(b + h − 4·cobrimento efetivo) mais os dois ganchos.",
        "Estribo suplementar: a dimensão interna do estribo que ele atravessa mais os seus dois ganchos, em "
        "cada nível de estribos.",
        "Massas por metro das tabelas de bitolas comerciais; volume de concreto b·h·comprimento.",
    };
    return q;
}

namespace {

void solutionsList(const app::CalculationRecord& rec, const SolutionRow* shown, ReportData& out)
{
    out.solutionsFound = rec.solutions.size();
    if (rec.solutions.empty())
        return;
    if (!shown) {
        out.solutionsNote = "A lista da última busca (" + Str(static_cast<double>(rec.solutions.size()))
                            + " soluções) não é a deste cálculo: o pilar foi calculado com outro arranjo depois dela.";
        return;
    }
    // A weight no arrangement reaches marks a row that holds no solution, as in "Soluções".
    constexpr double kNoSolution = 9e35;
    const std::size_t n = std::min(rec.solutions.size(), kSolutionsListed);
    for (std::size_t i = 0; i < n; ++i) {
        const SolutionRow& s = rec.solutions[i];
        SolutionLine l;
        l.position = static_cast<int>(i) + 1;
        l.shown = &s == shown;
        if (s.peso < kNoSolution) {
            l.weight = Format(s.peso, "##0.00");
            l.barsOnWidthFace = Str(s.nBase);
            l.barsOnDepthFace = Str(s.nAltura);
            const bool catalogued = s.IndiceEstribo >= 1 && s.IndiceEstribo <= engine::kLastStirrupBar
                                    && s.IndiceEstribo == Int(s.IndiceEstribo);
            l.stirrup = catalogued ? std::string(engine::bar(static_cast<int>(s.IndiceEstribo)).shortText)
                                   : Str(s.DiamEstribo * 10);
        }
        out.solutions.push_back(std::move(l));
    }
}

} // namespace

bool buildReport(const app::CalculationRecord& rec, const ReportStamp& stamp, ReportData& out, std::string& error)
{
    if (!rec.calculated()) {
        error = "não há cálculo para o memorial: calcule o pilar (\"Calcula\") antes de gerá-lo";
        return false;
    }
    ReportData r;
    r.project = projectName(rec.text.file);
    const app::WorkHeading& h = rec.text.heading;
    r.heading = {h.work, h.client, h.column, h.engineer, h.revision};
    r.stamp = stamp;
    r.verdict = rec.verdict;
    r.sections = {{"Dados", {}, {}}, {"Dimensionamento: método das zonas de solicitação", {}, {}},
                  {"Detalhamento", {}, {}}};
    if (rec.result) {
        const SolutionRow* shown = rec.solutionOnShow();
        inputSection(rec, *rec.result, shown, r.sections[0]);
        designSection(rec, *rec.result, r.sections[1]);
        detailSection(rec, *rec.result, r.sections[2]);
        solutionsList(rec, shown, r);
        casesList(rec, r);
        r.quantities = steelQuantities(rec.project.column, *rec.result);
        if (r.quantities->rows.empty())
            r.quantities.reset();
    } else {
        // The calculation stopped while reading the window (or a search found nothing):
        // there is only what the boxes hold and the messages.
        r.sections[0].title = "Dados (como estão na janela)";
        typedInputSection(rec, r.sections[0]);
        r.sections[0].notes.push_back("O cálculo parou antes do dimensionamento (ver as mensagens): nenhum valor foi "
                                      "calculado.");
        r.sections[1].notes.push_back("O pilar não foi dimensionado.");
        r.sections[2].notes.push_back("A seção não foi detalhada.");
    }
    r.messages = messagesOf(rec, r.failed());
    r.verification.title = "Verificação por compatibilidade de deformações";
    verificationSection(rec, r);
    addNorma2014(rec, r);
    if (rec.drawing)
        r.drawing = rec.drawing;
    else
        r.drawingMissing = "Sem desenho: a seção não foi detalhada.";
    out = std::move(r);
    return true;
}

} // namespace pilarix::report
