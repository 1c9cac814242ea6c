#include "ui/box_check.h"

#include "window/window_input.h"

#include <QLineEdit>

namespace pilarix::ui {

QString oQueACaixaToma(const QString& nome, Teclas regra)
{
    static const std::map<QString, const char*> tabela = {
        {QStringLiteral("Text1"), "a base é um número inteiro de centímetros"},
        {QStringLiteral("Text2"), "a altura é um número inteiro de centímetros"},
        {QStringLiteral("Text31"), "o passo da base é um número inteiro de centímetros, ou vazio"},
        {QStringLiteral("Text32"), "o passo da altura é um número inteiro de centímetros, ou vazio"},
        {QStringLiteral("Text4"), "o número de barras em cada face é inteiro"},
        {QStringLiteral("Text5"), "o número de barras em cada face é inteiro"},
        {QStringLiteral("Text23"), "o comprimento é um número positivo de centímetros (vírgula ou ponto decimal)"},
        {QStringLiteral("Text3"), "d' é um número positivo de centímetros (vírgula ou ponto decimal), ou vazio"},
        {QStringLiteral("Text16"), "Nd é um número (vírgula ou ponto decimal), com o sinal de menos na tração"},
        {QStringLiteral("Text17"), "Md é um número sem sinal (vírgula ou ponto decimal)"},
        {QStringLiteral("Text18"), "fck é um número positivo (vírgula ou ponto decimal)"},
        {QStringLiteral("Text20"), "Es é um número positivo (vírgula ou ponto decimal)"},
        {QStringLiteral("Text21"), "γc é um número positivo (vírgula ou ponto decimal)"},
        {QStringLiteral("Text22"), "γs é um número positivo (vírgula ou ponto decimal)"},
        {QStringLiteral("Text6"), "a escala é um número positivo de pixels por centímetro"},
    };
    if (const auto it = tabela.find(nome); it != tabela.end())
        return QString::fromUtf8(it->second);
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

void BoxCheck::vigia(QLineEdit* e, Teclas regra, const QString& rotulo)
{
    caixas_[e] = {regra, rotulo, oQueACaixaToma(e->objectName(), regra), {}, {}};
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
