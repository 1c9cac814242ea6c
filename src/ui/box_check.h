#pragma once
// The text of each numeric box of the main window, read as the engineer typed it.
// Every printable key goes in; a box whose text cannot be the number the engineer
// meant ("22,5" in a base of whole centimetres, "-30" for fck, "1.350.0") is shown
// in red with the reason in its tooltip and the status bar, and the window refuses
// to calculate until it is put right. Nothing typed is dropped or rewritten behind
// the engineer's back, so nothing is calculated from a number other than the one
// on show.

#include "ui/key_filters.h"
#include "window/forms.h"

#include <QObject>
#include <QString>

#include <functional>
#include <map>
#include <optional>

class QLineEdit;

namespace pilarix::ui {

// What a box of the main window takes, as its refusal says it ("a base é um número
// inteiro de centímetros"); a general phrase for a box with no phrase of its own.
QString oQueACaixaToma(const Form1Model& f, const TextBox& caixa, Teclas regra);

// Why `texto` cannot be read as the box's number: empty when it can (an empty box
// too: it is named when a calculation needs it). Integers are digits alone;
// decimals are the program's reading (a point, an exponent), with a minus sign only
// where the box takes one.
QString motivoDaCaixa(Teclas regra, const QString& oQue, const QString& texto);

class BoxCheck : public QObject {
    Q_OBJECT
public:
    // `avisa` puts a refusal into the status bar.
    explicit BoxCheck(std::function<void(const QString&)> avisa, QObject* parent = nullptr);

    // Checks `e` on every change of its text; `rotulo` names it in the messages,
    // `oQue` says what it takes (oQueACaixaToma).
    void vigia(QLineEdit* e, Teclas regra, const QString& rotulo, const QString& oQue);

    // The first box refused, with the message that names it; none when every box can
    // be read.
    struct Recusa {
        QLineEdit* caixa;
        QString mensagem;
    };
    std::optional<Recusa> primeiraRecusada() const;
    bool recusada(const QLineEdit* e) const;

private:
    struct Vigiada {
        Teclas regra;
        QString rotulo, oQue, dica, motivo;
    };
    void confere(QLineEdit* e, bool avisar);
    QString mensagem(const QLineEdit* e, const Vigiada& v) const;

    std::function<void(const QString&)> avisa_;
    std::map<QLineEdit*, Vigiada> caixas_;
    std::vector<QLineEdit*> ordem_;
};

} // namespace pilarix::ui
