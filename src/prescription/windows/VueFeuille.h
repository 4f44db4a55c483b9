#pragma once

#include "page/Dessin.h"

#include <QWidget>

class QScrollBar;

namespace page {
class Feuille;
}

namespace prescription {

/// The sheet of the preview behind its opening: `PctOrdo` in `PctPere`, moved by `Vsb` in whole
/// millimetres, under the ruler `PctRegle`. Real size unless the doctor or a narrow window changes it.
class VueFeuille : public QWidget
{
    Q_OBJECT

public:
    explicit VueFeuille(QWidget* parent);

    /// `bas`: where the printed sheet ends, in millimetres from the top, 0 for no mark.
    void Montre(const page::Dessin& dessin, double bas);
    void MontreRegle(bool oui);
    void RevientEnHaut();
    /// One opening up or down: -1, 1.
    void Page(int sens);

Q_SIGNALS:
    void MenuDemande(const QPoint& surEcran);

protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override;
    void resizeEvent(QResizeEvent* evenement) override;
    void wheelEvent(QWheelEvent* evenement) override;

private:
    void Dispose();
    void Deplace();
    void Agrandit(double facteur);

    page::Feuille* PctRegle_;
    QWidget* PctPere_;
    page::Feuille* PctOrdo_;
    QScrollBar* Vsb_;
    double zoom_ = 1;
    double pixelsParMm_;
};

} // namespace prescription
