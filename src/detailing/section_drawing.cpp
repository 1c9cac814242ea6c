// The drawing of the section to scale: the detail an engineer checks first. Lengths
// in cm are turned into drawing units by the scale Escala (Text6); the section's
// top-left corner sits at OrigemX, OrigemY, the margin inside the drawing frame.
// The face of width b runs across the picture and the depth h (the direction of the
// moment) runs down it.

#include "driver/program.h"

#include "base/number_text.h"

#include <algorithm>
#include <cmath>

namespace pilarix {

namespace {

constexpr Color kConcreto = kBlack;
constexpr Color kAco = Color::rgb(160, 0, 0);    // stirrups and ties, as on a coloured detail
constexpr Color kBarra = kBlack;
constexpr Color kCota = Color::rgb(70, 70, 70);  // dimension lines
constexpr Color kTexto = kBlack;

// Room between the section and its dimension lines, and between lines of text.
constexpr double kAfastamentoCota = 18;
constexpr double kExtensaoCota = 4;
constexpr double kMarcaCota = 4;
constexpr double kLinhaTexto = 16;
// Average width of a character of the labels, to centre a text under its line.
constexpr double kLarguraLetra = 7;

struct Tela {
    Program& p;
    double x(double cm) const { return p.OrigemX + cm * p.Escala; }
    double y(double cm) const { return p.OrigemY + cm * p.Escala; }
    double len(double cm) const { return cm * p.Escala; }

    void linha(double x1, double y1, double x2, double y2, Color c) const
    {
        p.Form1.Picture.items.push_back({.kind = DrawItem::Kind::Line, .x1 = x1, .y1 = y1, .x2 = x2, .y2 = y2, .text = {}, .color = c});
    }
    void retangulo(double x1, double y1, double x2, double y2, Color c) const
    {
        linha(x1, y1, x2, y1, c);
        linha(x2, y1, x2, y2, c);
        linha(x2, y2, x1, y2, c);
        linha(x1, y2, x1, y1, c);
    }
    void barra(double cx, double cy, double raio) const
    {
        p.Form1.Picture.items.push_back(
            {.kind = DrawItem::Kind::FilledCircle, .x1 = cx, .y1 = cy, .radius = raio, .text = {}, .color = kBarra});
    }
    void texto(double x1, double y1, std::string t) const
    {
        p.Form1.Picture.items.push_back(
            {.kind = DrawItem::Kind::Text, .x1 = x1, .y1 = y1, .text = std::move(t), .color = kTexto});
    }
};

// Positions of the bar axes along a face, from one corner bar to the other, in cm
// from the face's start. A face of one bar (the input allows it, the design then
// fails before drawing) keeps its bar in the middle of the face.
double posicaoNaFace(double comprimento, double dLinha, long n, long i)
{
    if (n < 2)
        return comprimento / 2;
    return dLinha + static_cast<double>(i - 1) * (comprimento - 2 * dLinha) / static_cast<double>(n - 1);
}

// Number of bars on a face as the drawing can use it: the counts are whole numbers
// read from the window; the flag arrays hold 500 positions.
long barrasNaFace(double n) { return std::clamp(static_cast<long>(std::lround(n)), 0L, 500L); }

// A dimension line with its extension lines and oblique ticks, as on a structural
// drawing, and its value written beside it.
void cotaHorizontal(const Tela& t, double x1, double x2, double yPeca, double yCota, const std::string& valor)
{
    t.linha(x1, yPeca + 2, x1, yCota + kExtensaoCota, kCota);
    t.linha(x2, yPeca + 2, x2, yCota + kExtensaoCota, kCota);
    t.linha(x1, yCota, x2, yCota, kCota);
    t.linha(x1 - kMarcaCota, yCota + kMarcaCota, x1 + kMarcaCota, yCota - kMarcaCota, kCota);
    t.linha(x2 - kMarcaCota, yCota + kMarcaCota, x2 + kMarcaCota, yCota - kMarcaCota, kCota);
    const double largura = kLarguraLetra * static_cast<double>(valor.size());
    t.texto((x1 + x2) / 2 - largura / 2, yCota + 2, valor);
}

void cotaVertical(const Tela& t, double y1, double y2, double xPeca, double xCota, const std::string& valor)
{
    t.linha(xPeca + 2, y1, xCota + kExtensaoCota, y1, kCota);
    t.linha(xPeca + 2, y2, xCota + kExtensaoCota, y2, kCota);
    t.linha(xCota, y1, xCota, y2, kCota);
    t.linha(xCota - kMarcaCota, y1 + kMarcaCota, xCota + kMarcaCota, y1 - kMarcaCota, kCota);
    t.linha(xCota - kMarcaCota, y2 + kMarcaCota, xCota + kMarcaCota, y2 - kMarcaCota, kCota);
    t.texto(xCota + 5, (y1 + y2) / 2 - kLinhaTexto / 2, valor);
}

// The two hooks of the closed stirrup, at its top-left corner, bent into the core:
// 135° hooks (the "45 ou semi-circular" option) run parallel at 45°, right-angle
// hooks run straight along the opposite leg.
void ganchosDoEstribo(const Tela& t, double xc, double yc, double tamanho, bool ganchoA45)
{
    const double d = tamanho * std::sqrt(0.5);
    if (ganchoA45) {
        t.linha(xc + 4, yc, xc + 4 + d, yc + d, kAco);
        t.linha(xc, yc + 4, xc + d, yc + 4 + d, kAco);
    } else {
        t.linha(xc + 4, yc, xc + 4, yc + tamanho, kAco);
        t.linha(xc, yc + 4, xc + tamanho, yc + 4, kAco);
    }
}

// A supplementary stirrup: a straight tie from bar to bar across the section, with
// its 135° hooks around the bars at both ends.
void grampo(const Tela& t, double xa, double ya, double xb, double yb, double gancho)
{
    t.linha(xa, ya, xb, yb, kAco);
    const double len = std::hypot(xb - xa, yb - ya);
    if (len <= 0)
        return;
    // unit vector along the tie and its normal
    const double ux = (xb - xa) / len, uy = (yb - ya) / len;
    const double nx = -uy, ny = ux;
    const double g = gancho * std::sqrt(0.5);
    t.linha(xa, ya, xa + g * (ux + nx), ya + g * (uy + ny), kAco);
    t.linha(xb, yb, xb + g * (-ux + nx), yb + g * (-uy + ny), kAco);
}

} // namespace

void Program::Desenha35()
{
    const Tela t{*this};
    const long nb = barrasNaFace(nBase);
    const long nh = barrasNaFace(nAltura);

    // Concrete outline.
    const double x0 = t.x(0), y0 = t.y(0), x1 = t.x(Base), y1 = t.y(Altura);
    t.retangulo(x0, y0, x1, y1, kConcreto);

    // Stirrup: its outer face at the effective cover, its inner face one stirrup
    // diameter further in, so that the bars drawn at d' bear on it.
    const double c = CobEfetivo;
    t.retangulo(t.x(c), t.y(c), t.x(Base - c), t.y(Altura - c), kAco);
    t.retangulo(t.x(c + DiamEstribo), t.y(c + DiamEstribo), t.x(Base - c - DiamEstribo),
                t.y(Altura - c - DiamEstribo), kAco);
    const double eixoEstribo = c + DiamEstribo / 2;
    ganchosDoEstribo(t, t.x(eixoEstribo), t.y(eixoEstribo), std::max(t.len(5 * DiamEstribo), 8.0),
                     Form1.Option7[0].Value);

    // Bars, as circles of their own diameter: nBase on each face of width b (the
    // corner bars among them), nAltura on each face of depth h.
    const double raio = t.len(DiamLong / 2);
    for (long i = 1; i <= nb; ++i) {
        const double xi = t.x(posicaoNaFace(Base, dLinha, nb, i));
        t.barra(xi, t.y(dLinha), raio);
        t.barra(xi, t.y(Altura - dLinha), raio);
    }
    for (long j = 2; j <= nh - 1; ++j) {
        const double yj = t.y(posicaoNaFace(Altura, dLinha, nh, j));
        t.barra(t.x(dLinha), yj, raio);
        t.barra(t.x(Base - dLinha), yj, raio);
    }

    // Overall dimensions, below and to the right of the section.
    const double yCota = y1 + kAfastamentoCota;
    const double xCota = x1 + kAfastamentoCota;
    cotaHorizontal(t, x0, x1, y1, yCota, Format(Base, "##0"));
    cotaVertical(t, y0, y1, x1, xCota, Format(Altura, "##0"));

    // Labels: N3 the longitudinal bars, N4 the stirrup with its spacing and inner
    // dimensions (the bending schedule's "b x h" of the stirrup).
    double yTexto = yCota + kLinhaTexto + 6;
    t.texto(x0, yTexto,
            "N3= " + Format(NBarrasTotal, "##0") + " ø " + Format(DiamLong * 10, "##0.0") + " (" + Format(nBase, "##0")
                + " x " + Format(nAltura, "##0") + ")");
    yTexto += kLinhaTexto;
    t.texto(x0, yTexto,
            "N4= ø " + Format(DiamEstribo * 10, "##0.0") + " c/ " + Format(EspEstribo, "##0") + "cm  ("
                + Format(Base - 2 * c, "##0.00") + " x " + Format(Altura - 2 * c, "##0.00") + "cm)");
    yTexto += kLinhaTexto;
    t.texto(x0, yTexto, "d'= " + Format(dLinha, "##0.00") + "cm  c= " + Format(c, "##0.00") + "cm");

    Form1.CotasVisiveis = true;
}

void Program::DesenhaSup36()
{
    const Tela t{*this};
    const long nb = barrasNaFace(nBase);
    const long nh = barrasNaFace(nAltura);
    const double gancho = std::max(t.len(std::max(3 * DiamEstribo, 1.5)), 6.0);

    // A flag at position i of a face of width b ties bar i of the top face to bar i
    // of the bottom face; the arrangement is symmetric, one tie serves both faces.
    for (long i = 1; i <= nb; ++i) {
        if (SupH(i) != "s")
            continue;
        const double xi = t.x(posicaoNaFace(Base, dLinha, nb, i));
        grampo(t, xi, t.y(dLinha), xi, t.y(Altura - dLinha), gancho);
    }
    for (long j = 1; j <= nh; ++j) {
        if (SupV(j) != "s")
            continue;
        const double yj = t.y(posicaoNaFace(Altura, dLinha, nh, j));
        grampo(t, t.x(dLinha), yj, t.x(Base - dLinha), yj, gancho);
    }
}

} // namespace pilarix
