#include "ui/cover_dialog.h"

#include "ui/text_fit.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace pilarix::ui {

CoverDialog::CoverDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Form4"));
    setModal(true);
    titulo_ = new QLabel(this);
    titulo_->setObjectName(QStringLiteral("Label1"));
    QFont ft = titulo_->font();
    ft.setBold(true);
    ft.setPointSizeF(ft.pointSizeF() + 2);
    titulo_->setFont(ft);

    mensagem_ = new QLabel(this);
    mensagem_->setObjectName(QStringLiteral("Label2"));
    mensagem_->setTextFormat(Qt::PlainText);
    mensagem_->setWordWrap(true);

    item_ = new QLabel(this);
    item_->setObjectName(QStringLiteral("Label3"));
    item_->setTextFormat(Qt::PlainText);
    QFont fi = item_->font();
    fi.setItalic(true);
    item_->setFont(fi);

    primeiro_ = new QPushButton(this);
    primeiro_->setObjectName(QStringLiteral("Command2"));
    primeiro_->setAutoDefault(false);
    ignorar_ = new QPushButton(this);
    ignorar_->setObjectName(QStringLiteral("Command1"));
    ignorar_->setAutoDefault(false);
    connect(primeiro_, &QPushButton::clicked, this, [this] { responde(1); });
    connect(ignorar_, &QPushButton::clicked, this, [this] { responde(2); });

    auto* botoes = new QVBoxLayout;
    botoes->addWidget(primeiro_);
    botoes->addWidget(ignorar_);
    auto* linhaBotoes = new QHBoxLayout;
    linhaBotoes->addStretch();
    linhaBotoes->addLayout(botoes);
    linhaBotoes->addStretch();

    auto* raiz = new QVBoxLayout(this);
    raiz->addWidget(titulo_);
    raiz->addSpacing(4);
    raiz->addWidget(mensagem_);
    raiz->addSpacing(4);
    raiz->addWidget(item_);
    raiz->addSpacing(10);
    raiz->addLayout(linhaBotoes);
    raiz->setSizeConstraint(QLayout::SetFixedSize);
}

void CoverDialog::preenche(const Form4Model& form)
{
    setWindowTitle(QString::fromStdString(form.Caption));
    titulo_->setText(QString::fromStdString(form.Label1.Caption));
    mensagem_->setText(QString::fromStdString(form.Label2.Caption));
    item_->setText(QString::fromStdString(form.Label3.Caption));
    primeiro_->setText(QString::fromStdString(form.Command2.Caption));
    ignorar_->setText(QString::fromStdString(form.Command1.Caption));
    primeiro_->setFocus();
    ajustaAoTexto(mensagem_, 420);
    adjustSize();
}

int CoverDialog::pergunta()
{
    resposta_ = 2;
    exec();
    return resposta_;
}

void CoverDialog::responde(int r)
{
    resposta_ = r;
    accept();
}

void CoverDialog::keyPressEvent(QKeyEvent* event)
{
    // The buttons are numbered: the number alone answers, as in a message box.
    if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier) {
        if (event->key() == Qt::Key_1) {
            primeiro_->click();
            return;
        }
        if (event->key() == Qt::Key_2) {
            ignorar_->click();
            return;
        }
    }
    QDialog::keyPressEvent(event);
}

} // namespace pilarix::ui
