#include "ui/qt_dialogs.h"

#include "ui/cover_dialog.h"
#include "ui/error_dialog.h"
#include "ui/stirrup_choice_dialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>

namespace pilarix::ui {

QtDialogs::QtDialogs(QWidget* parent) : parent_(parent) {}

QtDialogs::~QtDialogs()
{
    // The dialogs are children of the window when it exists; the others go here.
    for (QDialog* d : std::initializer_list<QDialog*>{erro_, cobrimento_, estribos_})
        if (d && !d->parent())
            delete d;
}

void QtDialogs::showError(const Form2Model& form)
{
    if (!erro_)
        erro_ = new ErrorDialog(parent_);
    erro_->preenche(form);
    erro_->exec();
}

int QtDialogs::askCover(const Form4Model& form)
{
    if (!cobrimento_)
        cobrimento_ = new CoverDialog(parent_);
    cobrimento_->preenche(form);
    return cobrimento_->pergunta();
}

void QtDialogs::chooseStirrup(Form7Model& form)
{
    if (!estribos_)
        estribos_ = new StirrupChoiceDialog(parent_);
    estribos_->preenche(form);
    estribos_->exec();
    estribos_->devolve(form);
}

void QtDialogs::notice(const std::string& text)
{
    QMessageBox caixa(QMessageBox::Information, QStringLiteral("Pilarix Normal"), QString::fromStdString(text),
                      QMessageBox::Ok, parent_);
    caixa.setObjectName(QStringLiteral("aviso"));
    caixa.exec();
}

void QtDialogs::beep() { QApplication::beep(); }

std::string QtDialogs::askOpenFileName()
{
    const QString nome =
        QFileDialog::getOpenFileName(parent_, QStringLiteral("Abrir arquivo"), QString(), kFiltroArquivos);
    return nome.toStdString();
}

std::string QtDialogs::askSaveFileName()
{
    QFileDialog d(parent_, QStringLiteral("Salvar como"), QString(), kFiltroArquivos);
    d.setAcceptMode(QFileDialog::AcceptSave);
    d.setFileMode(QFileDialog::AnyFile);
    // A name typed without an extension still shows under the filter next time.
    d.setDefaultSuffix(QStringLiteral("TXT"));
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty())
        return {};
    return d.selectedFiles().constFirst().toStdString();
}

int QtDialogs::askSaveChanges(const std::string& question)
{
    QMessageBox caixa(QMessageBox::Warning, QStringLiteral("Pilarix Normal"), QString::fromStdString(question),
                      QMessageBox::NoButton, parent_);
    caixa.setObjectName(QStringLiteral("perguntaSalvar"));
    QAbstractButton* salvar = caixa.addButton(QStringLiteral("&Salvar"), QMessageBox::AcceptRole);
    QAbstractButton* descartar = caixa.addButton(QStringLiteral("&Não salvar"), QMessageBox::DestructiveRole);
    QAbstractButton* cancelar = caixa.addButton(QStringLiteral("Cancelar"), QMessageBox::RejectRole);
    caixa.setDefaultButton(static_cast<QPushButton*>(salvar));
    caixa.setEscapeButton(cancelar);
    caixa.exec();
    if (caixa.clickedButton() == salvar)
        return 1;
    return caixa.clickedButton() == descartar ? 2 : 0;
}

std::string QtDialogs::askDrawingFileName(const std::string& proposed)
{
    // The format follows the type chosen; a name typed without an extension takes it.
    static const QStringList filtros{QStringLiteral("Desenho para CAD (*.dxf)"),
                                     QStringLiteral("Desenho vetorial (*.svg)"), QStringLiteral("Imagem (*.png)")};
    static const QStringList sufixos{QStringLiteral("dxf"), QStringLiteral("svg"), QStringLiteral("png")};
    QFileDialog d(parent_, QStringLiteral("Exportar desenho"), QString::fromStdString(proposed),
                  filtros.join(QStringLiteral(";;")));
    d.setAcceptMode(QFileDialog::AcceptSave);
    d.setFileMode(QFileDialog::AnyFile);
    d.setDefaultSuffix(sufixos.constFirst());
    QObject::connect(&d, &QFileDialog::filterSelected, &d, [&d](const QString& filtro) {
        const auto i = filtros.indexOf(filtro);
        if (i >= 0)
            d.setDefaultSuffix(sufixos[i]);
    });
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty())
        return {};
    return d.selectedFiles().constFirst().toStdString();
}

std::string QtDialogs::askReportFileName(const std::string& proposed)
{
    QFileDialog d(parent_, QStringLiteral("Memorial de cálculo"), QString::fromStdString(proposed),
                  QStringLiteral("Memorial de cálculo (*.pdf)"));
    d.setAcceptMode(QFileDialog::AcceptSave);
    d.setFileMode(QFileDialog::AnyFile);
    d.setDefaultSuffix(QStringLiteral("pdf"));
    if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty())
        return {};
    return d.selectedFiles().constFirst().toStdString();
}

} // namespace pilarix::ui

namespace pilarix::ui {

bool QtDialogs::askLargeSearch(double total, double limit)
{
    const QString texto = QStringLiteral("A busca da melhor solução testaria %L1 arranjos, mais que o limite de %L2, "
                                         "e pode demorar. Continuar mesmo assim? (A busca pode ser interrompida.)")
                              .arg(total, 0, 'f', 0)
                              .arg(limit, 0, 'f', 0);
    return QMessageBox::question(parent_, QStringLiteral("Calcula melhor solução"), texto,
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No)
           == QMessageBox::Yes;
}

bool QtDialogs::searchProgress(double done, double total)
{
    if (!progresso_) {
        progresso_ = new QProgressDialog(QStringLiteral("Buscando a melhor solução..."), QStringLiteral("Interromper"),
                                         0, 1000, parent_);
        progresso_->setWindowTitle(QStringLiteral("Calcula melhor solução"));
        progresso_->setWindowModality(Qt::WindowModal);
        progresso_->setMinimumDuration(500);
        progresso_->setAutoClose(false);
        progresso_->setAutoReset(false);
        progresso_->setValue(0);
    }
    const int valor = total > 0 ? static_cast<int>(1000 * done / total) : 0;
    progresso_->setLabelText(QStringLiteral("Buscando a melhor solução: %L1 de %L2 arranjos")
                                 .arg(done, 0, 'f', 0)
                                 .arg(total, 0, 'f', 0));
    progresso_->setValue(valor);
    QCoreApplication::processEvents();
    const bool segue = !progresso_->wasCanceled();
    if (!segue || done >= total) {
        progresso_->deleteLater();
        progresso_ = nullptr;
    }
    return segue;
}

} // namespace pilarix::ui
