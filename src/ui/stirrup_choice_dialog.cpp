#include "ui/stirrup_choice_dialog.h"

#include "ui/text_fit.h"

#include <QButtonGroup>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace pilarix::ui {

StirrupChoiceDialog::StirrupChoiceDialog(QWidget* parent) : QDialog(parent)
{
    setObjectName(QStringLiteral("Form7"));
    setModal(true);
    auto* quadro = new QGroupBox(this);
    quadro->setObjectName(QStringLiteral("Frame1"));
    label1_ = new QLabel(quadro);
    label1_->setObjectName(QStringLiteral("Label1"));
    label1_->setTextFormat(Qt::PlainText);
    label1_->setWordWrap(true);
    QFont f = label1_->font();
    f.setBold(true);
    label1_->setFont(f);
    label2_ = new QLabel(quadro);
    label2_->setObjectName(QStringLiteral("Label2"));
    label2_->setTextFormat(Qt::PlainText);
    label2_->setWordWrap(true);

    auto* grupo = new QButtonGroup(this);
    auto* colunaOpcoes = new QVBoxLayout;
    for (std::size_t i = 0; i < opcoes_.size(); ++i) {
        opcoes_[i] = new QRadioButton(quadro);
        opcoes_[i]->setObjectName(QStringLiteral("Option1(%1)").arg(i));
        grupo->addButton(opcoes_[i], static_cast<int>(i));
        colunaOpcoes->addWidget(opcoes_[i]);
    }
    auto* dentro = new QVBoxLayout(quadro);
    dentro->addWidget(label1_);
    dentro->addWidget(label2_);
    dentro->addSpacing(4);
    dentro->addLayout(colunaOpcoes);

    ok_ = new QPushButton(this);
    ok_->setObjectName(QStringLiteral("Command1"));
    ok_->setDefault(true);
    connect(ok_, &QPushButton::clicked, this, &QDialog::accept);

    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(ok_);
    auto* raiz = new QVBoxLayout(this);
    raiz->addWidget(quadro);
    raiz->addLayout(botoes);
    raiz->setSizeConstraint(QLayout::SetFixedSize);
}

void StirrupChoiceDialog::preenche(const Form7Model& form)
{
    setWindowTitle(QString::fromStdString(form.Caption));
    if (auto* quadro = findChild<QGroupBox*>(QStringLiteral("Frame1")))
        quadro->setTitle(QString::fromStdString(form.FrameCaption));
    label1_->setText(QString::fromStdString(form.Label1.Caption));
    label2_->setText(QString::fromStdString(form.Label2.Caption));
    ok_->setText(QString::fromStdString(form.Command1.Caption));

    bool algumaMarcada = false;
    for (std::size_t i = 0; i < opcoes_.size(); ++i) {
        const auto& o = form.Option1[i];
        opcoes_[i]->setText(QString::fromStdString(o.Caption));
        opcoes_[i]->setEnabled(o.Enabled);
        // An option cleared of its caption has nothing to offer in this question.
        opcoes_[i]->setVisible(o.Visible && !o.Caption.empty());
        algumaMarcada = algumaMarcada || (o.Value && o.Enabled);
    }
    // With nothing chosen the OK button takes the least steel per metre; showing
    // that option marked says so.
    auto* grupo = opcoes_[0]->group();
    grupo->setExclusive(false);
    for (std::size_t i = 0; i < opcoes_.size(); ++i)
        opcoes_[i]->setChecked(algumaMarcada ? (form.Option1[i].Value && form.Option1[i].Enabled) : i == 4);
    grupo->setExclusive(true);
    // The explanation wraps at the width of the widest option, and shows whole.
    int largura = 480;
    for (auto* o : opcoes_)
        if (!o->isHidden())
            largura = std::max(largura, o->sizeHint().width());
    ajustaAoTexto(label1_, largura);
    ajustaAoTexto(label2_, largura);
    adjustSize();
}

void StirrupChoiceDialog::devolve(Form7Model& form) const
{
    for (std::size_t i = 0; i < opcoes_.size(); ++i)
        form.Option1[i].Value = opcoes_[i]->isChecked();
}

} // namespace pilarix::ui
