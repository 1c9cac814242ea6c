#pragma once
// Helpers for driving the window headless: answering the modal dialogs that a
// calculation opens, and finding controls by the program's names.

#include "ui/main_window.h"
#include "window/policy_dialogs.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <string>
#include <vector>

namespace pilarix::test {

// While alive, answers every modal dialog the moment it shows: `responde` gets the
// dialog and must close it (usually by clicking one of its buttons). Keeps the
// window titles seen, in order. A dialog left open is closed after a while so that
// a failing test fails instead of hanging.
class Respondedor {
public:
    explicit Respondedor(std::function<void(QWidget*)> responde) : responde_(std::move(responde))
    {
        QObject::connect(&timer_, &QTimer::timeout, [this] { verifica(); });
        timer_.start(5);
    }
    ~Respondedor() { timer_.stop(); }

    const std::vector<std::string>& titulos() const { return titulos_; }

private:
    void verifica()
    {
        QWidget* w = QApplication::activeModalWidget();
        if (!w || !w->isVisible()) {
            atual_ = nullptr;
            return;
        }
        if (w != atual_) {
            atual_ = w;
            relogio_.start();
            titulos_.push_back(w->windowTitle().toStdString());
            responde_(w);
            // The same dialog object shows again for the next message: a dialog
            // closed by the answer is new the next time it is seen.
            if (!w->isVisible())
                atual_ = nullptr;
            return;
        }
        if (relogio_.elapsed() > 3000)
            if (auto* d = qobject_cast<QDialog*>(w))
                d->reject();
    }

    std::function<void(QWidget*)> responde_;
    std::vector<std::string> titulos_;
    QTimer timer_;
    QWidget* atual_ = nullptr;
    QElapsedTimer relogio_;
};

// The window over a recording port: questions answered by policy, messages kept.
struct Janela {
    PolicyDialogs dialogs;
    ui::MainWindow w{&dialogs};
    Program& p = w.program();

    QLineEdit* caixa(const char* nome) { return w.findChild<QLineEdit*>(QString::fromUtf8(nome)); }
    QPushButton* botao(const char* nome) { return w.findChild<QPushButton*>(QString::fromUtf8(nome)); }
    QComboBox* lista(const char* nome) { return w.findChild<QComboBox*>(QString::fromUtf8(nome)); }
    QRadioButton* opcao(const char* nome) { return w.findChild<QRadioButton*>(QString::fromUtf8(nome)); }
    QAction* acao(const char* nome) { return w.findChild<QAction*>(QString::fromUtf8(nome)); }
    std::string texto(const char* nome) { return caixa(nome)->text().toStdString(); }
    std::string barra() { return w.statusBar()->currentMessage().toStdString(); }
    void poe(const char* nome, const char* texto) { caixa(nome)->setText(QString::fromUtf8(texto)); }
    void digita(const char* nome, const char* texto)
    {
        caixa(nome)->clear();
        QTest::keyClicks(caixa(nome), QString::fromUtf8(texto));
    }
    void clica(const char* nome) { QTest::mouseClick(botao(nome), Qt::LeftButton); }
    void aciona(const char* nome) { acao(nome)->trigger(); }
};

// Runs the current test in a temporary folder, so that "Padrão.txt" lands there.
struct PastaTemporaria {
    QTemporaryDir dir;
    QString antes = QDir::currentPath();
    PastaTemporaria() { QDir::setCurrent(dir.path()); }
    ~PastaTemporaria() { QDir::setCurrent(antes); }
    std::string caminho(const char* nome) const
    {
        return (dir.path() + QLatin1Char('/') + QString::fromUtf8(nome)).toStdString();
    }
};

// The button of a dialog by its caption ("&2 - Ignorar", "Continuar").
inline QAbstractButton* botaoComTexto(QWidget* janela, const QString& texto)
{
    for (auto* b : janela->findChildren<QAbstractButton*>())
        if (b->text() == texto)
            return b;
    return nullptr;
}

// Clicks a button later, once the current modal loop runs (for a dialog that the
// test opens itself).
inline void clicaDepois(QWidget* janela, const QString& nome)
{
    QTimer::singleShot(0, janela, [janela, nome] {
        if (auto* b = janela->findChild<QAbstractButton*>(nome))
            b->click();
    });
}

} // namespace pilarix::test
