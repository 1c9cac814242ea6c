#pragma once
// "Dados da obra": the work, the client, the column's name, the engineer and the
// revision that head the calculation report; saved with the project.
//
//   ProjectDataDialog d(program.Obra, parent); d.exec()  edits a copy; dados() on OK
//   editProjectData(program.Obra, parent)                 the same in one call: true
//                                                        when OK changed something

#include "window/program.h"

#include <QDialog>

class QLineEdit;

namespace pilarix::ui {

class ProjectDataDialog : public QDialog {
    Q_OBJECT
public:
    ProjectDataDialog(const DadosDaObra& dados, QWidget* parent = nullptr);
    // What the boxes hold, blanks at the ends dropped.
    DadosDaObra dados() const;

private:
    QLineEdit *obra_, *cliente_, *pilar_, *engenheiro_, *revisao_;
};

bool editProjectData(DadosDaObra& dados, QWidget* parent);

} // namespace pilarix::ui
