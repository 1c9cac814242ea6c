#pragma once
// Two pieces of the main window's behaviour with the keyboard and undo: the menu
// wins a shared access key, and one edit of the input is one step of undo.

#include <QKeySequence>
#include <QMenuBar>
#include <QObject>
#include <QShortcutEvent>
#include <QUndoCommand>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace pilarix::ui {

// The menu "&Arquivo" and the stirrup option "Definir m&anualmente" share Alt+A.
// A shared access key only moves the focus between its owners; the menu is the one
// a user reaches for, so an ambiguous key that names a menu opens it.
class PrioridadeDosMenus : public QObject {
public:
    PrioridadeDosMenus(QMenuBar* barra, QObject* parent) : QObject(parent), barra_(barra) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Shortcut) {
            auto* se = static_cast<QShortcutEvent*>(event);
            if (se->isAmbiguous())
                for (QAction* menu : barra_->actions())
                    if (QKeySequence::mnemonic(menu->text()) == se->key()) {
                        barra_->setActiveAction(menu);
                        return true;
                    }
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QMenuBar* barra_;
};

// One edit of the input, by the names of the inputs it changed: what they held
// before and after. Typing into one box is one edit until another input changes.
class EdicaoDaEntrada : public QUndoCommand {
public:
    struct Mudanca {
        std::string nome, antes, depois;
    };
    EdicaoDaEntrada(std::vector<Mudanca> mudancas, bool digitacao, const QString& texto,
                    std::function<void(const std::vector<std::pair<std::string, std::string>>&)> poe)
        : QUndoCommand(texto), mudancas_(std::move(mudancas)), digitacao_(digitacao), poe_(std::move(poe))
    {
    }

    int id() const override { return digitacao_ ? 1 : -1; }
    bool mergeWith(const QUndoCommand* outro) override
    {
        const auto* o = static_cast<const EdicaoDaEntrada*>(outro);
        if (mudancas_.size() != 1 || o->mudancas_.size() != 1 || mudancas_[0].nome != o->mudancas_[0].nome)
            return false;
        mudancas_[0].depois = o->mudancas_[0].depois;
        return true;
    }
    void undo() override { aplica(false); }
    void redo() override
    {
        // The edit is already in the window when it is pushed.
        if (primeira_) {
            primeira_ = false;
            return;
        }
        aplica(true);
    }

private:
    void aplica(bool depois)
    {
        std::vector<std::pair<std::string, std::string>> valores;
        for (const auto& m : mudancas_)
            valores.emplace_back(m.nome, depois ? m.depois : m.antes);
        poe_(valores);
    }

    std::vector<Mudanca> mudancas_;
    bool digitacao_;
    bool primeira_ = true;
    std::function<void(const std::vector<std::pair<std::string, std::string>>&)> poe_;
};

} // namespace pilarix::ui
