#include "ui/key_filters.h"

#include <QComboBox>
#include <QEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>

namespace pilarix::ui {

bool teclaAceita(Teclas regra, QChar c)
{
    const bool digito = c >= QLatin1Char('0') && c <= QLatin1Char('9');
    const bool apaga = c == QLatin1Char('\b');
    switch (regra) {
    case Teclas::Inteiro:
        return digito || apaga;
    case Teclas::Decimal:
    case Teclas::Bitola:
        return digito || apaga || c == QLatin1Char('.');
    case Teclas::DecimalComSinal:
        return digito || apaga || c == QLatin1Char('.') || c == QLatin1Char('-');
    case Teclas::Nenhuma:
        return false;
    }
    return false;
}

KeyFilter::KeyFilter(Teclas regra, std::function<void()> beep, QObject* parent)
    : QObject(parent), regra_(regra), beep_(std::move(beep))
{
}

void KeyFilter::instala(QWidget* w)
{
    w->installEventFilter(this);
    w->setAcceptDrops(false);
    if (auto* edit = qobject_cast<QLineEdit*>(w)) {
        edit->setDragEnabled(false);
        // The context menu would paste past the filter; the result boxes are read
        // only and keep theirs for copying.
        if (!edit->isReadOnly())
            edit->setContextMenuPolicy(Qt::NoContextMenu);
    }
}

bool KeyFilter::rejeita()
{
    if (regra_ == Teclas::Bitola && beep_)
        beep_();
    return true;
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto* k = static_cast<QKeyEvent*>(event);
        // Pasting and cutting would bring in or take out text without a keystroke
        // of its own; the filter allows neither, like the program it mirrors.
        if (k->matches(QKeySequence::Paste) || k->matches(QKeySequence::Cut))
            return rejeita();
        if (k->key() == Qt::Key_Backspace)
            return teclaAceita(regra_, QLatin1Char('\b')) ? false : rejeita();
        const QString texto = k->text();
        // Keys that type nothing (arrows, Home, Delete, Tab, Enter, shortcuts with
        // Ctrl) move or act; only typed characters are filtered.
        if (texto.isEmpty() || !texto.at(0).isPrint())
            return false;
        for (const QChar c : texto)
            if (!teclaAceita(regra_, c))
                return rejeita();
        return false;
    }
    if (event->type() == QEvent::InputMethod) {
        auto* im = static_cast<QInputMethodEvent*>(event);
        for (const QChar c : im->commitString())
            if (!teclaAceita(regra_, c))
                return rejeita();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace pilarix::ui
