#include "bank/Remplissage.h"

#include <QDateTime>

namespace banque {

namespace {

/// The driver stores a null text as null: ours is an empty text.
QVariant Texte(const QString& texte)
{
    return texte.isNull() ? QVariant(QStringLiteral("")) : QVariant(texte);
}

QVariant Jour(const std::optional<QDate>& date)
{
    return date ? QVariant(date->toString(Qt::ISODate)) : QVariant();
}

QVariant Euros(const std::optional<qint64>& centimes)
{
    return centimes ? QVariant(static_cast<double>(*centimes) / 100) : QVariant();
}

QVariant Entier(const std::optional<int>& nombre)
{
    return nombre ? QVariant(*nombre) : QVariant();
}

} // namespace

Remplissage::Lectures::Lectures(const Sources& sources)
    : Compositions(LanceLecture<Composant>(sources.Chemin(sources::kCompositions))),
      Specialites(LanceLecture<Specialite>(sources.Chemin(sources::kSpecialites))),
      Presentations(LanceLecture<Presentation>(sources.Chemin(sources::kPresentations))),
      Groupes(LanceLecture<Membre>(sources.Chemin(sources::kGroupes))),
      Conditions(LanceLecture<Condition>(sources.Chemin(sources::kConditions))),
      Disponibilites(LanceLecture<Disponibilite>(sources.Chemin(sources::kDisponibilites))),
      Mitms(LanceLecture<Mitm>(sources.Chemin(sources::kMitm))),
      Liens(LanceLecture<LienAvis>(sources.Chemin(sources::kLiensAvis))),
      Smr(LanceLecture<Avis>(sources.Chemin(sources::kAvisSmr))),
      Asmr(LanceLecture<Avis>(sources.Chemin(sources::kAvisAsmr)))
{}

Remplissage::Remplissage(Ecriture& ecriture, const Sources& sources, Bilan& bilan,
                         const Avancement& avancement)
    : ecriture_(ecriture), sources_(sources), lectures_(sources), bilan_(bilan), avancement_(avancement)
{}

void Remplissage::Tout()
{
    Compositions();
    Substances();
    Specialites();
    Presentations();
    Groupes();
    Conditions();
    Disponibilites();
    Mitms();
    LiensAvis();
    Opinions(sources::kAvisSmr, QStringLiteral("SMR"), lectures_.Smr);
    Opinions(sources::kAvisAsmr, QStringLiteral("ASMR"), lectures_.Asmr);
    EcrisIndexRecherche(ecriture_, aTrouver_.values());
}

Parcours Remplissage::Fichier(const QString& nom)
{
    const QString chemin = sources_.Chemin(nom);
    limite_ = QFileInfo(chemin).lastModified().date();
    return Parcours(chemin, bilan_, avancement_);
}

Sort Remplissage::SelonSpecialite(qint64 cis) const
{
    return specialites_.contains(cis) ? Sort() : Sort{.Ecartee = messages::SansSpecialite()};
}

/// A date after the file itself is announced or mistaken: it does not tell when the data were published.
void Remplissage::RetientDate(const std::optional<QDate>& date)
{
    if (date && *date <= limite_ && (!date_.isValid() || *date > date_)) {
        date_ = *date;
    }
}

void Remplissage::Compositions()
{
    Insertion insertion = ecriture_.Prepare(QStringLiteral("compositions"));
    Fichier(sources::kCompositions).Chaque(lectures_.Compositions, [&](const Composant& fiche) {
        const QString nature = fiche.Fraction ? QStringLiteral("FT") : QStringLiteral("SA");
        insertion.Ajoute({fiche.Cis, Texte(fiche.Element), fiche.Code, fiche.Nom, Texte(fiche.Dosage),
                          Texte(fiche.Reference), nature, fiche.Lien});
        dci_.Apprend(fiche);
        compositions_[fiche.Cis].append(fiche);
        return Sort();
    });
}

void Remplissage::Substances()
{
    Insertion substances = ecriture_.Prepare(QStringLiteral("substances"));
    Insertion formes = ecriture_.Prepare(QStringLiteral("substances_noms"));
    for (auto noms = dci_.Noms().begin(); noms != dci_.Noms().end(); ++noms) {
        substances.Ajoute({noms.key(), dci_.Nom(noms.key())});
        for (auto forme = noms->begin(); forme != noms->end(); ++forme) {
            formes.Ajoute({noms.key(), forme.key()});
        }
    }
}

void Remplissage::Specialites()
{
    Insertion insertion = ecriture_.Prepare(QStringLiteral("specialites"));
    Fichier(sources::kSpecialites).Chaque(lectures_.Specialites, [&](const Specialite& fiche) {
        if (specialites_.contains(fiche.Cis)) {
            return Sort{.Refus = messages::DejaLue(QString::number(fiche.Cis))};
        }
        insertion.Ajoute({fiche.Cis, fiche.Nom, Texte(fiche.Forme), Texte(fiche.Voies), Texte(fiche.Statut),
                          Texte(fiche.Procedure), fiche.Commercialisee, Jour(fiche.DateAmm),
                          Texte(fiche.Alerte), Texte(fiche.NumeroUe), Texte(fiche.Titulaires),
                          fiche.Surveillance, fiche.Homeopathie,
                          Texte(dci_.De(compositions_.value(fiche.Cis)))});
        specialites_.insert(fiche.Cis, {fiche.Nom, fiche.Commercialisee});
        RetientDate(fiche.DateAmm);
        return Sort();
    });
}

QString Remplissage::NomDePresentation(const Presentation& fiche, const Connue& specialite)
{
    if (specialite.Nom.isEmpty() || fiche.Libelle.isEmpty()) {
        return specialite.Nom + fiche.Libelle;
    }
    return specialite.Nom + QStringLiteral(", ") + fiche.Libelle;
}

void Remplissage::Presentations()
{
    Insertion insertion = ecriture_.Prepare(QStringLiteral("presentations"));
    QSet<qint64> cip7;
    QSet<QString> cip13;
    Fichier(sources::kPresentations).Chaque(lectures_.Presentations, [&](const Presentation& fiche) {
        if (cip7.contains(fiche.Cip7) || cip13.contains(fiche.Cip13)) {
            return Sort{.Refus = messages::DejaLue(fiche.Cip13)};
        }
        cip7.insert(fiche.Cip7);
        cip13.insert(fiche.Cip13);
        const bool connue = specialites_.contains(fiche.Cis);
        const Connue specialite = specialites_.value(fiche.Cis);
        const bool commercialisee = fiche.Declaree && specialite.Commercialisee;
        insertion.Ajoute({fiche.Cip7, fiche.Cis,
                          QStringLiteral("%1").arg(fiche.Cip7, 7, 10, QLatin1Char('0')), fiche.Cip13,
                          Texte(fiche.Libelle), Texte(NomDePresentation(fiche, specialite)),
                          Texte(fiche.Statut), Texte(fiche.Etat), commercialisee, Jour(fiche.Date),
                          fiche.Agrement, Entier(fiche.Taux), Euros(fiche.Prix), Euros(fiche.PrixTotal),
                          Euros(fiche.Honoraires), Texte(fiche.Indications)});
        RetientDate(fiche.Date);
        if (commercialisee) {
            NomATrouver& nom = aTrouver_[fiche.Cis];
            nom.Cis = fiche.Cis;
            nom.Nom = specialite.Nom;
            nom.Packs.append({fiche.Libelle, static_cast<quint32>(fiche.Cip7)});
        }
        return connue ? Sort() : Sort{.Correction = messages::PresentationSansSpecialite()};
    });
    // Other words for the state of the market would leave the search without a single pack.
    if (aTrouver_.isEmpty()) {
        throw common::Erreur(messages::RienDeCommercialise(sources::kPresentations),
                             common::CheminAffiche(sources_.Chemin(sources::kPresentations)));
    }
}

void Remplissage::Groupes()
{
    Insertion groupes = ecriture_.Prepare(QStringLiteral("groupes"));
    Insertion membres = ecriture_.Prepare(QStringLiteral("groupes_membres"));
    QSet<int> connus;
    QSet<std::pair<int, qint64>> lus;
    Fichier(sources::kGroupes).Chaque(lectures_.Groupes, [&](const Membre& fiche) {
        if (lus.contains({fiche.Groupe, fiche.Cis})) {
            return Sort{.Ecartee = messages::Doublon()};
        }
        lus.insert({fiche.Groupe, fiche.Cis});
        if (!connus.contains(fiche.Groupe)) {
            connus.insert(fiche.Groupe);
            groupes.Ajoute({fiche.Groupe, Texte(fiche.Libelle)});
        }
        Sort sort = SelonSpecialite(fiche.Cis);
        if (sort.Ecartee.isEmpty()) {
            membres.Ajoute({fiche.Groupe, fiche.Cis, fiche.Type, fiche.Rang});
        }
        return sort;
    });
}

void Remplissage::Conditions()
{
    Insertion insertion = ecriture_.Prepare(QStringLiteral("conditions"));
    Fichier(sources::kConditions).Chaque(lectures_.Conditions, [&](const Condition& fiche) {
        Sort sort = SelonSpecialite(fiche.Cis);
        if (sort.Ecartee.isEmpty()) {
            insertion.Ajoute({fiche.Cis, fiche.Texte});
        }
        return sort;
    });
}

void Remplissage::Disponibilites()
{
    Insertion insertion = ecriture_.Prepare(QStringLiteral("disponibilites"));
    QSet<QString> lues;
    Fichier(sources::kDisponibilites).Chaque(lectures_.Disponibilites, [&](const Disponibilite& fiche) {
        const QString toute = QStringLiteral("%1 %2 %3 %4 %5 %6 %7")
                                  .arg(fiche.Cis)
                                  .arg(fiche.Cip13)
                                  .arg(fiche.Code)
                                  .arg(Jour(fiche.Debut).toString(), Jour(fiche.MiseAJour).toString(),
                                       Jour(fiche.Retour).toString(), fiche.Lien);
        if (lues.contains(toute)) {
            return Sort{.Ecartee = messages::Doublon()};
        }
        lues.insert(toute);
        RetientDate(fiche.MiseAJour);
        Sort sort = SelonSpecialite(fiche.Cis);
        if (sort.Ecartee.isEmpty()) {
            insertion.Ajoute({fiche.Cis, Texte(fiche.Cip13), fiche.Code, Texte(fiche.Statut),
                              Jour(fiche.Debut), Jour(fiche.MiseAJour), Jour(fiche.Retour),
                              Texte(fiche.Lien)});
        }
        return sort;
    });
}

void Remplissage::Mitms()
{
    Insertion insertion = ecriture_.Prepare(QStringLiteral("mitm"));
    Fichier(sources::kMitm).Chaque(lectures_.Mitms, [&](const Mitm& fiche) {
        Sort sort = SelonSpecialite(fiche.Cis);
        if (sort.Ecartee.isEmpty()) {
            insertion.Ajoute({fiche.Cis, Texte(fiche.Atc), Texte(fiche.Nom), Texte(fiche.Lien)});
        }
        return sort;
    });
}

void Remplissage::LiensAvis()
{
    if (sources_.Chemin(sources::kLiensAvis).isEmpty()) {
        return;
    }
    Fichier(sources::kLiensAvis).Chaque(lectures_.Liens, [&](const LienAvis& fiche) {
        if (liensAvis_.contains(fiche.Dossier)) {
            return Sort{.Ecartee = messages::Doublon()};
        }
        liensAvis_.insert(fiche.Dossier, fiche.Lien);
        return Sort();
    });
}

void Remplissage::Opinions(const QString& nom, const QString& genre, std::future<FichierLu<Avis>>& lecture)
{
    if (sources_.Chemin(nom).isEmpty()) {
        return;
    }
    Insertion insertion = ecriture_.Prepare(QStringLiteral("avis"));
    Fichier(nom).Chaque(lecture, [&](const Avis& fiche) {
        Sort sort = SelonSpecialite(fiche.Cis);
        if (sort.Ecartee.isEmpty()) {
            insertion.Ajoute({fiche.Cis, genre, fiche.Dossier, Texte(fiche.Motif), Jour(fiche.Date),
                              Texte(fiche.Valeur), Texte(fiche.Texte),
                              Texte(liensAvis_.value(fiche.Dossier))});
        }
        return sort;
    });
}

} // namespace banque
