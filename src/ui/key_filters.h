#pragma once
// Keystroke filters of the window's boxes and lists. Numbers are typed as in
// Brazil: in a box that takes decimals the comma is taken as the decimal point and
// written as the point the program reads (files and the command line keep the
// point), and a pasted "1.350,0" is 1350.0. Every other printable key goes into an
// input box as typed: a text the box cannot read is refused whole by the window
// (ui/box_check.h), never trimmed of the key it did not expect. The result boxes,
// the bar list and the lists take no typed key: it beeps and the status bar says
// why.

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

// Whether a group of boxes is typed into at all.
bool digitavel(Teclas regra);

// A number pasted from a spreadsheet or a text, as the program reads it: trimmed;
// with a decimal comma, the points before it are thousands ("1.350,0" is
// "1350.0"). A text that is no such number comes back trimmed, as it was.
QString numeroColado(const QString& texto);

// What a group of boxes accepts, as the status bar says it ("só algarismos").
QString oQueAceita(Teclas regra);

// Typing or pasting `inserido` into a box of `regra`: the text to insert (in a box
// of decimals the comma turned into a point, a paste read by numeroColado), or,
// where the box takes no typing, why (`motivo` not empty).
struct Insercao {
    QString texto;
    QString motivo;
};
Insercao insercao(Teclas regra, QString inserido, bool colado);

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
