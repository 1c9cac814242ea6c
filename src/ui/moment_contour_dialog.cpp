#include "ui/moment_contour_dialog.h"

#include "base/number_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace pilarix::ui {

namespace {
QString qs(const std::string& s) { return QString::fromStdString(s); }

QString numero(double x, const std::string& unidade)
{
    if (!std::isfinite(x))
        return QStringLiteral("—");
    return (qs(Format(x, "##0.00")) + QLatin1Char(' ') + qs(unidade)).trimmed();
}

QLabel* rotulo(const QString& nome, QWidget* pai)
{
    auto* l = new QLabel(pai);
    l->setObjectName(nome);
    l->setTextFormat(Qt::PlainText);
    l->setWordWrap(true);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return l;
}

void pinta(QLabel* l, const QColor& cor)
{
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, cor);
    l->setPalette(p);
}
} // namespace

MomentContourPlot::MomentContourPlot(QWidget* parent) : QWidget(parent)
{
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
}

void MomentContourPlot::setContour(std::optional<report::MomentContour> contour)
{
    contour_ = std::move(contour);
    update();
}

render::ContourLayout MomentContourPlot::layout() const
{
    if (!contour_)
        return {};
    return render::layoutContour(*contour_, QRectF(rect()).adjusted(8, 8, -8, -8), {font(), 1},
                                 const_cast<MomentContourPlot*>(this));
}

void MomentContourPlot::paintEvent(QPaintEvent*)
{
    QPainter p(this);
    const render::ContourLayout l = layout();
    if (!contour_ || !l.drawable) {
        p.setPen(palette().color(QPalette::PlaceholderText));
        p.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                   contour_ ? QStringLiteral("N_Sd fora do que a seção resiste: não há contorno Mx–My.")
                            : QStringLiteral("Calcule o pilar pela ABNT NBR 6118:2014 para ver o contorno Mx–My."));
        return;
    }
    render::paintContour(p, *contour_, l, {font(), 1});
}

MomentContourDialog::MomentContourDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDiagramaMxMy"));
    setModal(false);
    setWindowTitle(QStringLiteral("Diagrama Mx–My"));
    setSizeGripEnabled(true);

    grafico_ = new MomentContourPlot(this);
    grafico_->setObjectName(QStringLiteral("picDiagramaMxMy"));
    utilizacao_ = rotulo(QStringLiteral("lblUtilizacaoMxMy"), this);
    QFont grande = utilizacao_->font();
    grande.setBold(true);
    grande.setPointSizeF(grande.pointSizeF() + 3);
    utilizacao_->setFont(grande);
    veredito_ = rotulo(QStringLiteral("lblVereditoMxMy"), this);
    QFont negrito = veredito_->font();
    negrito.setBold(true);
    veredito_->setFont(negrito);
    figuras_ = rotulo(QStringLiteral("lblFigurasMxMy"), this);
    envoltoria_ = rotulo(QStringLiteral("lblEnvoltoria"), this);
    envoltoria_->setFont(negrito);
    auto* nota = rotulo(QStringLiteral("lblNotaMxMy"), this);
    nota->setText(QStringLiteral("Flexão composta oblíqua por compatibilidade de deformações (item 17.2.5): cada "
                                 "ponto à sua força normal. Envoltória mínima: itens 11.3.3.4.3 e 15.3.2."));
    pinta(nota, QColor(90, 90, 90));

    auto* coluna = new QWidget(this);
    coluna->setFixedWidth(240);
    auto* v = new QVBoxLayout(coluna);
    v->setContentsMargins(0, 0, 0, 0);
    v->addWidget(utilizacao_);
    v->addWidget(veredito_);
    v->addSpacing(10);
    v->addWidget(figuras_);
    v->addSpacing(8);
    v->addWidget(envoltoria_);
    v->addStretch(1);
    v->addWidget(nota);

    auto* fechar = new QPushButton(QStringLiteral("&Fechar"), this);
    fechar->setDefault(true);
    connect(fechar, &QPushButton::clicked, this, &QDialog::close);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(fechar);
    auto* corpo = new QHBoxLayout;
    corpo->addWidget(grafico_, 1);
    corpo->addSpacing(8);
    corpo->addWidget(coluna);
    auto* raiz = new QVBoxLayout(this);
    raiz->addLayout(corpo, 1);
    raiz->addLayout(botoes);
    resize(sizeHint());
    limpa();
}

void MomentContourDialog::mostra(const report::MomentContour& c)
{
    grafico_->setContour(c);
    const QColor cor = render::utilisationColour(c.utilisation);
    utilizacao_->setText(QStringLiteral("Utilização: ") + render::utilisationText(c.utilisation));
    pinta(utilizacao_, cor);
    veredito_->setText(c.utilisation <= 1 ? QStringLiteral("todos os pontos resistem")
                                          : QStringLiteral("HÁ PONTO QUE NÃO RESISTE"));
    pinta(veredito_, cor);
    QString f;
    if (c.several)
        f += QStringLiteral("Caso determinante: %1\n").arg(qs(c.governingCase));
    f += QStringLiteral("N_Sd = %1\nM_Rd,xx = %2\nM_Rd,yy = %3\n%4 pontos")
             .arg(numero(c.nSd, c.forceUnit), numero(c.mRdxx, c.momentUnit), numero(c.mRdyy, c.momentUnit))
             .arg(c.points.size());
    figuras_->setText(f);
    if (c.envelopeCase.empty()) {
        envoltoria_->setText(QStringLiteral("Sem envoltória mínima (nenhum caso comprimido)."));
        pinta(envoltoria_, QColor(90, 90, 90));
    } else {
        envoltoria_->setText(QStringLiteral("Envoltória mínima%1: semi-eixos %2 e %3; margem %4 — %5")
                                 .arg(c.several ? QStringLiteral(" (caso %1)").arg(qs(c.envelopeCase)) : QString(),
                                      numero(c.semiAxisX, c.momentUnit), numero(c.semiAxisY, c.momentUnit),
                                      qs(Format(c.margin, "##0.00")),
                                      c.inside ? QStringLiteral("dentro do contorno")
                                               : QStringLiteral("FORA do contorno")));
        pinta(envoltoria_, render::utilisationColour(c.inside ? 1 : 2));
    }
}

void MomentContourDialog::limpa()
{
    grafico_->setContour(std::nullopt);
    utilizacao_->setText(QStringLiteral("Utilização: —"));
    pinta(utilizacao_, render::utilisationColour(std::nan("")));
    veredito_->clear();
    figuras_->clear();
    envoltoria_->clear();
}

} // namespace pilarix::ui
