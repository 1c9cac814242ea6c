#include "ui/norma2014_panel.h"

#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace pilarix::ui {

namespace {
QString qs(const std::string& s) { return QString::fromStdString(s); }

QLabel* rotulo(const QString& texto, QWidget* buddy = nullptr)
{
    auto* l = new QLabel(texto);
    if (buddy)
        l->setBuddy(buddy);
    return l;
}
} // namespace

QString textoDoMetodo(const std::string& valor)
{
    return valor == "rigidez" ? QStringLiteral("rigidez κ") : qs(valor);
}

Norma2014Panel::Norma2014Panel(Form1Model& f, const FabricaDeEntradas& fabrica, QWidget* parent)
    : QGroupBox(QStringLiteral("ABNT NBR 6118:2014"), parent)
{
    setObjectName(QStringLiteral("FrameNorma2014"));

    linha_ = new QWidget;
    auto* h = new QHBoxLayout(linha_);
    h->setContentsMargins(2, 0, 2, 0);
    norma_ = fabrica.lista(f.Norma, QStringLiteral("Norma"));
    norma_->setToolTip(QStringLiteral("As regras do cálculo: o projeto de revisão da NB1 de 2001, ou a ABNT NBR "
                                      "6118:2014 / 2023 (γn por fórmula, M1d,mín, esbeltez e 2ª ordem nas duas "
                                      "direções, flexão oblíqua)"));
    h->addWidget(rotulo(QStringLiteral("&Norma"), norma_));
    h->addWidget(norma_, 1);

    auto* g = new QGridLayout(this);
    g->setHorizontalSpacing(6);
    g->setContentsMargins(8, 4, 8, 4);
    auto* metodo = fabrica.lista(f.SegundaOrdem, QStringLiteral("Método da 2ª ordem"));
    for (int i = 0; i < metodo->count(); ++i)
        metodo->setItemText(i, textoDoMetodo(metodo->itemData(i).toString().toStdString()));
    metodo->setToolTip(QStringLiteral("Efeitos locais de 2ª ordem: pilar-padrão com curvatura aproximada "
                                      "(15.8.3.3.2) ou com rigidez κ aproximada (15.8.3.3.3)"));
    g->addWidget(rotulo(QStringLiteral("2ª ordem"), metodo), 0, 0);
    g->addWidget(metodo, 0, 1, 1, 2);

    g->addWidget(rotulo(QStringLiteral("direção h")), 1, 1, Qt::AlignCenter);
    g->addWidget(rotulo(QStringLiteral("direção b")), 1, 2, Qt::AlignCenter);
    auto* leH = fabrica.caixa(f.LeH, Teclas::Decimal, 72, QStringLiteral("ℓe na direção de h (cm)"));
    auto* leB = fabrica.caixa(f.LeB, Teclas::Decimal, 72, QStringLiteral("ℓe na direção de b (cm)"));
    for (auto* e : {leH, leB})
        e->setPlaceholderText(QStringLiteral("= ℓ"));
    leH->setToolTip(QStringLiteral("Comprimento efetivo ℓe na direção de h, em cm; vazio: o comprimento do pilar"));
    leB->setToolTip(QStringLiteral("Comprimento efetivo ℓe na direção de b, em cm; vazio: o comprimento do pilar"));
    g->addWidget(rotulo(QStringLiteral("ℓe (cm)"), leH), 2, 0);
    g->addWidget(leH, 2, 1);
    g->addWidget(leB, 2, 2);

    auto* mdTopo = new QLabel(QStringLiteral("= Md"));
    mdTopo->setObjectName(QStringLiteral("lblMdTopo"));
    mdTopo->setAlignment(Qt::AlignCenter);
    mdTopo->setToolTip(QStringLiteral("O momento no topo na direção de h é o Md da janela"));
    auto* myTopo = fabrica.caixa(f.MyTopo, Teclas::DecimalComSinal, 72, QStringLiteral("My no topo"));
    auto* mdBase = fabrica.caixa(f.MdBase, Teclas::DecimalComSinal, 72, QStringLiteral("Md na base"));
    auto* myBase = fabrica.caixa(f.MyBase, Teclas::DecimalComSinal, 72, QStringLiteral("My na base"));
    const QString sinal = QStringLiteral(" (na unidade de Md; o mesmo sinal nas duas pontas traciona a mesma face; "
                                         "vazio: nenhum)");
    myTopo->setToolTip(QStringLiteral("Momento de cálculo no topo, na direção de b") + sinal);
    mdBase->setToolTip(QStringLiteral("Momento de cálculo na base, na direção de h") + sinal);
    myBase->setToolTip(QStringLiteral("Momento de cálculo na base, na direção de b") + sinal);
    g->addWidget(rotulo(QStringLiteral("M topo")), 3, 0);
    g->addWidget(mdTopo, 3, 1);
    g->addWidget(myTopo, 3, 2);
    g->addWidget(rotulo(QStringLiteral("M base"), mdBase), 4, 0);
    g->addWidget(mdBase, 4, 1);
    g->addWidget(myBase, 4, 2);
    // The unit of the moments heads the column of the names, where the grid has room.
    unidade_ = new QLabel;
    unidade_->setObjectName(QStringLiteral("lblUnidade2014"));
    unidade_->setToolTip(QStringLiteral("Os momentos estão na unidade de Md, com o sinal de Md; ℓe vazio é o "
                                        "comprimento do pilar"));
    g->addWidget(unidade_, 1, 0);
    g->setColumnStretch(3, 1);

    // The frame follows the list at once; the window's own refresh follows the model.
    connect(norma_, &QComboBox::activated, this, [this](int i) {
        mostraPara(i);
        emit normaEscolhida(i);
    });
    connect(norma_, &QComboBox::currentIndexChanged, this, [this](int i) { mostraPara(i); });
}

void Norma2014Panel::mostraPara(int indice)
{
    setVisible(indice >= 1);
    if (indice >= 1)
        setTitle(norma_->itemText(indice));
}

void Norma2014Panel::atualiza(const Form1Model& f)
{
    int indice = 0;
    for (std::size_t i = 0; i < lists::norma.size(); ++i)
        if (f.Norma.Text == lists::norma[i])
            indice = static_cast<int>(i);
    mostraPara(indice);
    unidade_->setText(qs(f.Combo5.Text));
}

} // namespace pilarix::ui
