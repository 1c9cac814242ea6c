#include "ui/interaction_dialog.h"

#include "base/number_text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace pilarix::ui {

namespace {

// Forces and moments as the program writes them: two decimals, a decimal point.
QString numero(double x, const QString& unidade)
{
    if (!std::isfinite(x))
        return QStringLiteral("—");
    const QString texto = QString::fromStdString(Format(x, "##0.00"));
    return unidade.trimmed().isEmpty() ? texto : texto + QLatin1Char(' ') + unidade.trimmed();
}

QLabel* rotulo(const QString& nome, QWidget* pai)
{
    auto* l = new QLabel(pai);
    l->setObjectName(nome);
    l->setTextFormat(Qt::PlainText);
    l->setWordWrap(true);
    l->setTextInteractionFlags(Qt::TextSelectableByMouse); // the engineer copies the figures
    return l;
}

void pinta(QLabel* l, const QColor& cor)
{
    QPalette p = l->palette();
    p.setColor(QPalette::WindowText, cor);
    l->setPalette(p);
}

} // namespace

InteractionDialog::InteractionDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmDiagrama"));
    setModal(false);
    setWindowTitle(QStringLiteral("Diagrama de interação"));
    setSizeGripEnabled(true);

    grafico_ = new InteractionPlot(this);
    grafico_->setObjectName(QStringLiteral("picDiagrama"));

    utilizacao_ = rotulo(QStringLiteral("lblUtilizacao"), this);
    QFont grande = utilizacao_->font();
    grande.setBold(true);
    grande.setPointSizeF(grande.pointSizeF() + 3);
    utilizacao_->setFont(grande);
    veredito_ = rotulo(QStringLiteral("lblVeredito"), this);
    QFont negrito = veredito_->font();
    negrito.setBold(true);
    negrito.setPointSizeF(negrito.pointSizeF() + 1);
    veredito_->setFont(negrito);
    solicitacao_ = rotulo(QStringLiteral("lblSolicitacao"), this);
    mRd_ = rotulo(QStringLiteral("lblMRd"), this);
    nRdMax_ = rotulo(QStringLiteral("lblNRdMax"), this);
    nRdMin_ = rotulo(QStringLiteral("lblNRdMin"), this);

    auto* nota = rotulo(QStringLiteral("lblNota"), this);
    nota->setText(QStringLiteral("Verificação por compatibilidade de deformações (NBR 6118, 17.2.2), "
                                 "independente do método das zonas de solicitação."));
    pinta(nota, QColor(90, 90, 90));

    auto* figuras = new QWidget(this);
    figuras->setFixedWidth(230);
    auto* coluna = new QVBoxLayout(figuras);
    coluna->setContentsMargins(0, 0, 0, 0);
    coluna->addWidget(utilizacao_);
    coluna->addWidget(veredito_);
    coluna->addSpacing(12);
    coluna->addWidget(solicitacao_);
    coluna->addSpacing(8);
    coluna->addWidget(mRd_);
    coluna->addSpacing(8);
    coluna->addWidget(nRdMax_);
    coluna->addWidget(nRdMin_);
    coluna->addStretch(1);
    coluna->addWidget(nota);

    auto* fechar = new QPushButton(QStringLiteral("&Fechar"), this);
    fechar->setObjectName(QStringLiteral("cmdFechar"));
    fechar->setDefault(true);
    connect(fechar, &QPushButton::clicked, this, &QDialog::close);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(fechar);

    auto* corpo = new QHBoxLayout;
    corpo->addWidget(grafico_, 1);
    corpo->addSpacing(8);
    corpo->addWidget(figuras);

    auto* raiz = new QVBoxLayout(this);
    raiz->addLayout(corpo, 1);
    raiz->addLayout(botoes);

    resize(sizeHint());
    limpa();
}

void InteractionDialog::mostra(const DiagramData& data)
{
    const DiagramPoint* g = governingPoint(data);
    mostra(data, g ? g->utilisation : std::nan(""));
}

void InteractionDialog::mostra(const DiagramData& data, double utilisation)
{
    grafico_->setData(data);

    const QColor cor = utilisationColour(utilisation);
    utilizacao_->setText(QStringLiteral("Utilização: ") + utilisationText(utilisation));
    pinta(utilizacao_, cor);
    if (!utilisationKnown(utilisation))
        veredito_->clear();
    else
        veredito_->setText(utilisation <= 1 ? QStringLiteral("resiste") : QStringLiteral("NÃO RESISTE"));
    pinta(veredito_, cor);

    const QString& fu = data.forceUnit;
    const QString& mu = data.momentUnit;
    const DiagramPoint* g = governingPoint(data);
    if (!g) {
        solicitacao_->clear();
        mRd_->setText(QStringLiteral("M_Rd: —"));
    } else {
        QString s;
        if (data.points.size() > 1 && !g->name.trimmed().isEmpty())
            s = QStringLiteral("Caso determinante: %1\n").arg(g->name.trimmed());
        s += QStringLiteral("N_Sd = %1\nM_Sd = %2").arg(numero(g->n, fu), numero(g->m, mu));
        solicitacao_->setText(s);
        if (data.mRd && std::isfinite(*data.mRd))
            mRd_->setText(QStringLiteral("M_Rd para N_Sd = %1:\n%2").arg(numero(g->n, fu), numero(*data.mRd, mu)));
        else
            mRd_->setText(QStringLiteral("N_Sd fora de [N_Rd,mín, N_Rd,máx]: não há M_Rd"));
    }
    nRdMax_->setText(QStringLiteral("N_Rd,máx = ") + numero(data.nRdMax, fu));
    nRdMin_->setText(QStringLiteral("N_Rd,mín = ") + numero(data.nRdMin, fu));
}

void InteractionDialog::limpa()
{
    grafico_->clear();
    utilizacao_->setText(QStringLiteral("Utilização: —"));
    pinta(utilizacao_, utilisationColour(std::nan("")));
    veredito_->clear();
    solicitacao_->clear();
    mRd_->clear();
    nRdMax_->clear();
    nRdMin_->clear();
}

} // namespace pilarix::ui
