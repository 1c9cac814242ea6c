#include "cli/cli.h"

#include "cli/batch.h"
#include "cli/case_list.h"
#include "cli/controls_by_name.h"
#include "cli/options.h"
#include "report/report_numbers.h"
#include "export/dxf_writer.h"
#include "base/number_text.h"

#include <cctype>
#include <chrono>
#include <iostream>
#include <optional>
#include <cmath>
#include <filesystem>
#include <algorithm>
#include <ostream>
#include <sstream>

namespace pilarix {

namespace {
// A search that runs longer than a second says on standard error how far it has
// gone, once a second: whoever waits for it sees that it works.
class ProgressOnStderr : public PolicyDialogs {
public:
    bool searchProgress(double done, double total) override
    {
        const auto now = std::chrono::steady_clock::now();
        if (!started_)
            started_ = now;
        if (now - *started_ >= std::chrono::seconds(1) && (!told_ || now - *told_ >= std::chrono::seconds(1))) {
            told_ = now;
            std::cerr << "pilarix-cli: busca da melhor solução: " << static_cast<long long>(done) << " de "
                      << static_cast<long long>(total) << " arranjos" << std::endl;
        }
        return true;
    }

private:
    std::optional<std::chrono::steady_clock::time_point> started_, told_;
};
} // namespace

namespace {
// The program's one-letter flags, as it has always listed them.
const char* textoDoErro(engine::ErrorFlag f)
{
    switch (f) {
    case engine::ErrorFlag::None:
        return "n";
    case engine::ErrorFlag::Failed:
        return "s";
    case engine::ErrorFlag::Wall:
        return "sPparede";
    case engine::ErrorFlag::Unset:
        break;
    }
    return "";
}

const char* textoDoRecalculo(engine::Recalculation r)
{
    return r == engine::Recalculation::Yes ? "s" : r == engine::Recalculation::No ? "n" : "";
}
} // namespace

namespace {

// Loads a project file as Carrega33 does; false (with the message) when it cannot.
bool load(Program& p, const std::string& file, std::string& error)
{
    p.NomeArquivo = file;
    p.ErroArquivo.clear();
    p.Carrega33();
    if (!p.ErroArquivo.empty()) {
        error = p.ErroArquivo;
        return false;
    }
    return true;
}

// A box of the record by the name the window gives it; empty for a name it has not.
const std::string& box(const app::CalculationRecord& r, std::string_view name)
{
    static const std::string none;
    for (const auto& b : r.boxes)
        if (b.name == name)
            return b.text;
    return none;
}

void report(const app::CalculationRecord& r, std::ostream& out)
{
    const auto t = [&r](std::string_view name) -> const std::string& { return box(r, name); };
    const app::DisplayUnits& units = r.project.units;
    out << "Pilarix - pilar " << t("Text1") << " x " << t("Text2") << " cm, comprimento " << t("Text23") << " cm\n";
    out << "Barras por face: base " << t("Text4") << ", altura " << t("Text5") << "; d' = " << t("Text3") << " cm\n";
    out << "Nd = " << t("Text16") << " " << units.force << ", Md = " << t("Text17") << " " << units.moment
        << ", fck = " << t("Text18") << " " << units.strength << ", " << engine::steelGradeText(r.project.column.steel) << "\n";
    out << "Zona: " << t("Text8") << " (" << engine::zoneLetter(r.method.Zona) << "), Bx = " << t("Text28")
        << ", altura da L.N. = " << t("Text29") << " cm\n";
    out << "Área de aço (cm2): mínima " << t("Text9") << ", teórica " << t("Text10") << ", efetiva " << t("Text11")
        << "\n";
    out << "Por barra (cm2): mínima " << t("Text12") << ", teórica " << t("Text13") << ", efetiva " << t("Text14")
        << "\n";
    out << "Bitola: " << Str(r.method.DiamLong * 10) << " mm; excesso " << t("Text15") << "; aço " << t("Text19")
        << " kg\n";
    out << "Estribo: " << t("Text27") << "; cobrimento nominal " << t("Text25") << " cm, efetivo " << t("Text26")
        << " cm\n";
    // Several load cases: each as the report lists it, and the one the column was
    // detailed for (the boxes above are the window's first case, the results its).
    if (const CaseOutcome* g = r.governingCase()) {
        using namespace report::numbers;
        const Unit force = units.shownForce();
        const Unit moment = units.shownMoment();
        for (const auto& c : r.cases)
            out << "Caso " << c.name << ": Nd = " << forceText(c.Nd, force, true) << ", Md = "
                << momentText(c.Md, moment, true) << "; zona " << engine::zoneLetter(c.zone) << ", As = "
                << Format(c.asNec, "##0.00") << " cm2, utilização "
                << (std::isfinite(c.utilisation) ? Format(100 * c.utilisation, "##0.0") + " %" : std::string("—"))
                << "\n";
        out << "Caso determinante: " << g->name << "\n";
    }
    for (const auto& m : r.transcript) {
        out << "[" << m.janela << "] " << m.mensagem;
        if (!m.item.empty())
            out << " (" << m.item << ")";
        if (m.kind == DialogRecord::Kind::Cover || m.kind == DialogRecord::Kind::Stirrup)
            out << " -> resposta " << m.resposta;
        out << "\n";
    }
    if (const auto& v = r.verification) {
        // In the units the forces were typed in, and in kN and kN·m, as the report writes them.
        using namespace report::numbers;
        const Unit force = units.shownForce();
        const Unit moment = units.shownMoment();
        out << "Verificação por compatibilidade de deformações: N_Sd = " << forceText(v->nSd, force)
            << ", M_Sd = " << momentText(v->mSd, moment) << "; M_Rd = "
            << (v->mRd ? momentText(*v->mRd, moment) : std::string("(N_Sd fora da faixa resistente)"))
            << "; utilização " << (std::isfinite(v->utilisation) ? Format(100 * v->utilisation, "##0.0") + " %" : "sem limite")
            << "; As por compatibilidade " << (v->asCompat ? Format(*v->asCompat, "##0.00") + " cm2" : "nenhuma") << "\n";
    }
    out << "Erros: " << r.verdict << "\n";
}

} // namespace

nlohmann::ordered_json caixasJson(const app::CalculationRecord& r)
{
    nlohmann::ordered_json j = nlohmann::ordered_json::object();
    for (const auto& b : r.boxes) {
        j[b.name] = b.text;
        if (b.name.rfind("Text7(", 0) == 0)
            j[b.name + ".destaque"] = b.highlighted;
    }
    return j;
}

nlohmann::ordered_json estadoJson(const app::CalculationRecord& r)
{
    nlohmann::ordered_json j = nlohmann::ordered_json::object();
    const engine::MethodState& m = r.method;
    const WindowReading& p = r.reading;
    j["Base"] = p.Base;
    j["Altura"] = p.Altura;
    j["Comprimento"] = p.Comprimento;
    j["nBase"] = p.nBase;
    j["nAltura"] = p.nAltura;
    j["nMaxBase"] = p.nMaxBase;
    j["nMaxAltura"] = p.nMaxAltura;
    j["Nd"] = p.Nd;
    j["Md"] = p.Md;
    j["Fck"] = p.Fck;
    j["Es"] = p.Es;
    j["GamaC"] = p.GamaC;
    j["GamaS"] = p.GamaS;
    j["Precisao"] = p.Precisao;
    j["DiamAgregado"] = p.DiamAgregado;
    j["IndiceBitolaMax"] = p.IndiceBitolaMax;
    j["IndiceEstriboMax"] = p.IndiceEstriboMax;
    j["Escala"] = p.Escala;
    j["ErroEntrada"] = p.ErroEntrada;
    j["fyk"] = m.fyk;
    j["fyd"] = m.fyd;
    j["EpYd"] = m.EpYd;
    j["SigS2"] = m.SigS2;
    j["fcd"] = m.fcd;
    j["SigCd"] = m.SigCd;
    j["dLinha"] = m.dLinha;
    j["Delta"] = m.Delta;
    j["Ac"] = m.Ac;
    j["MenorDim"] = m.MenorDim;
    j["GamaN"] = m.GamaN;
    j["Ni"] = m.Ni;
    j["Mi"] = m.Mi;
    j["NBarrasTotal"] = m.NBarrasTotal;
    j["NiCrit"] = m.NiCrit;
    j["NiCrit1"] = m.NiCrit1;
    j["NiCrit2"] = m.NiCrit2;
    j["MiA"] = m.MiA;
    j["MiE"] = m.MiE;
    j["MiC"] = m.MiC;
    j["MiC1"] = m.MiC1;
    j["Mi0"] = m.Mi0;
    j["EtaA"] = m.EtaA;
    j["EtaE"] = m.EtaE;
    j["EtaLinA"] = m.EtaLinA;
    j["EtaLinE"] = m.EtaLinE;
    j["KapaA"] = m.KapaA;
    j["KapaE"] = m.KapaE;
    j["LambdaA"] = m.LambdaA;
    j["LambdaE"] = m.LambdaE;
    j["BetaXC1"] = m.BetaXC1;
    j["EtaC1"] = m.EtaC1;
    j["KapaC1"] = m.KapaC1;
    j["LambdaC1"] = m.LambdaC1;
    j["BetaXC2"] = m.BetaXC2;
    j["EtaC2"] = m.EtaC2;
    j["KapaC2"] = m.KapaC2;
    j["LambdaC2"] = m.LambdaC2;
    j["Zona"] = engine::zoneLetter(m.Zona);
    j["NZona"] = static_cast<std::int16_t>(m.Zona);
    j["BetaX"] = m.BetaX;
    j["EpsC"] = m.EpsC;
    j["Teta"] = m.Teta;
    j["Eta"] = m.Eta;
    j["EtaLin"] = m.EtaLin;
    j["SigMed"] = m.SigMed;
    j["SigMedY"] = m.SigMedY;
    j["Kapa"] = m.Kapa;
    j["Lambda"] = m.Lambda;
    j["MomAco"] = m.MomAco;
    j["EpsInfIter"] = m.EpsInfIter;
    j["Rho"] = m.Rho;
    j["AsNec"] = m.AsNec;
    j["AsNecBarra"] = m.AsNecBarra;
    j["AsBarraD"] = m.AsBarraD;
    j["Indice"] = m.Indice;
    j["AsBarra"] = m.AsBarra;
    j["AsReal"] = m.AsReal;
    j["DiamLong"] = m.DiamLong;
    j["PesoLinearLong"] = m.PesoLinearLong;
    j["AsMin"] = m.AsMin;
    j["AsMinBarra"] = m.AsMinBarra;
    j["AsMax"] = m.AsMax;
    j["Excesso"] = m.Excesso;
    j["DiamEstriboMin"] = m.DiamEstriboMin;
    j["IndiceEstriboMin"] = m.IndiceEstriboMin;
    j["DiamEstribo"] = m.DiamEstribo;
    j["PesoEstribo"] = m.PesoEstribo;
    j["EspEstribo"] = m.EspEstribo;
    j["ComprGancho"] = m.ComprGancho;
    j["ComprGanchoSup"] = m.ComprGanchoSup;
    j["DeltaC"] = m.DeltaC;
    j["CobNominal"] = m.CobNominal;
    j["CobEfetivo"] = m.CobEfetivo;
    j["EspLivreH"] = m.EspLivreH;
    j["EspLivreV"] = m.EspLivreV;
    j["EspEixoH"] = m.EspEixoH;
    j["EspEixoV"] = m.EspEixoV;
    j["EspLivreMin"] = m.EspLivreMin;
    j["EspEixoMax"] = m.EspEixoMax;
    j["PesoLong"] = m.PesoLong;
    j["NSupH"] = m.NSupH;
    j["NSupV"] = m.NSupV;
    j["FlagErro"] = textoDoErro(m.FlagErro);
    j["MensagemErro"] = m.MensagemErro;
    j["ItemNorma"] = m.ItemNorma;
    j["Recalcula"] = textoDoRecalculo(m.Recalcula);
    j["NSolucoes"] = r.solutionsFound;
    j["SolucaoAtual"] = r.solutionShown;
    j["EpsInf"] = m.EpsInf;
    j["PatamarC"] = m.PatamarC;
    j["EtaLinC1"] = m.EtaLinC1;
    j["EtaLinC2"] = m.EtaLinC2;
    j["BetaXA"] = m.BetaXA;
    j["BetaXE"] = m.BetaXE;
    j["Passo"] = m.Passo;
    j["Resid"] = m.Resid;
    j["ResidAnt"] = m.ResidAnt;
    j["ProdResid"] = m.ProdResid;
    j["BetaXIni"] = m.BetaXIni;
    j["BetaXMax"] = m.BetaXMax;
    j["EpsInfIni"] = m.EpsInfIni;
    j["EpsInfMax"] = m.EpsInfMax;
    j["AsNecCopia"] = m.AsNecCopia;
    j["Delta2"] = m.Delta2;
    j["DeltaD"] = m.DeltaD;
    j["MeiaAltura"] = m.MeiaAltura;
    j["MeioD"] = m.MeioD;
    j["TextoLimite"] = m.TextoLimite;
    j["AlturaInterna"] = m.AlturaInterna;
    j["BaseEstribo"] = m.BaseEstribo;
    j["AlturaEstribo"] = m.AlturaEstribo;
    j["ComprEstribo"] = m.ComprEstribo;
    j["EspEstriboEsc"] = m.EspEstriboEsc;
    j["DiamEstriboEsc"] = m.DiamEstriboEsc;
    j["TextoEstribo"] = m.TextoEstribo;
    j["nMeioH"] = m.nMeioH;
    j["nMeioV"] = m.nMeioV;
    // The layer arrays, layer i at element i - 1; the strains and stresses of the
    // last field evaluated, layer i at element i.
    for (const char* name : {"AsCam", "YCam", "YRel", "NBarCam", "Eps", "Sig"})
        j[name] = nlohmann::ordered_json::array();
    for (long i = 0; i < p.nAltura && i < 500; ++i) {
        j["AsCam"].push_back(m.AsCam(i));
        j["YCam"].push_back(m.YCam(i));
        j["YRel"].push_back(m.YRel(i));
        j["NBarCam"].push_back(m.NBarCam(i));
        j["Eps"].push_back(m.Eps(i + 1));
        j["Sig"].push_back(m.Sig(i + 1));
    }
    auto flags = [](const VbArray<engine::TieFlag, 1, 500>& a, double n) {
        nlohmann::ordered_json arr = nlohmann::ordered_json::array();
        for (long i = 1; i <= n && i <= 500; ++i)
            arr.push_back(a(i) == engine::TieFlag::Tie ? "s" : a(i) == engine::TieFlag::NoTie ? "n" : "");
        return arr;
    };
    j["SupH"] = flags(m.SupH, p.nBase);
    j["SupV"] = flags(m.SupV, p.nAltura);
    return j;
}

nlohmann::ordered_json verificacaoJson(const engine::Verification& v)
{
    // A quantity that has no value (no M_Rd outside the axial range, no area that
    // carries the forces, a utilisation without bound) is null.
    auto numero = [](std::optional<double> x) -> nlohmann::ordered_json {
        if (!x || !std::isfinite(*x))
            return nullptr;
        return *x;
    };
    nlohmann::ordered_json curva = nlohmann::ordered_json::array();
    for (const auto& [n, m] : v.curve)
        curva.push_back({n, m});
    return {{"NSd", v.nSd},        {"MSd", v.mSd},           {"MRd", numero(v.mRd)},
            {"NRdMax", v.nRdMax},  {"NRdMin", v.nRdMin},     {"utilizacao", numero(v.utilisation)},
            {"AsCompat", numero(v.asCompat)}, {"curva", curva}};
}

nlohmann::ordered_json mensagensJson(const std::vector<DialogRecord>& records)
{
    nlohmann::ordered_json out = nlohmann::ordered_json::array();
    for (const auto& r : records) {
        switch (r.kind) {
        case DialogRecord::Kind::Error:
            out.push_back({{"janela", r.janela}, {"mensagem", r.mensagem}, {"item", r.item}});
            break;
        case DialogRecord::Kind::Cover:
            out.push_back({{"janela", r.janela},
                           {"mensagem", r.mensagem},
                           {"item", r.item},
                           {"botao1", r.botao1},
                           {"resposta", r.resposta}});
            break;
        case DialogRecord::Kind::Stirrup:
            out.push_back({{"janela", r.janela}, {"mensagem", r.mensagem}, {"opcoes", r.opcoes}, {"resposta", r.resposta}});
            break;
        case DialogRecord::Kind::Notice:
            out.push_back({{"janela", r.janela}, {"mensagem", r.mensagem}});
            break;
        }
    }
    return out;
}

namespace {
// One direction of the governing case, in the units of `estado`.
nlohmann::ordered_json direcaoJson(const engine::Direction2014& d)
{
    const engine::DirectionSlenderness& s = d.slenderness;
    nlohmann::ordered_json j{{"lado", s.side},
                             {"le", s.effectiveLength},
                             {"lambda", s.lambda},
                             {"lambda1", s.lambda1},
                             {"alfaB", s.alphaB},
                             {"e1", s.e1},
                             {"MA", s.MA},
                             {"MB", s.MB},
                             {"M1dMin", s.minimumMoment},
                             {"segundaOrdem", s.secondOrder},
                             {"M2d", s.secondOrderMoment},
                             {"MdTot", s.totalMoment},
                             {"AsNec", d.asNec}};
    if (std::isfinite(d.utilisation))
        j["utilizacao"] = d.utilisation;
    if (s.refusal)
        j["recusa"] = s.refusal->text;
    return j;
}
} // namespace

nlohmann::ordered_json obliquaJson(const engine::ObliqueCheck& o)
{
    auto numero = [](double v) { return std::isfinite(v) ? nlohmann::ordered_json(v) : nlohmann::ordered_json(nullptr); };
    nlohmann::ordered_json contorno = nlohmann::ordered_json::array();
    for (const auto& [mx, my] : o.contour)
        contorno.push_back({mx, my});
    nlohmann::ordered_json pontos = nlohmann::ordered_json::array();
    for (const auto& p : o.points)
        pontos.push_back({{"caso", p.caseName},
                          {"secao", p.section},
                          {"NSd", p.nSd},
                          {"Mx", p.mx},
                          {"My", p.my},
                          {"utilizacao", numero(p.utilisation)},
                          {"simplificada", numero(p.simplified)}});
    nlohmann::ordered_json j{{"NSd", o.nSd}, {"MRdxx", o.mRdxx}, {"MRdyy", o.mRdyy}, {"contorno", contorno},
                             {"pontos", pontos}};
    if (!o.envelope.caseName.empty())
        j["envoltoriaMinima"] = {{"caso", o.envelope.caseName},
                                 {"semiEixoX", o.envelope.semiAxisX},
                                 {"semiEixoY", o.envelope.semiAxisY},
                                 {"margem", o.envelope.margin},
                                 {"dentro", o.envelope.inside}};
    j["utilizacao"] = numero(o.utilisation);
    return j;
}

nlohmann::ordered_json norma2014Json(const app::CalculationRecord& record, const engine::Column2014Result& r)
{
    nlohmann::ordered_json j;
    j["gamaN"] = r.gammaN;
    if (r.refusal)
        j["recusa"] = r.refusal->text;
    if (r.cases.empty())
        return j;
    const engine::CaseResult2014& g = r.cases[static_cast<std::size_t>(r.governingCase)];
    j["NSd"] = g.nSd;
    j["metodo"] = record.project.slenderness.method == engine::SecondOrderMethod::ApproximateStiffness ? "rigidez"
                                                                                                      : "curvatura";
    j["caso"] = g.loadCase.name;
    j["direcoes"] = {{"h", direcaoJson(g.h)}, {"b", direcaoJson(g.b)}};
    j["governa"] = std::string(1, r.governingDirection);
    j["AsNec"] = r.asNec;
    if (r.detail.designed) {
        j["AsMin"] = r.detail.asMin;
        j["AsMax"] = r.detail.asMax;
    }
    return j;
}

nlohmann::ordered_json documentJson(const app::CalculationRecord& record, bool melhor)
{
    nlohmann::ordered_json doc;
    doc["Erros"] = record.verdict;
    doc["caixas"] = caixasJson(record);
    doc["estado"] = estadoJson(record);
    doc["mensagens"] = mensagensJson(record.transcript);
    if (melhor) {
        nlohmann::ordered_json rows = nlohmann::ordered_json::array();
        for (const auto& s : record.solutions)
            rows.push_back({{"peso", s.peso},
                            {"nBase", s.nBase},
                            {"nAltura", s.nAltura},
                            {"IndiceEstribo", s.IndiceEstribo},
                            {"DiamEstribo", s.DiamEstribo},
                            {"dLinha", s.dLinha}});
        doc["solucoes"] = rows;
    }
    if (record.verification)
        doc["verificacao"] = verificacaoJson(*record.verification);
    if (record.project.rules2014() && record.result2014) {
        doc["norma2014"] = norma2014Json(record, *record.result2014);
        if (record.result2014->oblique)
            doc["verificacaoObliqua"] = obliquaJson(*record.result2014->oblique);
    }
    if (!record.cases.empty()) {
        nlohmann::ordered_json casos = nlohmann::ordered_json::array();
        for (const auto& c : record.cases)
            casos.push_back({{"nome", c.name},
                             {"Nd", c.Nd},
                             {"Md", c.Md},
                             {"Zona", engine::zoneLetter(c.zone)},
                             {"BetaX", c.betaX},
                             {"AsNec", c.asNec},
                             {"utilizacao", std::isfinite(c.utilisation) ? nlohmann::ordered_json(c.utilisation)
                                                                         : nlohmann::ordered_json(nullptr)},
                             {"governa", c.governing}});
        doc["casos"] = casos;
    }
    return doc;
}

namespace {
// A file's name is not always UTF-8 (a name made on an older system, "n\xe3o.txt"),
// and JSON holds only UTF-8: such bytes come out as U+FFFD. Every text Pilarix
// takes in is UTF-8 already (the project files are converted on reading, --set and
// --caso refuse anything else).
std::string dumpJson(const nlohmann::ordered_json& doc, int indent)
{
    return doc.dump(indent, ' ', false, nlohmann::ordered_json::error_handler_t::replace);
}

bool endsWith(std::string name, const std::string& suffix)
{
    for (auto& c : name)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return name.size() >= suffix.size() && name.compare(name.size() - suffix.size(), suffix.size(), suffix) == 0;
}

// The drawing of the detailed section, at the scale of "Escala" for SVG and PNG.
bool writeDrawing(const app::CalculationRecord& r, const std::string& path, const DrawingWriter& writer,
                  std::string& error)
{
    if (!r.drawing) {
        error = "não há seção detalhada para desenhar em \"" + path + "\": o cálculo terminou antes do detalhamento";
        return false;
    }
    const double scale = r.reading.Escala > 0 ? r.reading.Escala : 5;
    if (writer)
        return writer(*r.drawing, path, scale, error);
    if (endsWith(path, ".dxf"))
        return exporting::writeDxf(*r.drawing, path, error);
    error = "\"" + path + "\": este pilarix-cli grava o desenho apenas em DXF (.dxf)";
    return false;
}
} // namespace

namespace {

// One project through the window's model: loaded, set, its cases, calculated, saved
// and drawn as asked. Status 2 where something asked for could not be done.
struct ProjectRun {
    int status = 0;
    std::string out, err;
    std::optional<BatchRow> row;
};

ProjectRun runProject(const cli::Options& o, const std::string& given, const std::vector<CasoDeCarga>& cases,
                      const DrawingWriter& writer, const ReportWriter& reportWriter, bool batch)
{
    ProjectRun r;
    std::ostringstream out, err;
    auto stop = [&](const std::string& message) {
        err << "pilarix-cli: " << message << "\n";
        r.status = 2;
        r.out = out.str();
        r.err = err.str();
        return r;
    };

    ProgressOnStderr dialogs;
    dialogs.coverAnswer = o.cobrimento;
    dialogs.stirrupOption = o.estribo;
    Program program(dialogs);

    const std::string file = !given.empty()                                        ? given
                             : !o.semPadrao && std::filesystem::exists("Padrão.txt") ? std::string("Padrão.txt")
                                                                                     : std::string();
    std::string error;
    if (!file.empty() && !load(program, file, error))
        return stop(error);
    // Messages of the loading belong to the loading, not to the run.
    dialogs.records.clear();

    for (const auto& [name, value] : o.sets)
        if (!setControlByName(program, name, value, error))
            return stop("--set " + name + "=" + value + ": " + error);
    cli::applyCases(program, cases);

    if (o.limiteBusca >= 0)
        program.LimiteDaBusca = o.limiteBusca;
    if (o.melhor)
        program.Command8_Click();
    else
        program.Command1_Click();

    if (!o.salvar.empty()) {
        program.NomeArquivo = o.salvar;
        program.ErroArquivo.clear();
        program.Grava32();
        if (!program.ErroArquivo.empty())
            return stop(program.ErroArquivo);
    }

    // Every output of this run reads the one record of its calculation.
    const app::CalculationRecord record = program.registroDoCalculo();
    if (!o.desenho.empty() && !writeDrawing(record, o.desenho, writer, error)) {
        err << "pilarix-cli: " << error << "\n";
        r.status = 2;
    }
    if (!o.memorial.empty() && !writeMemorial(record, o.memorial, reportWriter, error)) {
        err << "pilarix-cli: " << error << "\n";
        r.status = 2;
    }

    r.row = batchRow(record, file);
    if (batch) {
        if (o.json) {
            nlohmann::ordered_json doc{{"arquivo", file}};
            doc.update(documentJson(record, o.melhor));
            out << dumpJson(doc, -1) << "\n";
        }
    } else if (!o.json) {
        report(record, out);
    } else {
        out << dumpJson(documentJson(record, o.melhor), 2) << "\n";
    }
    r.out = out.str();
    r.err = err.str();
    return r;
}

} // namespace

int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err, const DrawingWriter& writer,
           const ReportWriter& reportWriter)
{
    cli::Options o;
    std::string error;
    if (!cli::parseOptions(args, o, error)) {
        err << "pilarix-cli: " << error << "\n" << cli::kUsage << "\n";
        return 2;
    }
    std::vector<CasoDeCarga> cases;
    for (const auto& c : o.cases) {
        CasoDeCarga one;
        if (!cli::parseCase(c, one, error)) {
            err << "pilarix-cli: " << error << "\n";
            return 2;
        }
        cases.push_back(one);
    }
    if (!o.casesFile.empty() && !cli::readCasesFile(o.casesFile, cases, error)) {
        err << "pilarix-cli: " << error << "\n";
        return 2;
    }

    const bool batch = o.files.size() > 1;
    if (!batch) {
        const ProjectRun r = runProject(o, o.files.empty() ? std::string() : o.files[0], cases, writer, reportWriter, false);
        out << r.out;
        err << r.err;
        if (!o.csv.empty() && r.row && !writeBatchCsv(o.csv, {*r.row}, err))
            return 2;
        return r.status;
    }

    // Many projects: each runs on its own, on every core; the results come out in the
    // order of the files.
    std::vector<ProjectRun> runs(o.files.size());
    runInParallel(o.files.size(), [&](std::size_t i) { runs[i] = runProject(o, o.files[i], cases, writer, reportWriter, true); });
    int status = 0;
    std::vector<BatchRow> rows;
    for (std::size_t i = 0; i < runs.size(); ++i) {
        out << runs[i].out;
        err << runs[i].err;
        status = std::max(status, runs[i].status);
        rows.push_back(runs[i].row ? *runs[i].row : BatchRow{o.files[i], {}, "erro de leitura"});
    }
    if (!o.json)
        writeBatchTable(rows, out);
    if (!o.csv.empty() && !writeBatchCsv(o.csv, rows, err))
        status = 2;
    return status;
}

} // namespace pilarix
