#pragma once

#include "page/Dessin.h"

#include <QScrollArea>

namespace page {

class Feuille;

/// A sheet as wide as the room that it has, with the rest of its height to scroll.
class VueAjustee : public QScrollArea
{
    Q_OBJECT

public:
    /// `nom`: the sheet's object name; `titre` its accessible name.
    VueAjustee(const QString& nom, const QString& titre, QWidget* parent);

    void Montre(const Dessin& dessin);
    /// Scrolls to the sheet's foot or back to its head.
    void MontrePied(bool oui);

protected:
    void resizeEvent(QResizeEvent* evenement) override;

private:
    void Ajuste();

    page::Feuille* feuille_;
};

} // namespace page
