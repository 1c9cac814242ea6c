#include "ui/key_filters.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>

namespace pilarix::ui {

namespace {
bool decimal(Teclas regra) { return regra == Teclas::Decimal || regra == Teclas::DecimalComSinal; }
} // namespace

bool digitavel(Teclas regra) { return regra != Teclas::Bitola && regra != Teclas::Nenhuma; }

QString numeroColado(const QString& texto)
{
    QString t = texto.trimmed();
    const int virgula = t.lastIndexOf(QLatin1Char(','));
    if (virgula < 0 || t.count(QLatin1Char(',')) > 1)
        return t;
    // Thousands points stand in groups of three digits before the comma.
    QString inteira = t.left(virgula);
    if (inteira.contains(QLatin1Char('.'))) {
        const QStringList grupos = inteira.split(QLatin1Char('.'));
        for (int i = 1; i < grupos.size(); ++i)
            if (grupos[i].size() != 3)
                return t;
        inteira.remove(QLatin1Char('.'));
    }
    return inteira + QLatin1Char('.') + t.mid(virgula + 1);
}

QString oQueAceita(Teclas regra)
{
    switch (regra) {
    case Teclas::Inteiro:
        return QStringLiteral("só algarismos");
    case Teclas::Decimal:
        return QStringLiteral("algarismos e um ponto decimal (a vírgula vale como ponto)");
    case Teclas::DecimalComSinal:
        return QStringLiteral("algarismos, um ponto decimal (a vírgula vale como ponto) e o sinal de menos no início");
    case Teclas::Bitola:
        return QStringLiteral("não se digita; com \"Automático\" desmarcado, um clique fixa a bitola");
    case Teclas::Nenhuma:
        break;
    }
    return QStringLiteral("não se digita");
}

Insercao insercao(Teclas regra, QString inserido, bool colado)
{
    if (!digitavel(regra))
        return {{}, oQueAceita(regra)};
    if (colado)
        inserido = decimal(regra) ? numeroColado(inserido) : inserido.trimmed();
    else if (decimal(regra))
        inserido.replace(QLatin1Char(','), QLatin1Char('.'));
    return {inserido, {}};
}

KeyFilter::KeyFilter(Teclas regra, Recusa recusa, QObject* parent)
    : QObject(parent), regra_(regra), recusa_(std::move(recusa))
{
}

void KeyFilter::instala(QWidget* w)
{
    w->installEventFilter(this);
    w->setAcceptDrops(false);
    if (auto* edit = qobject_cast<QLineEdit*>(w)) {
        edit->setDragEnabled(false);
        // The context menu would paste past the filter; the read-only boxes keep
        // theirs for copying.
        if (!edit->isReadOnly())
            edit->setContextMenuPolicy(Qt::NoContextMenu);
    }
}

bool KeyFilter::recusa(QObject* watched, const QString& motivo)
{
    if (recusa_)
        recusa_(qobject_cast<QWidget*>(watched), motivo);
    return true;
}

// The box takes the text itself where it is what was typed; a comma becomes the
// point, and a paste goes in whole, over the selection.
bool KeyFilter::insere(QObject* watched, const QString& inserido, bool colado)
{
    auto* edit = qobject_cast<QLineEdit*>(watched);
    if (!edit)
        return inserido.isEmpty() ? false : recusa(watched, oQueAceita(regra_));
    if (edit->isReadOnly())
        return recusa(watched, oQueAceita(regra_));
    const Insercao r = insercao(regra_, inserido, colado);
    if (!r.motivo.isEmpty())
        return recusa(watched, r.motivo);
    if (!colado && r.texto == inserido)
        return false;
    edit->insert(r.texto);
    return true;
}

bool KeyFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // Undo and redo are the window's, over every box, not each box's own.
        auto* k = static_cast<QKeyEvent*>(event);
        if (k->matches(QKeySequence::Undo) || k->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    if (event->type() == QEvent::KeyPress) {
        auto* k = static_cast<QKeyEvent*>(event);
        if (k->matches(QKeySequence::Paste))
            return insere(watched, QApplication::clipboard()->text(), true);
        if (k->key() == Qt::Key_Backspace)
            return digitavel(regra_) ? false : recusa(watched, oQueAceita(regra_));
        const QString texto = k->text();
        // Keys that type nothing (arrows, Home, Delete, Tab, Enter, shortcuts with
        // Ctrl) move or act; only typed characters are filtered.
        if (texto.isEmpty() || !texto.at(0).isPrint() || (k->modifiers() & Qt::ControlModifier))
            return false;
        return insere(watched, texto, false);
    }
    if (event->type() == QEvent::InputMethod) {
        auto* im = static_cast<QInputMethodEvent*>(event);
        if (!im->commitString().isEmpty())
            return insere(watched, im->commitString(), false);
    }
    return QObject::eventFilter(watched, event);
}

} // namespace pilarix::ui
