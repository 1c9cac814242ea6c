#pragma once
// Keystroke filters of the main window's boxes and lists. A rejected key is
// discarded before the box sees it, so only numbers in the program's own reading
// (digits and "." as the only decimal point) can be typed, and the result boxes and
// the lists take no typing at all.

#include <QObject>

#include <functional>

class QWidget;

namespace pilarix::ui {

enum class Teclas {
    Inteiro,         // digits and Backspace: sides, bar counts, steps
    Decimal,         // digits, Backspace and "."
    DecimalComSinal, // digits, Backspace, "." and "-": the axial force, which may be a tension
    Bitola,          // the bar list: as Decimal, and a rejected key sounds the beep
    Nenhuma,         // result boxes and lists: every key that types is discarded
};

// Whether a typed character is accepted by a group of boxes. Backspace is the
// character '\b'.
bool teclaAceita(Teclas regra, QChar c);

class KeyFilter : public QObject {
    Q_OBJECT
public:
    KeyFilter(Teclas regra, std::function<void()> beep, QObject* parent = nullptr);

    // Installs the filter on a line edit or a list and closes the ways round it
    // (dropping text, the paste of the context menu).
    void instala(QWidget* w);

    Teclas regra() const { return regra_; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool rejeita();

    Teclas regra_;
    std::function<void()> beep_;
};

} // namespace pilarix::ui
