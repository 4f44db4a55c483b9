#include "medication/windows/ListeOffres.h"

#include <algorithm>

namespace medication {

namespace {

constexpr int kRangeesVues = 5;

} // namespace

ListeOffres::ListeOffres(QWidget* parent) : QListView(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setEditTriggers(NoEditTriggers);
    setUniformItemSizes(true);
    setTextElideMode(Qt::ElideRight);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hide();
    connect(this, &QListView::clicked, this, [this](const QModelIndex& index) { Q_EMIT Prise(index.row()); });
}

void ListeOffres::Ouvre(int hauteur)
{
    const int rangee = sizeHintForRow(0);
    const QMargins marges = viewportMargins() + contentsMargins();
    const int bords = marges.top() + marges.bottom();
    const int possibles = std::max(1, (hauteur - bords) / std::max(1, rangee));
    const int nombre = std::min({possibles, kRangeesVues, model()->rowCount()});
    setFixedHeight(nombre * rangee + bords);
    scrollToTop();
    show();
}

int ListeOffres::Selection() const
{
    const QModelIndexList choisies = selectionModel()->selectedIndexes();
    return choisies.isEmpty() ? -1 : choisies.front().row();
}

void ListeOffres::Deplace(int sens)
{
    const int rang = std::min(Selection() + sens, model()->rowCount() - 1);
    if (rang < 0) {
        setCurrentIndex({});
        clearSelection();
        return;
    }
    setCurrentIndex(model()->index(rang, 0));
}

} // namespace medication
