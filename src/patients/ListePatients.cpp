#include "patients/ListePatients.h"

#include "storage/Base.h"

#include <span>
#include <utility>

namespace patients {

namespace {

/// A key in decimal digits, without the cost of a locale.
int Entier(QStringView texte)
{
    constexpr qsizetype kChiffresSurs = 9;
    if (texte.size() > kChiffresSurs) {
        return texte.toInt();
    }
    int valeur = 0;
    for (const QChar c : texte) {
        if (c < u'0' || c > u'9') {
            return texte.toInt();
        }
        valeur = valeur * 10 + (c.unicode() - u'0');
    }
    return valeur;
}

} // namespace

int ListePatients::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : repertoire_.Nombre();
}

QVariant ListePatients::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return Texte(index.row());
    case Qt::ToolTipRole:
        return repertoire_.Nom(index.row()).trimmed().toString();
    case Qt::UserRole:
        return repertoire_.Index(index.row());
    default:
        return {};
    }
}

QString ListePatients::Texte(int rang) const
{
    return QLatin1String("  ") + repertoire_.Nom(rang).toString();
}

void ListePatients::Charge(storage::Base& medoc)
{
    Repertoire relu;
    relu.Reserve(repertoire_.Nombre());
    medoc.ParcourtTextes(
        QStringLiteral("Patients"), {QStringLiteral("Index"), QStringLiteral("NomPatient")},
        [&relu](std::span<const QStringView> textes) { relu.Ajoute(Entier(textes[0]), textes[1]); });
    relu.Trie();
    beginResetModel();
    repertoire_ = std::move(relu);
    endResetModel();
}

int ListePatients::Ajoute(int index, const QString& nom)
{
    const int rang = repertoire_.Place(index, nom);
    beginInsertRows({}, rang, rang);
    repertoire_.Insere(rang, index, nom);
    endInsertRows();
    return rang;
}

void ListePatients::Retire(int rang)
{
    beginRemoveRows({}, rang, rang);
    repertoire_.Retire(rang);
    endRemoveRows();
}

} // namespace patients
