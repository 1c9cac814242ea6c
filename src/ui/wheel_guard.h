#pragma once
// The mouse wheel scrolls the panel it is over. A list or a spin box under the
// pointer would otherwise take the turn for itself and change an input (the steel,
// the stirrup) without the engineer seeing it: it takes the wheel only once it has
// the focus (clicked or reached by Tab), and otherwise passes the turn on to the
// panel that holds it.

#include <QObject>

class QWidget;

namespace pilarix::ui {

class WheelGuard : public QObject {
    Q_OBJECT
public:
    explicit WheelGuard(QObject* parent = nullptr) : QObject(parent) {}

    // Every list and spin box under `raiz`, `raiz` included.
    void protege(QWidget* raiz);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace pilarix::ui
