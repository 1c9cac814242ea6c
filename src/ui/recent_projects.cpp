#include "ui/recent_projects.h"

#include "ui/window_parts.h"

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QSettings>

namespace pilarix::ui {

using namespace window_parts;

RecentProjects::RecentProjects(QMenu* menu, std::function<void(const QString&)> abre, QObject* parent)
    : QObject(parent), menu_(menu), abre_(std::move(abre))
{
    monta();
}

QStringList RecentProjects::lista() const
{
    QSettings s(QString::fromUtf8(kOrganizacao), QString::fromUtf8(kAplicacao));
    return s.value(QString::fromUtf8(kChaveRecentes)).toStringList();
}

void RecentProjects::lembra(const QString& nome)
{
    QSettings s(QString::fromUtf8(kOrganizacao), QString::fromUtf8(kAplicacao));
    QStringList lista = s.value(QString::fromUtf8(kChaveRecentes)).toStringList();
    const QString caminho = QFileInfo(nome).absoluteFilePath();
    lista.removeAll(caminho);
    lista.prepend(caminho);
    while (lista.size() > kMaximoRecentes)
        lista.removeLast();
    s.setValue(QString::fromUtf8(kChaveRecentes), lista);
    monta();
}

void RecentProjects::esquece(const QString& nome)
{
    QSettings s(QString::fromUtf8(kOrganizacao), QString::fromUtf8(kAplicacao));
    QStringList lista = s.value(QString::fromUtf8(kChaveRecentes)).toStringList();
    lista.removeAll(QFileInfo(nome).absoluteFilePath());
    s.setValue(QString::fromUtf8(kChaveRecentes), lista);
    monta();
}

void RecentProjects::monta()
{
    menu_->clear();
    const QStringList lista = this->lista();
    int n = 0;
    for (const QString& caminho : lista) {
        auto* a = menu_->addAction(QStringLiteral("&%1 %2").arg(++n).arg(QFileInfo(caminho).fileName()));
        a->setToolTip(caminho);
        a->setStatusTip(caminho);
        connect(a, &QAction::triggered, this, [this, caminho] { abre_(caminho); });
    }
    if (lista.isEmpty()) {
        menu_->addAction(QStringLiteral("(nenhum)"))->setEnabled(false);
        return;
    }
    menu_->addSeparator();
    menu_->addAction(QStringLiteral("&Limpar a lista"), this, [this] {
        QSettings s(QString::fromUtf8(kOrganizacao), QString::fromUtf8(kAplicacao));
        s.remove(QString::fromUtf8(kChaveRecentes));
        monta();
    });
}

} // namespace pilarix::ui
