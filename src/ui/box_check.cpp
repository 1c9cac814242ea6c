#include "ui/box_check.h"

#include "window/window_input.h"

#include <QLineEdit>

#include <utility>

namespace pilarix::ui {

QString oQueACaixaToma(const Form1Model& f, const TextBox& caixa, Teclas regra)
{
    static const std::pair<TextBox Form1Model::*, const char*> tabela[] = {
        {&Form1Model::Text1, "a base é um número inteiro de centímetros"},
        {&Form1Model::Text2, "a altura é um número inteiro de centímetros"},
        {&Form1Model::Text31, "o passo da base é um número inteiro de centímetros, ou vazio"},
        {&Form1Model::Text32, "o passo da altura é um número inteiro de centímetros, ou vazio"},
        {&Form1Model::Text4, "o número de barras em cada face é inteiro"},
        {&Form1Model::Text5, "o número de barras em cada face é inteiro"},
        {&Form1Model::Text23, "o comprimento é um número positivo de centímetros (vírgula ou ponto decimal)"},
        {&Form1Model::Text3, "d' é um número positivo de centímetros (vírgula ou ponto decimal), ou vazio"},
        {&Form1Model::Text16, "Nd é um número (vírgula ou ponto decimal), com o sinal de menos na tração"},
        {&Form1Model::Text17, "Md é um número sem sinal (vírgula ou ponto decimal)"},
        {&Form1Model::Text18, "fck é um número positivo (vírgula ou ponto decimal)"},
        {&Form1Model::Text20, "Es é um número positivo (vírgula ou ponto decimal)"},
        {&Form1Model::Text21, "γc é um número positivo (vírgula ou ponto decimal)"},
        {&Form1Model::Text22, "γs é um número positivo (vírgula ou ponto decimal)"},
        {&Form1Model::Text6, "a escala é um número positivo de pixels por centímetro"},
    };
    for (const auto& [membro, oQue] : tabela)
        if (&(f.*membro) == &caixa)
            return QString::fromUtf8(oQue);
    switch (regra) {
    case Teclas::Inteiro:
        return QStringLiteral("a caixa toma um número inteiro");
    case Teclas::DecimalComSinal:
        return QStringLiteral("a caixa toma um número, com sinal (vírgula ou ponto decimal)");
    default:
        return QStringLiteral("a caixa toma um número sem sinal (vírgula ou ponto decimal)");
    }
}

QString motivoDaCaixa(Teclas regra, const QString& oQue, const QString& texto)
{
    const QString t = texto.trimmed();
    if (t.isEmpty() || regra == Teclas::Bitola || regra == Teclas::Nenhuma)
        return {};
    bool serve = false;
    if (regra == Teclas::Inteiro) {
        serve = true;
        for (const QChar c : t)
            serve = serve && c >= QLatin1Char('0') && c <= QLatin1Char('9');
    } else {
        // The program's own reading: "." the decimal point, an exponent allowed; the
        // minus sign only in the box of the axial force.
        serve = numeroCompleto(t.toStdString()) && (regra == Teclas::DecimalComSinal || !t.startsWith(QLatin1Char('-')));
    }
    return serve ? QString() : QStringLiteral("\"%1\" não serve: %2.").arg(texto, oQue);
}

BoxCheck::BoxCheck(std::function<void(const QString&)> avisa, QObject* parent)
    : QObject(parent), avisa_(std::move(avisa))
{
}

void BoxCheck::vigia(QLineEdit* e, Teclas regra, const QString& rotulo, const QString& oQue)
{
    caixas_[e] = {regra, rotulo, oQue, {}, {}};
    ordem_.push_back(e);
    connect(e, &QLineEdit::textChanged, this, [this, e] { confere(e, true); });
    confere(e, false);
}

QString BoxCheck::mensagem(const QLineEdit* e, const Vigiada& v) const
{
    return QStringLiteral("A caixa \"%1\" tem \"%2\": %3.").arg(v.rotulo, e->text(), v.oQue);
}

void BoxCheck::confere(QLineEdit* e, bool avisar)
{
    auto& v = caixas_.at(e);
    const QString motivo = motivoDaCaixa(v.regra, v.oQue, e->text());
    const bool era = !v.motivo.isEmpty();
    if (!era)
        v.dica = e->toolTip(); // the box's own tip comes back once it is right
    v.motivo = motivo;
    if (motivo.isEmpty()) {
        if (era) {
            e->setStyleSheet(QString());
            e->setToolTip(v.dica);
            e->setProperty("recusada", false);
        }
        return;
    }
    e->setStyleSheet(QStringLiteral("QLineEdit { background: rgb(255, 214, 214); color: rgb(150, 0, 0); "
                                    "border: 1px solid rgb(205, 30, 30); }"));
    e->setToolTip(v.rotulo + QStringLiteral(": ") + motivo + QStringLiteral(" Nada é calculado até que seja corrigida."));
    e->setProperty("recusada", true);
    if (avisar && avisa_)
        avisa_(v.rotulo + QStringLiteral(": ") + motivo);
}

std::optional<BoxCheck::Recusa> BoxCheck::primeiraRecusada() const
{
    for (QLineEdit* e : ordem_) {
        const auto& v = caixas_.at(e);
        if (!v.motivo.isEmpty() && e->isEnabled())
            return Recusa{e, mensagem(e, v) + QStringLiteral(" Nada foi calculado.")};
    }
    return std::nullopt;
}

bool BoxCheck::recusada(const QLineEdit* e) const
{
    const auto it = caixas_.find(const_cast<QLineEdit*>(e));
    return it != caixas_.end() && !it->second.motivo.isEmpty();
}

} // namespace pilarix::ui
