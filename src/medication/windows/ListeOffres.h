#pragma once

#include <QListView>

namespace medication {

/// The posologies offered below the box that is typed in. It never takes the focus.
class ListeOffres : public QListView
{
    Q_OBJECT

public:
    explicit ListeOffres(QWidget* parent);

    /// Shows itself with as many rows as fit within that height in pixels, at least one.
    void Ouvre(int hauteur);
    /// The selected row, -1 for none.
    int Selection() const;
    /// Moves the selection by rows, from before the first one to the last.
    void Deplace(int sens);

Q_SIGNALS:
    void Prise(int rang);
};

} // namespace medication
