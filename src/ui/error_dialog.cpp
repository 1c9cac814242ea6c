#include "ui/error_dialog.h"

#include "ui/text_fit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QVBoxLayout>

namespace pilarix::ui {

ErrorDialog::ErrorDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Form2"));
    setModal(true);
    auto* icone = new QLabel(this);
    icone->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(40, 40));
    icone->setAlignment(Qt::AlignTop);

    mensagem_ = new QLabel(this);
    mensagem_->setObjectName(QStringLiteral("Label1"));
    mensagem_->setWordWrap(true);
    mensagem_->setTextFormat(Qt::PlainText);
    mensagem_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont f = mensagem_->font();
    f.setPointSizeF(f.pointSizeF() + 1);
    mensagem_->setFont(f);

    item_ = new QLabel(this);
    item_->setObjectName(QStringLiteral("Label2"));
    item_->setWordWrap(true);
    item_->setTextFormat(Qt::PlainText);
    item_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QFont fi = item_->font();
    fi.setItalic(true);
    item_->setFont(fi);

    continuar_ = new QPushButton(this);
    continuar_->setObjectName(QStringLiteral("Command1"));
    continuar_->setDefault(true);
    connect(continuar_, &QPushButton::clicked, this, &QDialog::accept);

    // A message longer than the screen allows scrolls; any other shows whole.
    rolagem_ = new QScrollArea(this);
    rolagem_->setObjectName(QStringLiteral("rolagemMensagem"));
    rolagem_->setFrameShape(QFrame::NoFrame);
    rolagem_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    rolagem_->setWidget(mensagem_);

    auto* textos = new QVBoxLayout;
    textos->addWidget(rolagem_);
    textos->addSpacing(6);
    textos->addWidget(item_);
    auto* topo = new QHBoxLayout;
    topo->addWidget(icone);
    topo->addLayout(textos, 1);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(continuar_);
    auto* raiz = new QVBoxLayout(this);
    raiz->addLayout(topo);
    raiz->addSpacing(8);
    raiz->addLayout(botoes);
    raiz->setSizeConstraint(QLayout::SetFixedSize);
}

void ErrorDialog::preenche(const Form2Model& form)
{
    setWindowTitle(QString::fromStdString(form.Caption));
    mensagem_->setText(QString::fromStdString(form.Label1.Caption));
    item_->setText(QString::fromStdString(form.Label2.Caption));
    item_->setVisible(!form.Label2.Caption.empty());
    continuar_->setText(QString::fromStdString(form.Command1.Caption));
    ajustaAoTexto(mensagem_, 380, rolagem_);
    if (!form.Label2.Caption.empty())
        ajustaAoTexto(item_, mensagem_->width());
    adjustSize();
}

} // namespace pilarix::ui
