#pragma once
// The recent projects of the "Arquivo" menu, most recent first, kept in the user's
// settings from one session to the next; a project that can no longer be read
// leaves the list.

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>

class QMenu;

namespace pilarix::ui {

class RecentProjects : public QObject {
public:
    // `abre` is told the project chosen in the menu.
    RecentProjects(QMenu* menu, std::function<void(const QString&)> abre, QObject* parent);

    QStringList lista() const;
    void lembra(const QString& nome);
    void esquece(const QString& nome);

private:
    void monta();

    QMenu* menu_;
    std::function<void(const QString&)> abre_;
};

} // namespace pilarix::ui
