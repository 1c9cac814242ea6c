#pragma once
// F1: a short help inside the program, in Portuguese: what each frame of the window
// means, the units, the buttons and the keys. Not modal: it stays open beside the
// window while the engineer works.

#include <QDialog>

class QTextBrowser;

namespace pilarix::ui {

class HelpDialog : public QDialog {
    Q_OBJECT
public:
    explicit HelpDialog(QWidget* parent = nullptr);
    QTextBrowser* texto() const { return texto_; }
    QSize sizeHint() const override { return {640, 560}; }

private:
    QTextBrowser* texto_;
};

} // namespace pilarix::ui
