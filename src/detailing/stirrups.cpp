// Stirrup diameter and spacing, hooks, and the stirrup choice dialog.

#include "driver/program.h"

#include "base/number_text.h"

namespace pilarix {

namespace {

constexpr const char* kItemEstribo = "Item 18.4.3";

// The pre-defined stirrups of the "Estribos" frame. Their masses are the program's
// own rounded figures and differ from the catalogue's on purpose.
struct EstriboPreDef {
    const char* texto;
    double diam, peso;
    long indice;
};
constexpr EstriboPreDef kPreDefinidos[] = {
    {"5 mm", 0.5, 0.16, 1},
    {"6.3 mm (1/4'')", 0.63, 0.25, 2},
    {"8 mm (5/16'')", 0.8, 0.4, 3},
    {"10 mm (3/8'')", 1, 0.63, 4},
};

// NBR 6118, 18.4.3: a stirrup of at least 5 mm and of a quarter of the longitudinal
// bar. The catalogue walk has no end guard: with bars up to 40 mm it stops by 10 mm.
void diametroMinimo(Program& p)
{
    p.DiamEstriboMin = p.DiamLong / 4 > 0.5 ? p.DiamLong / 4 : 0.5;
    for (p.Indice = 1; p.DiamBitola(p.Indice) < p.DiamEstriboMin; ++p.Indice) {
    }
    p.IndiceEstriboMin = p.Indice;
}

// NBR 6118, 18.4.3: the spacing is at most 20 cm, the smaller side, 24 φl for CA-25
// and 12 φl for CA-50; with stirrups of the same steel as the bars a thinner stirrup
// is allowed at 90000 φt²/(φl fyk) (φ in mm, fyk in MPa, spacing floored in cm).
void espacamentos(Program& p)
{
    p.EspEstribo = p.MenorDim < 20 ? Int(p.MenorDim) : 20;
    const std::string& aco = p.Form1.Combo1.Text;
    if (aco == "Aço CA-25A" || aco == "Aço CA-25B") {
        if (Int(24 * p.DiamLong) < p.EspEstribo)
            p.EspEstribo = Int(24 * p.DiamLong);
    } else if (aco == "Aço CA-50A" || aco == "Aço CA-50B") {
        if (Int(12 * p.DiamLong) < p.EspEstribo)
            p.EspEstribo = Int(12 * p.DiamLong);
    }
    for (long k = 1; k <= 3; ++k) {
        const double fiT = 10 * p.DiamBitola(k);
        p.EspEstriboAlt(k) = Int(9000 * (fiT * fiT) / (10 * p.DiamLong) / (p.fyk / 10));
        if (p.EspEstribo < p.EspEstriboAlt(k))
            p.EspEstriboAlt(k) = p.EspEstribo;
    }
}

std::string textoEstribo(const Program& p)
{
    return "φ" + Str(10 * p.DiamEstribo) + " c/" + Str(p.EspEstribo);
}

void mostraEscolha(Program& p)
{
    const long m = p.IndiceEstriboMin;
    auto& f = p.Form7;
    // The captions print the diameter as stored, in cm, after "fi de " and before "mm":
    // the program's own wording, kept as its users know it.
    f.Label1.Caption = "A bitola do estribo deverá ser de " + Str(10 * p.DiamBitola(m))
                       + "mm2 com espaçamento de " + Str(p.EspEstribo) + "cm";
    f.Label2.Caption = " Porém, se os estribos e a armadura longitudinal forem do MESMO TIPO DE AÇO, poderá ser "
                       "adotada uma das soluções abaixo:";
    f.Option1[0].Caption = "fi de " + Str(p.DiamBitola(m)) + "mm a cada " + Str(p.EspEstribo)
                           + "cm. (independe do tipo de aço do estribo).";
    f.Option1[0].Enabled = true;
    for (long i = 1; i <= m - 1; ++i) {
        auto& o = f.Option1.at(static_cast<std::size_t>(i));
        o.Caption = "fi de " + Str(p.DiamBitola(m - i)) + "mm a cada " + Str(p.EspEstriboAlt(m - i)) + "cm.";
        o.Enabled = true;
    }
    for (auto& o : f.Option1)
        o.Value = false;
    p.dialogs().chooseStirrup(f);
    p.Form7Command1_Click();
}

// Steps of the window's stirrup choice; returns having set the stirrup.
void escolheEstribo(Program& p)
{
    auto& f = p.Form1;
    if (f.Option3.Value) {
        for (const auto& e : kPreDefinidos) {
            if (f.Combo3.Text == e.texto) {
                p.DiamEstriboPreDef = e.diam;
                p.PesoEstriboPreDef = e.peso;
                p.IndiceEstriboPreDef = e.indice;
            }
        }
    }

    diametroMinimo(p);
    p.DiamEstribo = p.DiamBitola(p.IndiceEstriboMin);
    p.PesoEstribo = p.PesoBitola(p.IndiceEstriboMin);
    espacamentos(p);
    p.EspEstriboEsc = p.EspEstribo;

    const bool mesmoAco = f.Check5.ticked();
    bool escolhido = false; // a catalogue index is in Indice: stage it (step 8)
    if (f.Option5.Value) {
        if (!mesmoAco)
            return;
        p.Form7MelhorSolução();
        escolhido = true;
    } else if (f.Option3.Value) {
        if (p.DiamEstriboPreDef >= p.DiamEstribo) {
            p.DiamEstribo = p.DiamEstriboPreDef;
            p.PesoEstribo = p.PesoEstriboPreDef;
            return;
        }
        if (!mesmoAco) {
            // Calculation goes on with the minimum; the error state is not touched.
            p.MensagemErro = "O estribo pré-definido possue diâmetro inferior ao permitido pela norma. Será usado "
                             "o valor mínimo permitido que é de "
                             + Str(10 * p.DiamEstribo) + "mm.";
            p.ItemNorma = kItemEstribo;
            if (!p.modoBusca())
                p.MostraErro();
            return;
        }
        p.DiamEstribo = p.DiamEstriboPreDef;
        p.PesoEstribo = p.PesoEstriboPreDef;
        p.EspEstribo = p.EspEstriboAlt(p.IndiceEstriboPreDef);
        return;
    } else if (p.IndiceEstriboMin == 1) {
        // 5 mm is already allowed: nothing to choose.
        p.DiamEstriboEsc = p.DiamBitola(1);
        p.PesoEstriboEsc = p.PesoBitola(1);
        p.EspEstriboEsc = p.EspEstribo;
    } else if (p.Recalcula != "s") {
        mostraEscolha(p);
        escolhido = true;
    }
    // A repeated pass asks nothing: it keeps the diameter chosen in the first pass, at
    // the spacing just computed.

    if (escolhido) {
        const long k = p.Indice;
        p.DiamEstriboEsc = p.DiamBitola(k);
        p.PesoEstriboEsc = p.PesoBitola(k);
        if (k < p.IndiceEstriboMin)
            p.EspEstriboEsc = p.EspEstriboAlt(k);
    }
    p.DiamEstribo = p.DiamEstriboEsc;
    p.PesoEstribo = p.PesoEstriboEsc;
    p.EspEstribo = p.EspEstriboEsc;
}

} // namespace

void Program::Estribo28()
{
    escolheEstribo(*this);
    TextoEstribo = textoEstribo(*this);
}

void Program::Form10Estribo28()
{
    // The search has set the stirrup (diameter and mass of its catalogue entry s);
    // only its spacing is checked here, and a stirrup below the minimum passes only
    // under the same-steel rule.
    diametroMinimo(*this);
    espacamentos(*this);
    long s = 1;
    while (s < 11 && DiamBitola(s) < DiamEstribo)
        ++s;
    if (s < IndiceEstriboMin) {
        if (Form1.Check5.ticked())
            EspEstribo = EspEstriboAlt(s);
        else
            FlagErro = "s";
    }
    TextoEstribo = textoEstribo(*this);
}

void Program::Ganchos41()
{
    // Stirrup hooks of NBR 6118: two hooks of 5 φt (at least 5 cm each) when bent at 45° or in a
    // half circle, of 10 φt (at least 7 cm each) at a right angle. Supplementary
    // stirrups always get the 45° allowance.
    if (Form1.Option7[0].Value)
        ComprGancho = 10 * DiamEstribo > 10 ? 10 * DiamEstribo : 10.0;
    else
        ComprGancho = 20 * DiamEstribo > 14 ? 20 * DiamEstribo : 14.0;
    ComprGanchoSup = 10 * DiamEstribo > 10 ? 10 * DiamEstribo : 10;
}

void Program::Form7Command1_Click()
{
    long escolhido = 0;
    for (long i = 1; i <= IndiceEstriboMin; ++i) {
        const auto& o = Form7.Option1.at(static_cast<std::size_t>(i - 1));
        if (o.Value && o.Enabled) {
            escolhido = IndiceEstriboMin + 1 - i;
            break;
        }
    }
    if (escolhido == 0) {
        Form7MelhorSolução();
        escolhido = Indice;
    }
    Form7.IndiceEscolhido = escolhido;
    Form7zera();
    Indice = Form7.IndiceEscolhido;
}

void Program::Form7MelhorSolução()
{
    const long m = IndiceEstriboMin;
    for (long k = 1; k <= m - 1; ++k)
        AcoPorMetro(k) = AreaBitola(k) / EspEstriboAlt(k);
    AcoPorMetro(m) = AreaBitola(m) / EspEstribo;
    AcoMinPorMetro = AcoPorMetro(m);
    for (long k = 1; k <= m - 1; ++k)
        if (AcoPorMetro(k) < AcoMinPorMetro)
            AcoMinPorMetro = AcoPorMetro(k);
    // Ascending, so that a tie goes to the thinner stirrup.
    for (Indice = 1; Indice <= m; ++Indice)
        if (AcoPorMetro(Indice) == AcoMinPorMetro)
            break;
}

void Program::Form7zera()
{
    for (std::size_t i = 0; i < 4; ++i) {
        Form7.Option1[i].Caption.clear();
        Form7.Option1[i].Enabled = false;
    }
}

} // namespace pilarix
