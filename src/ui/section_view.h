#pragma once
// The drawing surface of the main window: paints the detailed section that the
// calculation left, at the scale of the "Escala" box (pixels per cm), on white like
// the drawing sheet it stands for.

#include "engine/geometry.h"

#include <QWidget>

#include <optional>

namespace pilarix::ui {

class SectionView : public QWidget {
    Q_OBJECT
public:
    explicit SectionView(QWidget* parent = nullptr);

    // The picture, whether its dimension labels show, and whether the picture
    // shown before any result stands in its place.
    void mostra(const std::optional<engine::SectionGeometry>& desenho, double escala, bool cotasVisiveis,
                bool imagemInicial);

    const std::optional<engine::SectionGeometry>& desenho() const { return desenho_; }
    bool cotasVisiveis() const { return cotas_; }
    bool imagemInicial() const { return inicial_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRectF limites() const;
    void pintaImagemInicial(class QPainter& p) const;

    QPointF ponto(const engine::Point& p) const;

    std::optional<engine::SectionGeometry> desenho_;
    double escala_ = 5;
    bool cotas_ = false;
    bool inicial_ = true;
};

} // namespace pilarix::ui
