#include "ui/other_values_dialog.h"

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

OtherValuesDialog::OtherValuesDialog(Form8Model& form, std::function<void()> voltar, QWidget* parent)
    : QDialog(parent), form_(form), voltar_(std::move(voltar))
{
    setObjectName(QStringLiteral("Form8"));
    setModal(true);
    setWindowTitle(QString::fromStdString(form_.Caption));

    combo1_ = new QComboBox(this);
    combo1_->setObjectName(QStringLiteral("Combo1"));
    combo3_ = new QComboBox(this);
    combo3_->setObjectName(QStringLiteral("Combo3"));
    text2_ = new QLineEdit(this);
    text2_->setObjectName(QStringLiteral("Text2"));
    text1_ = new QLineEdit(this);
    text1_->setObjectName(QStringLiteral("Text1"));
    for (QLineEdit* e : {text1_, text2_})
        e->setMaximumWidth(100);
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
    raiz->addLayout(botoes);
    setMinimumWidth(460);
    carrega();
}

void OtherValuesDialog::carrega()
{
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
    devolve();
    if (voltar_)
        voltar_();
    accept();
}

// Closing the window keeps what was typed, as "&Voltar" does: the dialog is only
// hidden and its values live on.
void OtherValuesDialog::reject() { volta(); }

} // namespace pilarix::ui
