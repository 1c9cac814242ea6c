#pragma once
// The drawing surface of the main window: paints the picture of the section that
// the calculation left in the form model, one drawing unit to one pixel, on white
// like the drawing sheet it stands for.

#include "state/drawing.h"

#include <QWidget>

namespace pilarix::ui {

class SectionView : public QWidget {
    Q_OBJECT
public:
    explicit SectionView(QWidget* parent = nullptr);

    // The picture, whether its dimension labels show, and whether the picture
    // shown before any result stands in its place.
    void mostra(const Drawing& desenho, bool cotasVisiveis, bool imagemInicial);

    const Drawing& desenho() const { return desenho_; }
    bool cotasVisiveis() const { return cotas_; }
    bool imagemInicial() const { return inicial_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF limites() const;
    void pintaImagemInicial(class QPainter& p) const;

    Drawing desenho_;
    bool cotas_ = false;
    bool inicial_ = true;
};

} // namespace pilarix::ui
