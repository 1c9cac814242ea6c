#include "ui/norma2014_results.h"

#include "base/number_text.h"
#include "render/interaction_painter.h"
#include "app/units.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

#include <cmath>

namespace pilarix::ui {

namespace {
QString qs(const std::string& s) { return QString::fromStdString(s); }

QString numero(double x, const char* mascara)
{
    return std::isfinite(x) ? qs(Format(x, mascara)) : QStringLiteral("—");
}

const char* kTitulos[] = {"λ", "λ1", "αb", "e1 (cm)", "M1d,mín", "M2d", "Md,tot", "2ª ordem", "As (cm²)"};
} // namespace

Norma2014Results::Norma2014Results(QWidget* parent) : QGroupBox(QStringLiteral("Esbeltez e 2ª ordem"), parent)
{
    setObjectName(QStringLiteral("FrameEsbeltez"));
    auto* g = new QGridLayout(this);
    g->setHorizontalSpacing(8);
    g->setVerticalSpacing(1);
    g->setContentsMargins(8, 4, 8, 4);
    cabecalhoH_ = new QLabel(QStringLiteral("dir. h"));
    cabecalhoB_ = new QLabel(QStringLiteral("dir. b"));
    g->addWidget(cabecalhoH_, 0, 1, Qt::AlignRight);
    g->addWidget(cabecalhoB_, 0, 2, Qt::AlignRight);
    for (int i = 0; i < kLinhas; ++i) {
        rotulos_[static_cast<std::size_t>(i)] = new QLabel(QString::fromUtf8(kTitulos[i]));
        g->addWidget(rotulos_[static_cast<std::size_t>(i)], i + 1, 0);
        for (int d = 0; d < 2; ++d) {
            auto* l = new QLabel;
            l->setObjectName(QStringLiteral("lbl2014_%1_%2").arg(i).arg(d == 0 ? QLatin1Char('h') : QLatin1Char('b')));
            l->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            l->setTextInteractionFlags(Qt::TextSelectableByMouse);
            valores_[static_cast<std::size_t>(i)][static_cast<std::size_t>(d)] = l;
            g->addWidget(l, i + 1, d + 1);
        }
    }
    resumo_ = new QLabel;
    resumo_->setObjectName(QStringLiteral("lblResumo2014"));
    resumo_->setWordWrap(true);
    g->addWidget(resumo_, kLinhas + 1, 0, 1, 3);
    obliqua_ = new QLabel;
    obliqua_->setObjectName(QStringLiteral("lblObliqua"));
    obliqua_->setWordWrap(true);
    g->addWidget(obliqua_, kLinhas + 2, 0, 1, 2);
    diagrama_ = new QPushButton(QStringLiteral("Mx–My..."));
    diagrama_->setObjectName(QStringLiteral("cmdDiagramaMxMy"));
    diagrama_->setAutoDefault(false);
    diagrama_->setToolTip(QStringLiteral("Diagrama Mx–My: contorno resistente em N_Sd, os pontos de cada caso e a "
                                         "envoltória mínima"));
    connect(diagrama_, &QPushButton::clicked, this, &Norma2014Results::abreDiagrama);
    g->addWidget(diagrama_, kLinhas + 2, 2, Qt::AlignRight);
    g->setColumnStretch(0, 1);
    setVisible(false);
}

QLabel* Norma2014Results::valor(Linha linha, char direcao) const
{
    return valores_[static_cast<std::size_t>(linha)][direcao == 'b' ? 1 : 0];
}

void Norma2014Results::mostra(const app::CalculationRecord& registro, bool desatualizado)
{
    desatualizado_ = desatualizado;
    const bool mostrar = registro.project.rules2014() && registro.result2014.has_value();
    setVisible(mostrar);
    if (!mostrar)
        return;
    const engine::Column2014Result& r = *registro.result2014;
    const ShownUnit momento = registro.project.units.shownMoment();
    const double fm = momento.factor;
    const QString unidade = qs(momento.name);
    rotulos_[M1dMin]->setText(QStringLiteral("M1d,mín (%1)").arg(unidade));
    rotulos_[M2d]->setText(QStringLiteral("M2d (%1)").arg(unidade));
    rotulos_[MdTot]->setText(QStringLiteral("Md,tot (%1)").arg(unidade));
    for (auto& linha : valores_)
        for (auto* l : linha)
            l->clear();
    obliqua_->clear();
    diagrama_->setEnabled(r.oblique.has_value());
    if (r.refusal || r.cases.empty()) {
        resumo_->setText(QStringLiteral("γn = %1. %2")
                             .arg(numero(r.gammaN, "0.000"),
                                  r.refusal ? qs(r.refusal->text) : QStringLiteral("Nada foi dimensionado.")));
    } else {
        const engine::CaseResult2014& g = r.cases[static_cast<std::size_t>(r.governingCase)];
        const std::array<const engine::Direction2014*, 2> dir{&g.h, &g.b};
        for (std::size_t d = 0; d < 2; ++d) {
            const engine::DirectionSlenderness& s = dir[d]->slenderness;
            const auto poe = [&](Linha l, const QString& t) { valores_[l][d]->setText(t); };
            poe(Lambda, numero(s.lambda, "##0.0"));
            poe(Lambda1, numero(s.lambda1, "##0.0"));
            poe(AlfaB, numero(s.alphaB, "0.00"));
            poe(E1, numero(s.e1, "##0.00"));
            if (s.refusal) {
                poe(SegundaOrdem, QStringLiteral("λ > 90"));
                continue;
            }
            poe(M1dMin, numero(s.minimumMoment / fm, "##0.00"));
            poe(M2d, s.secondOrder ? numero(s.secondOrderMoment / fm, "##0.00") : QStringLiteral("—"));
            poe(MdTot, numero(s.totalMoment / fm, "##0.00"));
            poe(SegundaOrdem, s.secondOrder ? QStringLiteral("sim") : QStringLiteral("não"));
            poe(As, numero(dir[d]->asNec, "##0.00"));
        }
        QString resumo = QStringLiteral("Governa a direção %1").arg(QLatin1Char(r.governingDirection));
        if (r.cases.size() > 1)
            resumo += QStringLiteral(", caso \"%1\"").arg(qs(g.loadCase.name));
        resumo += QStringLiteral("; γn = %1; %2.")
                      .arg(numero(r.gammaN, "0.000"), registro.project.slenderness.method == engine::SecondOrderMethod::ApproximateStiffness
                                                          ? QStringLiteral("rigidez κ")
                                                          : QStringLiteral("curvatura aproximada"));
        resumo_->setText(resumo);
        if (r.oblique) {
            const engine::ObliqueCheck& o = *r.oblique;
            QString t = QStringLiteral("Oblíqua: utilização %1").arg(render::utilisationText(o.utilisation));
            if (!o.envelope.caseName.empty())
                t += QStringLiteral("; envoltória mínima: margem %1 (%2)")
                         .arg(numero(o.envelope.margin, "0.00"),
                              o.envelope.inside ? QStringLiteral("dentro") : QStringLiteral("FORA"));
            obliqua_->setText(t);
        }
    }
    // Out of date: every figure in the grey of the other results; a failed oblique check in red.
    const bool falhou = r.oblique
                        && (!(r.oblique->utilisation <= 1)
                            || (!r.oblique->envelope.caseName.empty() && !r.oblique->envelope.inside));
    setStyleSheet(desatualizado ? QStringLiteral("QLabel { color: rgb(140, 140, 140); }") : QString());
    obliqua_->setStyleSheet(!desatualizado && falhou ? QStringLiteral("color: rgb(205, 30, 30);") : QString());
}

} // namespace pilarix::ui
