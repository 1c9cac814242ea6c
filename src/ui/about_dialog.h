#pragma once
// "Sobre": what the program is, and "&Voltar".

#include <QDialog>

namespace pilarix::ui {

class AboutDialog : public QDialog {
    Q_OBJECT
public:
    explicit AboutDialog(QWidget* parent = nullptr);
};

} // namespace pilarix::ui
