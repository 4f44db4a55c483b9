#pragma once

#include "patients/windows/ChampSelectionne.h"

class QAbstractItemView;

namespace patients {

/// A search box above a list: the keys that walk a list walk it without leaving the box.
class ZoneRecherche : public ChampSelectionne
{
    Q_OBJECT

public:
    /// `liste` lives as long as the box.
    ZoneRecherche(QAbstractItemView& liste, QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* evenement) override;

private:
    QAbstractItemView& liste_;
};

} // namespace patients
