#include "ui/d_estimate_dialog.h"

#include "base/number_text.h"
#include "ui/box_check.h"
#include "ui/key_filters.h"
#include "ui/wheel_guard.h"
#include "window/window_input.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolTip>
#include <QVBoxLayout>

namespace pilarix::ui {

DEstimateDialog::DEstimateDialog(Form5Model& form, std::function<void()> calcula, std::function<void()> aceita,
                                 QWidget* parent)
    : QDialog(parent), form_(form), calcula_(std::move(calcula)), aceita_(std::move(aceita))
{
    setObjectName(QStringLiteral("Form5"));
    setModal(true);
    setWindowTitle(QString::fromStdString(form_.Caption));

    combo1_ = new QComboBox(this);
    combo1_->setObjectName(QStringLiteral("Combo1"));
    combo2_ = new QComboBox(this);
    combo2_->setObjectName(QStringLiteral("Combo2"));
    for (const auto& s : form_.Combo1.List)
        combo1_->addItem(QString::fromStdString(s));
    for (const auto& s : form_.Combo2.List)
        combo2_->addItem(QString::fromStdString(s));
    text1_ = new QLineEdit(this);
    text1_->setObjectName(QStringLiteral("Text1"));
    text2_ = new QLineEdit(this);
    text2_->setObjectName(QStringLiteral("Text2"));
    text2_->setReadOnly(true);
    for (QLineEdit* e : {text1_, text2_}) {
        e->setMaximumWidth(90);
        e->setAlignment(Qt::AlignRight);
    }
    // The cover is typed as in Brazil, the comma taken as the decimal point.
    auto* filtro = new KeyFilter(
        Teclas::Decimal,
        [this](QWidget*, const QString& motivo) {
            QApplication::beep();
            QToolTip::showText(text1_->mapToGlobal(QPoint(0, text1_->height())),
                               QStringLiteral("Cobrimento (cm): ") + motivo, text1_);
        },
        this);
    filtro->instala(text1_);

    auto* grade = new QGridLayout;
    auto rotulo = [this](const char* texto, QWidget* buddy) {
        auto* l = new QLabel(QString::fromUtf8(texto), this);
        l->setBuddy(buddy);
        return l;
    };
    grade->addWidget(rotulo("Estribo", combo1_), 0, 0);
    grade->addWidget(combo1_, 0, 1, 1, 2);
    grade->addWidget(rotulo("Barras longitudinais", combo2_), 1, 0);
    grade->addWidget(combo2_, 1, 1, 1, 2);
    // In the window's units: the main window's d' and cover are in cm.
    grade->addWidget(rotulo("Cobrimento (cm)", text1_), 2, 0);
    grade->addWidget(text1_, 2, 1);
    grade->addWidget(new QLabel(QStringLiteral("d' (cm)"), this), 3, 0);
    grade->addWidget(text2_, 3, 1);
    grade->setColumnStretch(2, 1);

    auto* bCalcula = new QPushButton(QString::fromStdString(form_.Command4.Caption), this);
    bCalcula->setObjectName(QStringLiteral("Command4"));
    auto* bAceita = new QPushButton(QString::fromStdString(form_.Command2.Caption), this);
    bAceita->setObjectName(QStringLiteral("Command2"));
    auto* bVolta = new QPushButton(QString::fromStdString(form_.Command3.Caption), this);
    bVolta->setObjectName(QStringLiteral("Command3"));
    for (QPushButton* b : {bCalcula, bAceita, bVolta})
        b->setAutoDefault(false);
    connect(bCalcula, &QPushButton::clicked, this, &DEstimateDialog::calcula);
    connect(bAceita, &QPushButton::clicked, this, &DEstimateDialog::calculaEAceita);
    connect(bVolta, &QPushButton::clicked, this, &QDialog::reject);
    connect(combo1_, &QComboBox::activated, this, &DEstimateDialog::calcula);
    connect(combo2_, &QComboBox::activated, this, &DEstimateDialog::calcula);

    auto* botoes = new QHBoxLayout;
    botoes->addWidget(bCalcula);
    botoes->addWidget(bAceita);
    botoes->addStretch();
    botoes->addWidget(bVolta);

    auto* raiz = new QVBoxLayout(this);
    raiz->addLayout(grade);
    raiz->addSpacing(8);
    raiz->addLayout(botoes);
    setMinimumWidth(380);
    carrega();
    // The wheel over a list does not change it unless the list has the focus.
    (new WheelGuard(this))->protege(this);
}

void DEstimateDialog::carrega()
{
    combo1_->setCurrentIndex(
        combo1_->findText(QString::fromStdString(form_.Combo1.Text), Qt::MatchExactly | Qt::MatchCaseSensitive));
    combo2_->setCurrentIndex(
        combo2_->findText(QString::fromStdString(form_.Combo2.Text), Qt::MatchExactly | Qt::MatchCaseSensitive));
    // The model keeps millimetres, as the estimate computes them.
    const auto cm = [](const std::string& mm) {
        return numeroCompleto(mm) ? QString::fromStdString(Str(Val(mm) / 10)) : QString::fromStdString(mm);
    };
    text1_->setText(cm(form_.Text1.Text));
    text2_->setText(cm(form_.Text2.Text));
}

bool DEstimateDialog::coberturaLegivel()
{
    const QString motivo =
        text1_->text().trimmed().isEmpty()
            ? QStringLiteral("digite o cobrimento em cm.")
            : motivoDaCaixa(Teclas::Decimal, QStringLiteral("o cobrimento é um número positivo de centímetros"),
                            text1_->text());
    text1_->setStyleSheet(motivo.isEmpty() ? QString() : QStringLiteral("QLineEdit { background: rgb(255, 214, 214); }"));
    if (!motivo.isEmpty()) {
        QApplication::beep();
        QToolTip::showText(text1_->mapToGlobal(QPoint(0, text1_->height())), QStringLiteral("Cobrimento (cm): ") + motivo,
                           text1_);
    }
    return motivo.isEmpty();
}

void DEstimateDialog::devolve()
{
    if (combo1_->currentIndex() >= 0)
        form_.Combo1.Text = combo1_->currentText().toStdString();
    if (combo2_->currentIndex() >= 0)
        form_.Combo2.Text = combo2_->currentText().toStdString();
    const std::string cm = text1_->text().trimmed().toStdString();
    form_.Text1.Text = numeroCompleto(cm) ? Str(Val(cm) * 10) : cm;
}

void DEstimateDialog::calcula()
{
    if (!coberturaLegivel())
        return;
    devolve();
    if (calcula_)
        calcula_();
    carrega();
}

void DEstimateDialog::calculaEAceita()
{
    if (!coberturaLegivel())
        return;
    devolve();
    if (calcula_)
        calcula_();
    if (aceita_)
        aceita_();
    carrega();
    accept();
}

} // namespace pilarix::ui
