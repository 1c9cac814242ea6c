#include "ui/wheel_guard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QWidget>

namespace pilarix::ui {

namespace {
bool girante(QWidget* w) { return qobject_cast<QComboBox*>(w) || qobject_cast<QAbstractSpinBox*>(w); }
} // namespace

void WheelGuard::protege(QWidget* raiz)
{
    QList<QWidget*> alvos = raiz->findChildren<QWidget*>();
    alvos.prepend(raiz);
    for (QWidget* w : alvos)
        if (girante(w)) {
            // A click or Tab gives the focus; the wheel alone does not.
            w->setFocusPolicy(Qt::StrongFocus);
            w->installEventFilter(this);
        }
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        auto* w = qobject_cast<QWidget*>(watched);
        if (w && !w->hasFocus()) {
            // Ignored, the turn goes on to the parent: the scroll area moves.
            event->ignore();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

} // namespace pilarix::ui
