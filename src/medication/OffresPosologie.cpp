#include "medication/OffresPosologie.h"

#include "common/CleDeTri.h"
#include "storage/Base.h"

#include <QHash>
#include <algorithm>

namespace medication {

namespace {

const QLatin1String
    kSelection("select Posologie, count(*) from OrdoEnr "
               "where TitreLigne collate nocase in (?, ?) group by Posologie "
               "union all select Posologie, 1 from BddMed where Nom collate nocase in (?, ?) "
               "union all select Posologie, 1 from Biblio where Titre collate nocase in (?, ?) "
               "union all select Posologie, 1 from Vidal where CIP = ?");

QString Plie(const QString& texte)
{
    return common::Replie(texte.simplified());
}

bool Precede(const Offre& a, const Offre& b)
{
    if (a.Fois != b.Fois) {
        return a.Fois > b.Fois;
    }
    const auto ordre = common::CompareReplie(a.Texte, b.Texte);
    return ordre != 0 ? ordre < 0 : a.Texte < b.Texte;
}

} // namespace

QList<Offre> LitOffres(storage::Base& base, const QString& titre, const QString& cip)
{
    const QString nom = titre.trimmed();
    const QString sansAccents = common::Replie(nom);
    const QVariant pack = cip.isEmpty() ? QVariant() : QVariant(cip);
    QHash<QString, int> fois;
    base.Parcourt(kSelection, {nom, sansAccents, nom, sansAccents, nom, sansAccents, pack},
                  [&](const storage::Rangee& rangee) {
                      fois[rangee.Texte(0).trimmed()] += static_cast<int>(rangee.Entier(1));
                  });
    fois.remove(QString());
    QList<Offre> offres;
    offres.reserve(fois.size());
    for (auto texte = fois.cbegin(); texte != fois.cend(); ++texte) {
        offres.append({texte.key(), texte.value()});
    }
    std::ranges::sort(offres, Precede);
    return offres;
}

int OffresPosologie::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(rangs_.size());
}

QVariant OffresPosologie::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid)) {
        return {};
    }
    const Offre& offre = offres_[rangs_[index.row()]];
    switch (role) {
    case Qt::DisplayRole:
        return QString(offre.Texte).replace(u'\n', u' ');
    case Qt::ToolTipRole:
        return offre.Texte;
    case Qt::UserRole:
        return offre.Fois;
    default:
        return {};
    }
}

void OffresPosologie::Remplit(QList<Offre> offres)
{
    beginResetModel();
    offres_ = std::move(offres);
    rangs_.clear();
    pliees_.clear();
    pliees_.reserve(offres_.size());
    for (const Offre& offre : offres_) {
        pliees_.append(Plie(offre.Texte));
    }
    endResetModel();
}

void OffresPosologie::Restreint(const QString& tape)
{
    const QString pli = Plie(tape);
    beginResetModel();
    rangs_.clear();
    for (qsizetype i = 0; i < pliees_.size() && !pli.isEmpty(); ++i) {
        if (pliees_[i].contains(pli)) {
            rangs_.append(i);
        }
    }
    if (rangs_.size() == 1 && offres_[rangs_.front()].Texte == tape.trimmed()) {
        rangs_.clear();
    }
    endResetModel();
}

QString OffresPosologie::Texte(int rang) const
{
    return rang >= 0 && rang < rangs_.size() ? offres_[rangs_[rang]].Texte : QString();
}

} // namespace medication
