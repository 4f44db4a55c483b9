#include "upgrade/MajBases.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "outside/Boites.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"
#include "upgrade/JournalMaj.h"
#include "upgrade/MajAbandonnee.h"
#include "upgrade/RecopieMedoc.h"
#include "upgrade/RecopieOrdo.h"
#include "upgrade/messages.h"

#include <QFileInfo>
#include <optional>

namespace upgrade {

using application::Contexte;
using common::FichierExiste;
using common::Joint;
using storage::GenreBase;

namespace {

const QString kMedoc = QStringLiteral("Medoc.mdb");
const QString kOrdo = QStringLiteral("Ordo.mdb");

bool EstExclu(const QString& dossier)
{
    return dossier.contains(QLatin1String("Logo")) || dossier.contains(QLatin1String("Certificats"));
}

bool EstDeMedecin(const QString& dossier)
{
    return dossier.contains(QLatin1String("DR ")) && !EstExclu(dossier);
}

bool EstSurLeDisque(const QString& RepertoireMaJ)
{
    return RepertoireMaJ.contains(QLatin1String("DataVelmont"));
}

/// The letterhead of a database is an old one, without the row of the signature.
bool EnteteAncienne(const Source& ordo)
{
    const storage::Table* entete = ordo.ChercheTable(QStringLiteral("Entete"));
    return entete && ordo.Lignes(*entete) == kLignesEnteteAnciennes;
}

/// One upgrade, from the templates to the exchange.
class Travail
{
public:
    Travail(const Contexte& contexte, const QString& arbre, Suivi& suivi)
        : chemins_(contexte.Chemins), bases_(contexte.Bases), arbre_(arbre), suivi_(suivi),
          journal_(arbre, chemins_.CheminData, suivi)
    {}

    void Fait();
    void Nettoie() { journal_.Termine(); }

    int EntetesCompletees = 0; ///< letterheads that got the row of the signature
    bool DatesReparees = false;

private:
    QString Modele(const QString& nom) const
    {
        return Joint(Joint(chemins_.CheminInstallation, QStringLiteral("BasesInstal")),
                     QStringLiteral("Copie de ") + nom);
    }
    void OuvreSources(const QStringList& bases);
    void Remplit(const QStringList& bases);
    void RemplitMedoc();
    void RemplitOrdo(const QString& base, const Source& source);

    Source Ouvre(const QString& chemin, GenreBase genre);

    const startup::Chemins& chemins_;
    storage::Bases& bases_;
    QString arbre_;
    Suivi& suivi_;
    JournalMaj journal_;
    QList<Source> sources_;        ///< in the order of the databases
    std::optional<Source> racine_; ///< "Ordo.mdb" of the root
};

/// A Jet file is converted before, and stays beside.
Source Travail::Ouvre(const QString& chemin, GenreBase genre)
{
    bases_.ConvertitSiJet(chemin, genre);
    Source source(chemin, genre);
    suivi_.Total += source.Lignes();
    return source;
}

void Travail::OuvreSources(const QStringList& bases)
{
    if (FichierExiste(Joint(arbre_, kOrdo))) {
        racine_ = Ouvre(Joint(arbre_, kOrdo), GenreBase::Ordo);
    }
    for (const QString& base : bases) {
        sources_.append(Ouvre(journal_.Fichier(base), base == kMedoc ? GenreBase::Medoc : GenreBase::Ordo));
    }
}

void Travail::RemplitMedoc()
{
    journal_.PoseModele(kMedoc, Modele(kMedoc));
    suivi_.Mot = messages::CopieDe(kMedoc);
    DatesReparees = RecopieMedoc(journal_.Copie(kMedoc), sources_[0], racine_ ? &*racine_ : nullptr, suivi_);
}

void Travail::RemplitOrdo(const QString& base, const Source& source)
{
    journal_.PoseModele(base, Modele(kOrdo));
    suivi_.Mot = messages::CopieDe(base);
    EntetesCompletees += RecopieOrdo(journal_.Copie(base), source, suivi_) ? 1 : 0;
}

void Travail::Remplit(const QStringList& bases)
{
    RemplitMedoc();
    for (qsizetype i = 1; i < bases.size(); ++i) {
        RemplitOrdo(bases[i], sources_[i]);
    }
    // The root's own database does not stay: only its letterhead is told of, where no template replaces it.
    if (racine_ && EstSurLeDisque(arbre_) && !EstExclu(arbre_)) {
        EntetesCompletees += EnteteAncienne(*racine_) ? 1 : 0;
    }
    suivi_.Mot = messages::MiseEnPlace();
    suivi_.Avance(suivi_.Total);
    for (const Source& source : std::as_const(sources_)) {
        source.ExigeInchangee();
    }
}

void Travail::Fait()
{
    // Another upgrade of this tree was cut short.
    if (journal_.Reprend() == JournalMaj::Reprise::Achevee) {
        return;
    }
    const QStringList bases = BasesAMettreAJour(arbre_);
    try {
        OuvreSources(bases);
        journal_.Commence(bases);
        Remplit(bases);
    } catch (const common::Erreur& erreur) {
        // What cannot be taken away is taken away at the next start.
        common::Tolere([&] { journal_.Abandonne(); });
        throw MajAbandonnee(messages::Abandonnee(erreur.Phrase()), erreur.Lieu());
    }
    journal_.Echange();
}

void Annonce(outside::Boites& boites, const Travail& travail)
{
    for (int i = 0; i < travail.EntetesCompletees; ++i) {
        boites.Information(messages::NouveauParametre());
    }
    if (travail.DatesReparees) {
        boites.Information(messages::DatesNaissance());
    }
}

void AnnonceFin(outside::Boites& boites, const Travail& travail)
{
    boites.Information(messages::Terminee());
    boites.Information(travail.DatesReparees ? messages::AutreSupportApresDates() : messages::AutreSupport());
}

} // namespace

QStringList BasesAMettreAJour(const QString& RepertoireMaJ)
{
    const QStringList ListeRepertoires = common::ListeDirectories(RepertoireMaJ);
    const QString& racine = ListeRepertoires.constFirst();
    QStringList bases{kMedoc};
    for (const QString& dossier : ListeRepertoires.mid(1)) {
        if (EstDeMedecin(dossier) && FichierExiste(Joint(dossier, kOrdo))) {
            bases.append(Joint(dossier.mid(racine.size() + 1), kOrdo));
        }
    }
    return bases;
}

void MajBases(Contexte& contexte, const EcransMaj& ecrans, const QString& RepertoireMaJ, Suivi suivi)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    boites.Information(EstSurLeDisque(RepertoireMaJ) ? messages::PatientezDisque()
                                                     : messages::PatientezSupport());
    contexte.Bases.FermeMedoc();
    contexte.Bases.FermeOrdo();
    Travail travail(contexte, common::ListeDirectories(RepertoireMaJ).constFirst(), suivi);
    const auto fait = [&] { travail.Fait(); };
    ecrans.Travaille ? ecrans.Travaille(suivi, fait) : fait();
    Annonce(boites, travail);
    if (ecrans.AnnonceRedemarrage) {
        ecrans.AnnonceRedemarrage();
    }
    AnnonceFin(boites, travail);
    // What cannot be taken away is taken away at the next start.
    common::Tolere([&] { travail.Nettoie(); });
}

} // namespace upgrade
