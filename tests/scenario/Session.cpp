#include "scenario/Session.h"

#include "scenario/Echec.h"

#include <QThread>
#include <QTimer>

namespace scenario {

Session::Session(scenario::Monde monde, const QString& sortie, scenario::Fabrique& fabrique)
    : Monde(std::move(monde)), Sortie(sortie.isEmpty() ? Monde.Racine() : sortie), Fabrique(fabrique),
      Imprimantes(Horloge, Lanceur, Boites)
{
    Imprimantes.DossierPdf = sortie;
}

Session::~Session() = default;

void Session::Lance()
{
    if (programme_ && !fini_) {
        throw Echec{QStringLiteral("le programme est déjà lancé")};
    }
    programme_.reset();
    fini_ = false;
    programme_ =
        Fabrique.Fait({Boites, Imprimantes, Horloge, Plateau, Demarrage, Lanceur}, Monde.Programme());
    connect(programme_.get(), &Programme::Termine, this, [this] {
        RetientChemins();
        fini_ = true;
        Libere();
    });
    programme_->Demarre();
}

Programme& Session::EnCours() const
{
    if (!programme_ && !fini_) {
        throw Echec{QStringLiteral("le programme n'est pas lancé")};
    }
    if (fini_) {
        throw Echec{QStringLiteral("le programme est terminé")};
    }
    return *programme_;
}

QVariant Session::Valeur(const QString& nom) const
{
    return fini_ && chemins_.contains(nom) ? chemins_.value(nom) : EnCours().Valeur(nom);
}

QString Session::CheminBase(const QString& nom) const
{
    if (nom != QLatin1String("Medoc") && nom != QLatin1String("Ordo")) {
        return nom;
    }
    const QStringList lieux = nom == QLatin1String("Ordo") ? QStringList{QStringLiteral("CheminMedecin")}
                                                           : QStringList{QStringLiteral("CheminTravail"),
                                                                         QStringLiteral("CheminData")};
    QString dossier = Monde.Programme();
    for (const QString& lieu : lieux) {
        const QString courant = programme_ && !fini_ ? programme_->Valeur(lieu).toString() : QString();
        const QString connu = courant.isEmpty() ? chemins_.value(lieu) : courant;
        if (!connu.isEmpty()) {
            dossier = connu;
            break;
        }
    }
    return QStringLiteral("%1/%2.mdb").arg(dossier, nom);
}

bool Session::ConstateFin()
{
    if (fini_) {
        accident_.clear();
    }
    return fini_;
}

void Session::ErreurNonGardee(const QString& phrase, const QString& lieu)
{
    erreur_ = true;
    accident_ = lieu.isEmpty() ? phrase : QStringLiteral("%1 (%2)").arg(phrase, lieu);
    if (programme_ && !fini_) {
        programme_->ArreteSurErreur(phrase, lieu);
    }
}

void Session::CliqueIcone(outside::Plateau::Clic clic)
{
    if (Plateau.Bulle.isEmpty() || !Plateau.Receveur) {
        throw Echec{QStringLiteral("aucune icône à côté de l'horloge")};
    }
    Plateau.Receveur(clic);
}

void Session::RetientChemins()
{
    for (const auto& nom : {QStringLiteral("CheminData"), QStringLiteral("CheminBase"),
                            QStringLiteral("CheminTravail"), QStringLiteral("CheminMedecin")}) {
        chemins_.insert(nom, programme_->Valeur(nom).toString());
    }
}

/// Deletes an ended program once the outermost loop is back in control.
void Session::Libere()
{
    QTimer::singleShot(5, this, [this] {
        if (!fini_) {
            return;
        }
        if (QThread::currentThread()->loopLevel() > 1) {
            Libere();
        } else {
            programme_.reset();
        }
    });
}

} // namespace scenario
