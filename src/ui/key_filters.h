#pragma once
// Keystroke filters of the window's boxes and lists. Numbers are typed as in
// Brazil: the comma is taken as the decimal point and written as the point the
// program reads (files and the command line keep the point). A key a box refuses
// is discarded before the box sees it, beeps, and is told with what the box
// accepts; a paste goes through the same rule as typing.

#include <QObject>
#include <QString>

#include <functional>

class QWidget;

namespace pilarix::ui {

enum class Teclas {
    Inteiro,         // digits: sides, bar counts, steps
    Decimal,         // digits and one decimal point (a comma counts as one)
    DecimalComSinal, // as Decimal, and a minus sign in front: the axial force, which may be a tension
    Bitola,          // the bar list: chosen by a click, never typed
    Nenhuma,         // result boxes and lists: nothing is typed
};

// Whether a typed character belongs to a group of boxes. Backspace is the
// character '\b'; the comma belongs wherever the point does.
bool teclaAceita(Teclas regra, QChar c);

// What a group of boxes accepts, as the status bar says it ("só algarismos").
QString oQueAceita(Teclas regra);

// Typing or pasting `inserido` over the characters [inicio, fim) of `texto`: the
// text to insert (the comma turned into a point, a paste trimmed), or, when the box
// refuses it, why (`motivo` not empty).
struct Insercao {
    QString texto;
    QString motivo;
};
Insercao insercao(Teclas regra, const QString& texto, int inicio, int fim, QString inserido, bool colado);

class KeyFilter : public QObject {
    Q_OBJECT
public:
    // `recusa` is told the box and the reason of every key or paste refused.
    using Recusa = std::function<void(QWidget*, const QString& motivo)>;
    KeyFilter(Teclas regra, Recusa recusa, QObject* parent = nullptr);

    // Installs the filter on a line edit or a list and closes the ways round it
    // (dropping text, the paste of the context menu).
    void instala(QWidget* w);

    Teclas regra() const { return regra_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool recusa(QObject* watched, const QString& motivo);
    bool insere(QObject* watched, const QString& inserido, bool colado);

    Teclas regra_;
    Recusa recusa_;
};

} // namespace pilarix::ui
