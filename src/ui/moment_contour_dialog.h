#pragma once
// "Diagrama Mx–My": the resisting contour of the detailed section at the governing
// case's N_Sd under ABNT NBR 6118:2014 (or 2023), every case's point and the ellipse
// of the minimum moments, painted by the one painter the report uses too
// (render/moment_contour_painter.h), with the figures beside it: the utilisation and
// the verdict, N_Sd, M_Rd,xx and M_Rd,yy, the envelope's case and margin. Not modal:
// the window shows each new calculation in it, or clears it.

#include "report/moment_contour.h"
#include "render/moment_contour_painter.h"

#include <QDialog>
#include <QWidget>

#include <optional>

class QLabel;

namespace pilarix::ui {

class MomentContourPlot : public QWidget {
    Q_OBJECT
public:
    explicit MomentContourPlot(QWidget* parent = nullptr);
    void setContour(std::optional<report::MomentContour> contour);
    const std::optional<report::MomentContour>& contour() const { return contour_; }
    // Where everything is drawn for the present size: the painter's layout.
    render::ContourLayout layout() const;
    QSize sizeHint() const override { return {520, 480}; }
    QSize minimumSizeHint() const override { return {200, 180}; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    std::optional<report::MomentContour> contour_;
};

class MomentContourDialog : public QDialog {
    Q_OBJECT
public:
    explicit MomentContourDialog(QWidget* parent = nullptr);

    void mostra(const report::MomentContour& contour);
    void limpa();

    MomentContourPlot* grafico() const { return grafico_; }
    QLabel* utilizacao() const { return utilizacao_; }
    QLabel* envoltoria() const { return envoltoria_; }

    QSize sizeHint() const override { return {780, 560}; }

private:
    MomentContourPlot* grafico_;
    QLabel* utilizacao_;
    QLabel* veredito_;
    QLabel* figuras_;
    QLabel* envoltoria_;
};

} // namespace pilarix::ui
