#include "medication/OffresPosologie.h"

#include "common/CleDeTri.h"
#include "medication/Choix.h"
#include "page/MarqueursTitre.h"
#include "storage/Base.h"

#include <QHash>
#include <QTextDocument>
#include <algorithm>

namespace medication {

namespace {

constexpr qsizetype kLongueurMontree = 300; // wider than any list
constexpr qsizetype kLongueurBulle = 1500;

const QString& BlancsF4()
{
    static const QString blancs(kBlancsF4, u' ');
    return blancs;
}

/// The titles of one medication: as it stands and by its name, each with or without the "#" of a title. SQL
/// takes the case of plain letters only, so that a name with accents comes in both.
QStringList TitresDe(const QString& titre, const QString& nom)
{
    QStringList titres = {titre};
    for (const QString& texte : {nom, nom.toUpper(), nom.toLower(), common::Replie(nom)}) {
        titres << texte << u'#' + texte << texte + u'#' << u'#' + texte + u'#';
    }
    titres.removeDuplicates();
    return titres;
}

/// The statement that reads the posologies of so many titles.
QString Selection(qsizetype titres)
{
    const QString parmi = QStringLiteral(" collate nocase in (%1)")
                              .arg(QStringList(titres, QStringLiteral("?")).join(QLatin1String(", ")));
    return QStringLiteral("select Posologie, count(*) from OrdoEnr where TitreLigne%1 group by Posologie "
                          "union all select Posologie, 1 from BddMed where Nom%1 "
                          "union all select Posologie, 1 from Biblio where Titre%1 "
                          "union all select Posologie, count(*) from OrdoEnr where TitreLigne collate nocase "
                          ">= ? and TitreLigne collate nocase < ? group by Posologie "
                          "union all select Posologie, 1 from Vidal where CIP = ?")
        .arg(parmi);
}

QVariantList Valeurs(const QStringList& titres, const QString& nom, const QString& cip)
{
    QVariantList valeurs;
    for (int table = 0; table < 3; ++table) {
        valeurs.append(QVariantList(titres.begin(), titres.end()));
    }
    valeurs << nom + BlancsF4() << nom + BlancsF4().chopped(1) + u'!'; // whatever follows the blanks
    return valeurs << (cip.isEmpty() ? QVariant() : QVariant(cip));
}

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
    const QString entier = titre.trimmed().section(BlancsF4(), 0, 0);
    const QString nom = page::LitTitre(entier).Texte.trimmed();
    const QStringList titres = nom.isEmpty() ? QStringList() : TitresDe(entier, nom);
    QHash<QString, int> fois;
    base.Parcourt(Selection(titres.size()), Valeurs(titres, nom, cip), [&](const storage::Rangee& rangee) {
        const QString texte = rangee.Texte(0).replace(QLatin1String("\r\n"), QLatin1String("\n"));
        fois[texte.trimmed()] += static_cast<int>(rangee.Entier(1));
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
        return offre.Texte.left(kLongueurMontree).replace(u'\n', u' ');
    case Qt::ToolTipRole:
        return Qt::convertFromPlainText(offre.Texte.left(kLongueurBulle), Qt::WhiteSpaceNormal);
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
