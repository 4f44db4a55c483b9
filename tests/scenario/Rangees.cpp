#include "scenario/Rangees.h"

#include "scenario/Conversions.h"
#include "scenario/Echec.h"

#include <QListView>
#include <QTableView>
#include <QTreeView>
#include <algorithm>

namespace scenario {

namespace {

bool Cachee(QAbstractItemView* vue, int rang)
{
    if (const auto* liste = qobject_cast<QListView*>(vue)) {
        return liste->isRowHidden(rang);
    }
    const auto* table = qobject_cast<QTableView*>(vue);
    return table && table->isRowHidden(rang);
}

QList<QModelIndex> RangeesArbre(QTreeView* arbre)
{
    QList<QModelIndex> rangees;
    QModelIndex index = arbre->model()->index(0, 0, arbre->rootIndex());
    for (; index.isValid(); index = arbre->indexBelow(index)) {
        if (!arbre->isRowHidden(index.row(), index.parent())) {
            rangees.append(index);
        }
    }
    return rangees;
}

bool ColonneCachee(QAbstractItemView* vue, int colonne)
{
    if (const auto* arbre = qobject_cast<QTreeView*>(vue)) {
        return arbre->isColumnHidden(colonne);
    }
    const auto* table = qobject_cast<QTableView*>(vue);
    return !table || table->isColumnHidden(colonne);
}

QString Entier(const QString& texte)
{
    return texte.trimmed();
}

/// What stands before the run of blanks that keeps the end of a row out of sight.
QString Visible(const QString& texte)
{
    static const QString kHorsDeVue(30, QLatin1Char(' '));
    const QString entier = texte.trimmed();
    return entier.left(entier.indexOf(kHorsDeVue)).trimmed();
}

} // namespace

QList<QModelIndex> Rangees(QAbstractItemView* vue)
{
    if (!vue->model()) {
        return {};
    }
    if (auto* arbre = qobject_cast<QTreeView*>(vue)) {
        return RangeesArbre(arbre);
    }
    const auto* liste = qobject_cast<QListView*>(vue);
    QList<QModelIndex> rangees;
    for (int rang = 0; rang < vue->model()->rowCount(vue->rootIndex()); ++rang) {
        if (!Cachee(vue, rang)) {
            rangees.append(vue->model()->index(rang, liste ? liste->modelColumn() : 0, vue->rootIndex()));
        }
    }
    return rangees;
}

QString TexteRangee(QAbstractItemView* vue, const QModelIndex& index)
{
    if (qobject_cast<QListView*>(vue)) {
        return index.data().toString();
    }
    QStringList textes;
    for (int colonne = 0; colonne < vue->model()->columnCount(index.parent()); ++colonne) {
        if (!ColonneCachee(vue, colonne)) {
            textes.append(index.siblingAtColumn(colonne).data().toString());
        }
    }
    return textes.join(QLatin1Char('\t'));
}

int RangVoulu(const QStringList& textes, const QVariant& voulu)
{
    if (EstNombre(voulu)) {
        const int rang = voulu.toInt();
        if (rang < 0 || rang >= textes.size()) {
            throw Echec{
                QStringLiteral("la rangée %1 n'existe pas, il y en a %2").arg(rang).arg(textes.size())};
        }
        return rang;
    }
    const QString texte = voulu.toString().trimmed();
    for (const auto& lu : {&Entier, &Visible}) {
        const auto place = std::ranges::find_if(textes, [&](const QString& t) { return lu(t) == texte; });
        if (place != textes.end()) {
            return static_cast<int>(place - textes.begin());
        }
    }
    throw Echec{QStringLiteral("aucune rangée « %1 » parmi « %2 »")
                    .arg(texte, textes.mid(0, 20).join(QStringLiteral(" | ")))};
}

QModelIndex RangeeVoulue(QAbstractItemView* vue, const QVariant& voulu)
{
    const QList<QModelIndex> rangees = Rangees(vue);
    QStringList textes;
    for (const QModelIndex& index : rangees) {
        textes.append(TexteRangee(vue, index));
    }
    return rangees[RangVoulu(textes, voulu)];
}

int RangChoisi(QAbstractItemView* vue)
{
    const QModelIndexList choisis =
        vue->selectionModel() ? vue->selectionModel()->selectedIndexes() : QModelIndexList();
    if (choisis.isEmpty()) {
        return -1;
    }
    const QModelIndex courant = vue->currentIndex();
    const QModelIndex choisi = choisis.contains(courant) ? courant : choisis.first();
    const QList<QModelIndex> rangees = Rangees(vue);
    for (int rang = 0; rang < rangees.size(); ++rang) {
        if (rangees[rang].row() == choisi.row() && rangees[rang].parent() == choisi.parent()) {
            return rang;
        }
    }
    return -1;
}

} // namespace scenario
