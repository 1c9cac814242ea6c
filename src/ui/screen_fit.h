#pragma once
// No dialog taller than the screen it shows on: at 1366 × 768 and 150 % the free
// area is about 500 pixels high, less than the diagrams, the list of solutions or
// the help want. A dialog that does not fit has its contents moved into a scroll
// area of the screen's height; every dialog is capped to it, so a window manager
// never places its buttons below the screen.
//
//   cabeNaTela(dialogo, livre)   fits one dialog to the free area `livre`
//   CabeNaTela                   does it for every dialog the application shows,
//                                on the screen each shows on

#include <QObject>
#include <QRect>

class QDialog;

namespace pilarix::ui {

// The room left on the screen for a window's title bar and frame, pixels.
inline constexpr int kMolduraDaJanela = 40;

void cabeNaTela(QDialog* dialogo, const QRect& livre);

class CabeNaTela : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* alvo, QEvent* evento) override;
};

} // namespace pilarix::ui
