#include "ui/about_dialog.h"

#include "report/report_data.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pilarix::ui {

AboutDialog::AboutDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("frmAbout"));
    setModal(true);
    setWindowTitle(QStringLiteral("Sobre o Pilarix"));

    auto* nome = new QLabel(QStringLiteral("Pilarix Normal"), this);
    QFont f = nome->font();
    f.setBold(true);
    f.setPointSizeF(f.pointSizeF() + 5);
    nome->setFont(f);

    // The version the calculation report states too, from the project's own.
    auto* versao = new QLabel(QStringLiteral("Versão %1").arg(QString::fromUtf8(report::programVersion().data(),
                                                                                 static_cast<int>(report::programVersion().size()))),
                              this);
    versao->setObjectName(QStringLiteral("lblVersao"));

    auto* texto = new QLabel(this);
    texto->setTextFormat(Qt::PlainText);
    texto->setWordWrap(true);
    texto->setFixedWidth(420);
    texto->setText(QString::fromUtf8(
        "Dimensionamento e detalhamento de pilares de concreto armado de seção retangular, "
        "sob flexão normal composta, com armadura simétrica distribuída no perímetro.\n\n"
        "Método das zonas de solicitação, segundo a NBR 6118 (Projeto de revisão da NB1 / 2001): "
        "armadura necessária, escolha da bitola, estribos, ganchos, cobrimento, verificações de "
        "espaçamento e de taxa de armadura, estribos suplementares, peso do aço e desenho da seção."));

    auto* voltar = new QPushButton(QStringLiteral("&Voltar"), this);
    voltar->setObjectName(QStringLiteral("cmdOK"));
    voltar->setDefault(true);
    connect(voltar, &QPushButton::clicked, this, &QDialog::accept);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(voltar);

    auto* raiz = new QVBoxLayout(this);
    raiz->addWidget(nome);
    raiz->addWidget(versao);
    raiz->addSpacing(6);
    raiz->addWidget(texto);
    raiz->addSpacing(10);
    raiz->addLayout(botoes);
    raiz->setSizeConstraint(QLayout::SetFixedSize);
}

} // namespace pilarix::ui
