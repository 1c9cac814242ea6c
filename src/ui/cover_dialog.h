#pragma once
// "Cobrimento": the cover question. The first button corrects the cover (and with
// it d') and the calculation runs again; "&2 - Ignorar" keeps the arrangement and
// the calculation ends marked as failed.

#include "window/forms.h"

#include <QDialog>

class QLabel;
class QPushButton;

namespace pilarix::ui {

class CoverDialog : public QDialog {
    Q_OBJECT
public:
    explicit CoverDialog(QWidget* parent = nullptr);
    void preenche(const Form4Model& form);

    // 1 for the first button, 2 for "&2 - Ignorar"; closing the window ignores.
    int pergunta();
    int resposta() const { return resposta_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void responde(int r);

    QLabel* titulo_;
    QLabel* mensagem_;
    QLabel* item_;
    QPushButton* primeiro_;
    QPushButton* ignorar_;
    int resposta_ = 2;
};

} // namespace pilarix::ui
