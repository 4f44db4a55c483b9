#pragma once

#include "page/Dessin.h"

#include <QScrollArea>

namespace page {

class Feuille;

/// What of the sheet always fits in its room.
enum class Ajustement {
    Largeur, ///< its width; the rest of its height is there to scroll
    Entiere, ///< all of it, in the middle
};

/// A sheet as large as the room that it has.
class VueAjustee : public QScrollArea
{
    Q_OBJECT

public:
    /// `nom`: the sheet's object name; `titre` its accessible name.
    VueAjustee(const QString& nom, const QString& titre, QWidget* parent,
               Ajustement ajustement = Ajustement::Largeur);

    void Montre(const Dessin& dessin);
    /// As `Feuille::MarqueBas`.
    void MarqueBas(double y);
    /// Scrolls to the sheet's foot or back to its head.
    void MontrePied(bool oui);

    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* evenement) override;

private:
    void Ajuste();
    double ZoomAjuste() const;

    page::Feuille* feuille_;
    Ajustement ajustement_;
};

} // namespace page
