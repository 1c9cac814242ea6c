#include "cli/cli.h"

#include "cli/controls_by_name.h"
#include "cli/recording_dialogs.h"
#include "base/number_text.h"

#include <filesystem>
#include <ostream>

namespace pilarix {

namespace {

constexpr const char* kUso =
    "uso: pilarix-cli [ARQUIVO] [--set CONTROLE=VALOR]... [--melhor] [--cobrimento 1|2] "
    "[--estribo K] [--salvar SAIDA] [--sem-padrao] [--json]";

struct Options {
    std::string file;
    std::vector<std::pair<std::string, std::string>> sets;
    bool melhor = false;
    int cobrimento = 1;
    int estribo = 4;
    std::string salvar;
    bool json = false;
    bool semPadrao = false; // do not load "Padrão.txt" of the working directory
};

bool parse(const std::vector<std::string>& args, Options& o, std::string& error)
{
    for (std::size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto next = [&](std::string& v) {
            if (i + 1 >= args.size()) {
                error = a + " precisa de um valor";
                return false;
            }
            v = args[++i];
            return true;
        };
        std::string v;
        if (a == "--json") {
            o.json = true;
        } else if (a == "--melhor") {
            o.melhor = true;
        } else if (a == "--sem-padrao") {
            o.semPadrao = true;
        } else if (a == "--set") {
            if (!next(v))
                return false;
            const auto eq = v.find('=');
            if (eq == std::string::npos || eq == 0) {
                error = "--set espera CONTROLE=VALOR, não \"" + v + "\"";
                return false;
            }
            o.sets.emplace_back(v.substr(0, eq), v.substr(eq + 1));
        } else if (a == "--cobrimento") {
            if (!next(v))
                return false;
            if (v != "1" && v != "2") {
                error = "--cobrimento aceita 1 ou 2, não \"" + v + "\"";
                return false;
            }
            o.cobrimento = v[0] - '0';
        } else if (a == "--estribo") {
            if (!next(v))
                return false;
            if (v.size() != 1 || v[0] < '0' || v[0] > '4') {
                error = "--estribo aceita 0 a 4, não \"" + v + "\"";
                return false;
            }
            o.estribo = v[0] - '0';
        } else if (a == "--salvar") {
            if (!next(v))
                return false;
            o.salvar = v;
        } else if (a.size() > 1 && a[0] == '-') {
            error = "opção desconhecida: " + a;
            return false;
        } else if (o.file.empty()) {
            o.file = a;
        } else {
            error = "mais de um arquivo: " + o.file + " e " + a;
            return false;
        }
    }
    return true;
}

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

void report(const Program& p, const RecordingDialogs& d, std::ostream& out)
{
    const auto& f = p.Form1;
    out << "Pilarix - pilar " << f.Text1.Text << " x " << f.Text2.Text << " cm, comprimento " << f.Text23.Text
        << " cm\n";
    out << "Barras por face: base " << f.Text4.Text << ", altura " << f.Text5.Text << "; d' = " << f.Text3.Text
        << " cm\n";
    out << "Nd = " << f.Text16.Text << " " << f.Combo4.Text << ", Md = " << f.Text17.Text << " " << f.Combo5.Text
        << ", fck = " << f.Text18.Text << " " << f.Combo6.Text << ", " << f.Combo1.Text << "\n";
    out << "Zona: " << f.Text8.Text << " (" << p.Zona << "), Bx = " << f.Text28.Text
        << ", altura da L.N. = " << f.Text29.Text << " cm\n";
    out << "Área de aço (cm2): mínima " << f.Text9.Text << ", teórica " << f.Text10.Text << ", efetiva "
        << f.Text11.Text << "\n";
    out << "Por barra (cm2): mínima " << f.Text12.Text << ", teórica " << f.Text13.Text << ", efetiva "
        << f.Text14.Text << "\n";
    out << "Bitola: " << Str(p.DiamLong * 10) << " mm; excesso " << f.Text15.Text << "; aço " << f.Text19.Text
        << " kg\n";
    out << "Estribo: " << f.Text27.Text << "; cobrimento nominal " << f.Text25.Text << " cm, efetivo "
        << f.Text26.Text << " cm\n";
    for (const auto& m : d.messages) {
        out << "[" << m.value("janela", "") << "] " << m.value("mensagem", "");
        if (m.contains("item") && !m["item"].get<std::string>().empty())
            out << " (" << m["item"].get<std::string>() << ")";
        if (m.contains("resposta"))
            out << " -> resposta " << m["resposta"].dump();
        out << "\n";
    }
    out << "Erros: " << f.Text30.Text << "\n";
}

} // namespace

nlohmann::ordered_json caixasJson(const Program& p)
{
    nlohmann::ordered_json j = nlohmann::ordered_json::object();
    for (const auto& [name, box] : textBoxesOf(p.Form1)) {
        j[name] = box->Text;
        if (name.rfind("Text7(", 0) == 0)
            j[name + ".destaque"] = box->BackColor == kDarkBlue;
    }
    return j;
}

nlohmann::ordered_json estadoJson(const Program& p)
{
    nlohmann::ordered_json j = nlohmann::ordered_json::object();
#define PILARIX_FIELD(f) j[#f] = p.f
    PILARIX_FIELD(Base);
    PILARIX_FIELD(Altura);
    PILARIX_FIELD(Comprimento);
    PILARIX_FIELD(nBase);
    PILARIX_FIELD(nAltura);
    PILARIX_FIELD(nMaxBase);
    PILARIX_FIELD(nMaxAltura);
    PILARIX_FIELD(Nd);
    PILARIX_FIELD(Md);
    PILARIX_FIELD(Fck);
    PILARIX_FIELD(Es);
    PILARIX_FIELD(GamaC);
    PILARIX_FIELD(GamaS);
    PILARIX_FIELD(Precisao);
    PILARIX_FIELD(DiamAgregado);
    PILARIX_FIELD(IndiceBitolaMax);
    PILARIX_FIELD(IndiceEstriboMax);
    PILARIX_FIELD(Escala);
    PILARIX_FIELD(ErroEntrada);
    PILARIX_FIELD(fyk);
    PILARIX_FIELD(fyd);
    PILARIX_FIELD(EpYd);
    PILARIX_FIELD(SigS2);
    PILARIX_FIELD(fcd);
    PILARIX_FIELD(SigCd);
    PILARIX_FIELD(dLinha);
    PILARIX_FIELD(Delta);
    PILARIX_FIELD(Ac);
    PILARIX_FIELD(MenorDim);
    PILARIX_FIELD(GamaN);
    PILARIX_FIELD(Ni);
    PILARIX_FIELD(Mi);
    PILARIX_FIELD(NBarrasTotal);
    PILARIX_FIELD(NiCrit);
    PILARIX_FIELD(NiCrit1);
    PILARIX_FIELD(NiCrit2);
    PILARIX_FIELD(MiA);
    PILARIX_FIELD(MiE);
    PILARIX_FIELD(MiC);
    PILARIX_FIELD(MiC1);
    PILARIX_FIELD(Mi0);
    PILARIX_FIELD(EtaA);
    PILARIX_FIELD(EtaE);
    PILARIX_FIELD(EtaLinA);
    PILARIX_FIELD(EtaLinE);
    PILARIX_FIELD(KapaA);
    PILARIX_FIELD(KapaE);
    PILARIX_FIELD(LambdaA);
    PILARIX_FIELD(LambdaE);
    PILARIX_FIELD(BetaXC1);
    PILARIX_FIELD(EtaC1);
    PILARIX_FIELD(KapaC1);
    PILARIX_FIELD(LambdaC1);
    PILARIX_FIELD(BetaXC2);
    PILARIX_FIELD(EtaC2);
    PILARIX_FIELD(KapaC2);
    PILARIX_FIELD(LambdaC2);
    PILARIX_FIELD(Zona);
    PILARIX_FIELD(NZona);
    PILARIX_FIELD(BetaX);
    PILARIX_FIELD(EpsC);
    PILARIX_FIELD(Teta);
    PILARIX_FIELD(Eta);
    PILARIX_FIELD(EtaLin);
    PILARIX_FIELD(SigMed);
    PILARIX_FIELD(SigMedY);
    PILARIX_FIELD(Kapa);
    PILARIX_FIELD(Lambda);
    PILARIX_FIELD(MomAco);
    PILARIX_FIELD(EpsInfIter);
    PILARIX_FIELD(Rho);
    PILARIX_FIELD(AsNec);
    PILARIX_FIELD(AsNecBarra);
    PILARIX_FIELD(AsBarraD);
    PILARIX_FIELD(Indice);
    PILARIX_FIELD(AsBarra);
    PILARIX_FIELD(AsReal);
    PILARIX_FIELD(DiamLong);
    PILARIX_FIELD(PesoLinearLong);
    PILARIX_FIELD(AsMin);
    PILARIX_FIELD(AsMinBarra);
    PILARIX_FIELD(AsMax);
    PILARIX_FIELD(Excesso);
    PILARIX_FIELD(DiamEstriboMin);
    PILARIX_FIELD(IndiceEstriboMin);
    PILARIX_FIELD(DiamEstribo);
    PILARIX_FIELD(PesoEstribo);
    PILARIX_FIELD(EspEstribo);
    PILARIX_FIELD(ComprGancho);
    PILARIX_FIELD(ComprGanchoSup);
    PILARIX_FIELD(DeltaC);
    PILARIX_FIELD(CobNominal);
    PILARIX_FIELD(CobEfetivo);
    PILARIX_FIELD(EspLivreH);
    PILARIX_FIELD(EspLivreV);
    PILARIX_FIELD(EspEixoH);
    PILARIX_FIELD(EspEixoV);
    PILARIX_FIELD(EspLivreMin);
    PILARIX_FIELD(EspEixoMax);
    PILARIX_FIELD(PesoLong);
    PILARIX_FIELD(NSupH);
    PILARIX_FIELD(NSupV);
    PILARIX_FIELD(FlagErro);
    PILARIX_FIELD(MensagemErro);
    PILARIX_FIELD(ItemNorma);
    PILARIX_FIELD(Recalcula);
    PILARIX_FIELD(NSolucoes);
    PILARIX_FIELD(SolucaoAtual);
    PILARIX_FIELD(EpsInf);
    PILARIX_FIELD(PatamarC);
    PILARIX_FIELD(EtaLinC1);
    PILARIX_FIELD(EtaLinC2);
    PILARIX_FIELD(BetaXA);
    PILARIX_FIELD(BetaXE);
    PILARIX_FIELD(Passo);
    PILARIX_FIELD(Resid);
    PILARIX_FIELD(ResidAnt);
    PILARIX_FIELD(ProdResid);
    PILARIX_FIELD(BetaXIni);
    PILARIX_FIELD(BetaXMax);
    PILARIX_FIELD(EpsInfIni);
    PILARIX_FIELD(EpsInfMax);
    PILARIX_FIELD(AsNecCopia);
    PILARIX_FIELD(Delta2);
    PILARIX_FIELD(DeltaD);
    PILARIX_FIELD(MeiaAltura);
    PILARIX_FIELD(MeioD);
    PILARIX_FIELD(TextoLimite);
    PILARIX_FIELD(AlturaInterna);
    PILARIX_FIELD(BaseEstribo);
    PILARIX_FIELD(AlturaEstribo);
    PILARIX_FIELD(ComprEstribo);
    PILARIX_FIELD(EspEstriboEsc);
    PILARIX_FIELD(DiamEstriboEsc);
    PILARIX_FIELD(TextoEstribo);
    PILARIX_FIELD(nMeioH);
    PILARIX_FIELD(nMeioV);
#undef PILARIX_FIELD
    // The layer arrays, layer i at element i - 1; the strains and stresses of the
    // last field evaluated, layer i at element i.
    for (const char* name : {"AsCam", "YCam", "YRel", "NBarCam", "Eps", "Sig"})
        j[name] = nlohmann::ordered_json::array();
    for (long i = 0; i < p.nAltura && i < 500; ++i) {
        j["AsCam"].push_back(p.AsCam(i));
        j["YCam"].push_back(p.YCam(i));
        j["YRel"].push_back(p.YRel(i));
        j["NBarCam"].push_back(p.NBarCam(i));
        j["Eps"].push_back(p.Eps(i + 1));
        j["Sig"].push_back(p.Sig(i + 1));
    }
    auto flags = [](const VbArray<std::string, 1, 500>& a, double n) {
        nlohmann::ordered_json arr = nlohmann::ordered_json::array();
        for (long i = 1; i <= n && i <= 500; ++i)
            arr.push_back(a(i));
        return arr;
    };
    j["SupH"] = flags(p.SupH, p.nBase);
    j["SupV"] = flags(p.SupV, p.nAltura);
    return j;
}

nlohmann::ordered_json documentJson(const Program& program, const RecordingDialogs& dialogs, bool melhor)
{
    nlohmann::ordered_json doc;
    doc["Erros"] = program.Form1.Text30.Text;
    doc["caixas"] = caixasJson(program);
    doc["estado"] = estadoJson(program);
    doc["mensagens"] = dialogs.messages;
    if (melhor) {
        nlohmann::ordered_json rows = nlohmann::ordered_json::array();
        for (const auto& s : program.Ordenadas)
            rows.push_back({{"peso", s.peso},
                            {"nBase", s.nBase},
                            {"nAltura", s.nAltura},
                            {"IndiceEstribo", s.IndiceEstribo},
                            {"DiamEstribo", s.DiamEstribo},
                            {"dLinha", s.dLinha}});
        doc["solucoes"] = rows;
    }
    return doc;
}

int runCli(const std::vector<std::string>& args, std::ostream& out, std::ostream& err)
{
    Options o;
    std::string error;
    if (!parse(args, o, error)) {
        err << "pilarix-cli: " << error << "\n" << kUso << "\n";
        return 2;
    }

    RecordingDialogs dialogs;
    dialogs.coverAnswer = o.cobrimento;
    dialogs.stirrupOption = o.estribo;
    Program program(dialogs);

    const std::string file = !o.file.empty()                                  ? o.file
                             : !o.semPadrao && std::filesystem::exists("Padrão.txt") ? std::string("Padrão.txt")
                                                                                     : std::string();
    if (!file.empty() && !load(program, file, error)) {
        err << "pilarix-cli: " << error << "\n";
        return 2;
    }
    // Messages of the loading belong to the loading, not to the run.
    dialogs.messages = nlohmann::ordered_json::array();

    for (const auto& [name, value] : o.sets) {
        if (!setControlByName(program, name, value, error)) {
            err << "pilarix-cli: --set " << name << "=" << value << ": " << error << "\n";
            return 2;
        }
    }

    if (o.melhor)
        program.Command8_Click();
    else
        program.Command1_Click();

    if (!o.salvar.empty()) {
        program.NomeArquivo = o.salvar;
        program.ErroArquivo.clear();
        program.Grava32();
        if (!program.ErroArquivo.empty()) {
            err << "pilarix-cli: " << program.ErroArquivo << "\n";
            return 2;
        }
    }

    if (!o.json) {
        report(program, dialogs, out);
        return 0;
    }
    out << documentJson(program, dialogs, o.melhor).dump(2) << "\n";
    return 0;
}

} // namespace pilarix
