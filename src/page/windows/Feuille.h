#pragma once

#include "page/Dessin.h"
#include "page/windows/PorteDessin.h"

#include <QWidget>

class QPainter;

namespace page {

/// Shows a `Dessin` at any zoom. It owns a copy of what it shows.
class Feuille : public QWidget, public PorteDessin
{
    Q_OBJECT

public:
    explicit Feuille(QWidget* parent = nullptr);

    void Montre(const Dessin& dessin);
    const Dessin& Montree() const { return dessin_; }
    const Dessin& DessinMontre() const override { return dessin_; }

    /// White sheet with edge and light shadow, or transparent on the window's own ground.
    void AvecPapier(bool oui);
    /// Marks the sheet's bottom at that Y in millimetres: text below is lost on paper. 0 for no mark.
    void MarqueBas(double y);
    /// Screen pixels for one millimetre; the sheet's size follows.
    void Zoom(double pixelsParMm);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* evenement) override;

private:
    void ReprendTaille();
    QSizeF TailleDeLaFeuille() const;
    void PeintPapier(QPainter& peintre) const;
    void PeintMarque(QPainter& peintre) const;

    Dessin dessin_;
    double zoom_;
    double bas_ = 0;
    bool papier_ = true;
};

} // namespace page
