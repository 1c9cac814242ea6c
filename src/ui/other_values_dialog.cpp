#include "ui/other_values_dialog.h"

#include "ui/form_binding.h"
#include "ui/key_filters.h"
#include "ui/wheel_guard.h"
#include "window/window_input.h"

#include <QApplication>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace pilarix::ui {

namespace {
void preencheLista(QComboBox* c, const ComboBox& m)
{
    c->clear();
    for (const auto& s : m.List)
        c->addItem(QString::fromStdString(s));
}
void mostraTexto(QComboBox* c, const ComboBox& m)
{
    c->setCurrentIndex(c->findText(QString::fromStdString(m.Text), Qt::MatchExactly | Qt::MatchCaseSensitive));
}
} // namespace

OtherValuesDialog::OtherValuesDialog(Form8Model& form, std::function<void()> voltar,
                                     std::function<void(const std::string&)> avisa, QWidget* parent)
    : QDialog(parent), form_(form), voltar_(std::move(voltar)), avisa_(std::move(avisa))
{
    setObjectName(QStringLiteral("Form8"));
    setModal(true);
    setWindowTitle(QString::fromStdString(form_.Caption));

    combo1_ = new QComboBox(this);
    combo1_->setObjectName(nomeDoWidget(form_, &form_.Combo1));
    combo3_ = new QComboBox(this);
    combo3_->setObjectName(nomeDoWidget(form_, &form_.Combo3));
    text2_ = new QLineEdit(this);
    text2_->setObjectName(nomeDoWidget(form_, &form_.Text2));
    text1_ = new QLineEdit(this);
    text1_->setObjectName(nomeDoWidget(form_, &form_.Text1));
    tecla_ = new QLabel(this);
    tecla_->setObjectName(QStringLiteral("lblTecla"));
    tecla_->setWordWrap(true);
    // Numbers as typed in Brazil, the comma taken as the decimal point.
    auto* filtro = new KeyFilter(
        Teclas::Decimal,
        [this](QWidget* w, const QString& motivo) {
            QApplication::beep();
            tecla_->setText((w == text1_ ? QStringLiteral("Precisão: ") : QStringLiteral("Agregado: ")) + motivo);
        },
        this);
    for (QLineEdit* e : {text1_, text2_}) {
        e->setMaximumWidth(100);
        filtro->instala(e);
    }
    text1_->setToolTip(QStringLiteral("Precisão das soluções iterativas: maior que 0 e no máximo 0.01 (padrão 0.0001)."));
    text2_->setToolTip(QStringLiteral("Diâmetro máximo do agregado graúdo, em cm, maior que zero; vazio quando "
                                      "não é dado."));
    preencheLista(combo1_, form_.Combo1);
    preencheLista(combo3_, form_.Combo3);

    auto* campos = new QFormLayout;
    auto rotulo = [this](const char* texto, QWidget* buddy) {
        auto* l = new QLabel(QString::fromUtf8(texto), this);
        l->setBuddy(buddy);
        return l;
    };
    campos->addRow(rotulo("Diâmetro máximo dos estribos", combo1_), combo1_);
    campos->addRow(rotulo("Diâmetro máximo das barras longitudinais", combo3_), combo3_);
    campos->addRow(rotulo("Diâmetro máximo do agregado graúdo (cm)", text2_), text2_);
    campos->addRow(rotulo("Precisão", text1_), text1_);

    auto* nota = new QLabel(QString::fromUtf8(Form8Model::Nota), this);
    nota->setTextFormat(Qt::PlainText);
    nota->setWordWrap(true);
    nota->setObjectName(QStringLiteral("Label5"));

    auto* botao = new QPushButton(QString::fromStdString(form_.Command1.Caption), this);
    botao->setObjectName(QStringLiteral("Command1"));
    botao->setDefault(true);
    connect(botao, &QPushButton::clicked, this, &OtherValuesDialog::volta);
    auto* botoes = new QHBoxLayout;
    botoes->addStretch();
    botoes->addWidget(botao);

    auto* raiz = new QVBoxLayout(this);
    raiz->addLayout(campos);
    raiz->addSpacing(6);
    raiz->addWidget(nota);
    raiz->addSpacing(6);
    raiz->addWidget(tecla_);
    raiz->addLayout(botoes);
    setMinimumWidth(460);
    carrega();
    // The wheel over a list does not change it unless the list has the focus.
    (new WheelGuard(this))->protege(this);
}

void OtherValuesDialog::carrega()
{
    tecla_->clear();
    mostraTexto(combo1_, form_.Combo1);
    mostraTexto(combo3_, form_.Combo3);
    text2_->setText(QString::fromStdString(form_.Text2.Text));
    text1_->setText(QString::fromStdString(form_.Text1.Text));
}

void OtherValuesDialog::devolve()
{
    // A list showing nothing (a text from a file that is not in the list) keeps
    // the model's text rather than blanking it.
    if (combo1_->currentIndex() >= 0)
        form_.Combo1.Text = combo1_->currentText().toStdString();
    if (combo3_->currentIndex() >= 0)
        form_.Combo3.Text = combo3_->currentText().toStdString();
    form_.Text2.Text = text2_->text().toStdString();
    form_.Text1.Text = text1_->text().toStdString();
}

void OtherValuesDialog::volta()
{
    // A precision out of range could stop an iterative stage; an aggregate of no size
    // is no aggregate. The dialog stays open on the box to correct.
    const std::string precisao = text1_->text().toStdString();
    if (const auto problema = conferenciaDeOutrosValores(precisao, text2_->text().toStdString())) {
        if (avisa_)
            avisa_(*problema);
        QLineEdit* errada = conferenciaDeOutrosValores(precisao, {}) ? text1_ : text2_;
        errada->setFocus();
        errada->selectAll();
        return;
    }
    devolve();
    if (voltar_)
        voltar_();
    accept();
}

// Esc and the close button cancel: the boxes show the values kept, untouched.
void OtherValuesDialog::reject()
{
    carrega();
    QDialog::reject();
}

} // namespace pilarix::ui
