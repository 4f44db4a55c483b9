#include "medication/PharmacieBanque.h"

#include "application/Contexte.h"
#include "common/Nombres.h"
#include "drugbank/Banque.h"
#include "medication/Choix.h"
#include "medication/MedicamentsUtilises.h"
#include "medication/PharmaciePersonnelle.h"
#include "medication/PosologiesMemorisees.h"
#include "medication/messages.h"
#include "outside/Boites.h"
#include "settings/Reglages.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"

namespace medication {

namespace {

bool EstPersonnel(const Noeud& noeud)
{
    return noeud.Etiquette == kEtiquettePersonnelle;
}

QString TexteNoeud(const QString& titre)
{
    return QLatin1Char(' ') + titre;
}

QString TitreDe(const Noeud& noeud)
{
    return noeud.Texte.mid(1);
}

/// The stored title that a name in hand stands for: that of the node, or what was typed over it.
QString TitreNomme(const Noeud& noeud, const QString& nom)
{
    const QString titre = TitreDe(noeud);
    return titre.trimmed() == nom.trimmed() ? titre : nom;
}

QString EtiquetteDe(const drugbank::Pack& pack)
{
    return QStringList({common::TexteNombre(common::Val(pack.Cip)), QString::number(pack.Id),
                        QString::number(pack.Produit), common::TexteSimple(pack.Prix)})
        .join(u'/');
}

} // namespace

storage::Base& PharmacieBanque::Medoc()
{
    return contexte_.Bases.Medoc(contexte_.Chemins.CheminTravail);
}

QList<Noeud> PharmacieBanque::Charge(const QString& recherche)
{
    return recherche.trimmed().isEmpty() ? Personnels() : Packs(recherche.trimmed());
}

QList<Noeud> PharmacieBanque::Personnels()
{
    QList<Noeud> noeuds;
    for (const QString& titre : PharmaciePersonnelle(Medoc()).Titres()) {
        noeuds.append({TexteNoeud(titre), kEtiquettePersonnelle});
    }
    return noeuds;
}

QList<Noeud> PharmacieBanque::Packs(const QString& recherche)
{
    const std::shared_ptr<drugbank::AccesBanque> acces = contexte_.Banque.Acces;
    if (!acces) {
        return {};
    }
    const bool relief = contexte_.Reglages.Options.ReliefMedUtilises == 1;
    MedicamentsUtilises utilises(Medoc());
    QList<Noeud> noeuds;
    for (const drugbank::Pack& pack : acces->RecherchePacks(recherche, contexte_.Banque.FiltreBanque)) {
        noeuds.append({pack.Nom, EtiquetteDe(pack), relief && utilises.Contient(pack.Cip)});
    }
    return noeuds;
}

QString PharmacieBanque::NomDuPack(const Noeud& noeud) const
{
    const QString nom = contexte_.Choix.ChkDCI == 1 ? NomDCI(noeud) : QString();
    return nom.isEmpty() ? noeud.Texte.trimmed() : nom;
}

QString PharmacieBanque::NomDCI(const Noeud& noeud) const
{
    const std::shared_ptr<drugbank::AccesBanque> acces = contexte_.Banque.Acces;
    if (!acces) {
        return {};
    }
    const QString nom = acces->NomDCI(InfoPack(noeud).value(2).toInt());
    if (nom.isNull()) {
        contexte_.Dehors.Boites.Information(messages::SansDCI());
    }
    return nom;
}

std::optional<Saisie> PharmacieBanque::Lit(const Noeud& noeud)
{
    if (EstPersonnel(noeud)) {
        const auto posologie = PharmaciePersonnelle(Medoc()).Posologie(TitreDe(noeud));
        return Saisie{noeud.Texte.trimmed(), posologie.value_or(QString())};
    }
    return Saisie{NomDuPack(noeud), PosologiesMemorisees(Medoc()).Lis(InfoPack(noeud).value(0))};
}

void PharmacieBanque::Enregistre(Noeud& noeud, const Saisie& saisie, outside::Boites& boites)
{
    if (EstPersonnel(noeud)) {
        EnregistrePersonnel(noeud, saisie, boites);
        return;
    }
    const QString cip = InfoPack(noeud).value(0);
    if (cip.isEmpty() || (saisie.TxtPoso.isEmpty() && !boites.Question(messages::SansPosologie()))) {
        return;
    }
    PosologiesMemorisees(Medoc()).Enregistre(cip, saisie.TxtPoso);
    boites.Information(messages::ModifieBanque());
}

void PharmacieBanque::EnregistrePersonnel(Noeud& noeud, const Saisie& saisie, outside::Boites& boites)
{
    if (saisie.TxtMedoc.trimmed().isEmpty()) {
        boites.Stop(messages::SansNom());
    } else if (PharmaciePersonnelle(Medoc()).Change(TitreDe(noeud), saisie)) {
        noeud.Texte = TexteNoeud(saisie.TxtMedoc);
        boites.Information(messages::ModifieBanque());
    } else {
        boites.Exclamation(messages::PersonnelDisparu());
    }
}

bool PharmacieBanque::Retire(const Noeud& noeud, const QString& nom, outside::Boites& boites)
{
    if (!EstPersonnel(noeud) || nom.trimmed().isEmpty() ||
        !boites.Question(messages::SupprimePersonnel(nom), outside::Bouton::Non)) {
        return false;
    }
    if (!PharmaciePersonnelle(Medoc()).Supprime(TitreNomme(noeud, nom))) {
        boites.Exclamation(messages::PersonnelDisparu());
    }
    return true;
}

QString PharmacieBanque::Identifiant(const Noeud* noeud) const
{
    const bool pack = noeud && !EstPersonnel(*noeud);
    return pack ? contexte_.Choix.InfoPack.value(2, kEtiquettePersonnelle) : kEtiquettePersonnelle;
}

QStringList PharmacieBanque::InfoPack(const Noeud& noeud) const
{
    return EstPersonnel(noeud) ? QStringList() : noeud.Etiquette.split(u'/');
}

void PharmacieBanque::Prescrit(const Noeud* noeud)
{
    const QString cip = contexte_.Choix.InfoPack.value(0);
    if (noeud && !EstPersonnel(*noeud) && !cip.isEmpty()) {
        MedicamentsUtilises(Medoc()).Ajoute(cip);
    }
}

} // namespace medication
