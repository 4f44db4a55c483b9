#include "prescription/LignesZone.h"

#include <algorithm>

namespace prescription {

namespace {

constexpr qsizetype kLongueurIdentifiant = 10;
constexpr qsizetype kLongueurHorsTitre = 30;

} // namespace

int LignesZone::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(lignes_.size());
}

QVariant LignesZone::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= lignes_.size()) {
        return {};
    }
    const Ligne& ligne = lignes_[index.row()];
    switch (role) {
    case Qt::DisplayRole:
        return ligne.Texte;
    case Qt::UserRole:
        return ligne.Indice;
    default:
        return {};
    }
}

void LignesZone::AjouteToutes(const QList<Ligne>& lignes)
{
    if (lignes.isEmpty()) {
        return;
    }
    const int rang = rowCount();
    beginInsertRows({}, rang, rang + static_cast<int>(lignes.size()) - 1);
    lignes_.append(lignes);
    endInsertRows();
}

void LignesZone::Retire(int rang)
{
    if (rang < 0 || rang >= lignes_.size()) {
        return;
    }
    beginRemoveRows({}, rang, rang);
    lignes_.removeAt(rang);
    endRemoveRows();
}

void LignesZone::Deplace(int rang, int vers)
{
    const bool dansLaListe = rang >= 0 && rang < lignes_.size() && vers >= 0 && vers < lignes_.size();
    if (!dansLaListe || qAbs(vers - rang) != 1) {
        return;
    }
    beginMoveRows({}, rang, rang, {}, vers > rang ? vers + 1 : vers);
    lignes_.move(rang, vers);
    endMoveRows();
}

void LignesZone::Efface()
{
    if (lignes_.isEmpty()) {
        return;
    }
    beginResetModel();
    lignes_.clear();
    endResetModel();
}

QString TitreMontre(const QString& titre)
{
    return titre == QLatin1String("##") ? QStringLiteral("#") : titre;
}

QString TexteDeLigne(const QString& titre, int blancs, const QString& identifiant)
{
    constexpr qsizetype kRetrait = 2;
    const QString montre = TitreMontre(titre);
    QString texte(kRetrait + montre.size() + blancs + identifiant.size(), u' ');
    std::ranges::copy(montre, texte.begin() + kRetrait);
    std::ranges::copy(identifiant, texte.end() - identifiant.size());
    return texte;
}

QString IdentifiantDeLigne(const QString& texte)
{
    const qsizetype debut = texte.size() - kLongueurIdentifiant;
    const bool entier = debut <= 0 || texte[debut].isSpace() || texte[debut - 1].isSpace();
    return entier ? texte.right(kLongueurIdentifiant).trimmed() : QString();
}

QString CodeAncien(const Ligne& ligne)
{
    const QString code = ligne.Texte.right(kLongueurHorsTitre).trimmed();
    const bool produit = code.size() <= kLongueurIdentifiant && !ligne.EstUnCode;
    const bool aucun = code == QLatin1String("0") || code == QLatin1String("1");
    bool nombre = false;
    code.toULongLong(&nombre);
    return produit || aucun || !nombre ? QString() : code;
}

QString TitreDeLigne(const QString& texte)
{
    return texte.chopped(qMin(kLongueurHorsTitre, texte.size())).trimmed();
}

} // namespace prescription
