#include "common/Dates.h"
#include "page/Peintres.h"
#include "page/messages.h"

namespace page {

namespace {

constexpr double kNomSurApercu = 20; // millimetres

constexpr quint8 kPatientDeLaListe = 1;
constexpr quint8 kDePassage = 2;
constexpr quint8 kAgeDemande = 3;

bool EstDate(const QString& texte)
{
    return common::DateSaisie(texte).has_value();
}

// A line with a place of its own keeps its distance from the name on the preview.
void Place(Surface& cible, const settings::Marges& marges, qint16 haut, qint16 gauche)
{
    if (haut == 0 && gauche == 0) {
        cible.CurrentX(marges.MargeGauchePatient);
        return;
    }
    cible.CurrentX(gauche);
    cible.CurrentY(cible.Genre() == Cible::Imprimante ? haut
                                                      : haut - marges.MargeHautePatient + kNomSurApercu);
}

void PeintNom(Surface& cible, const Modele& modele)
{
    const settings::Marges& marges = modele.Reglages.Marges;
    cible.CurrentY(cible.Genre() == Cible::Imprimante ? marges.MargeHautePatient : kNomSurApercu);
    cible.Font(modele.Reglages.Look.Titre);
    cible.FontUnderline(modele.Reglages.Options.SouligneNom == 1);
    cible.CurrentX(marges.MargeGauchePatient);
    const bool avecCivilite = modele.Ordonnance.ChkCiv == 1;
    cible.Print(avecCivilite ? modele.Patient.PatientCourant : modele.Patient.NomSeul);
}

QString AgeDuPatient(const Modele& modele)
{
    return TexteAge(modele.Patient.DateNaissance, modele.Reglages.Options, modele.Aujourdhui);
}

void DemandeAge(Modele& modele, outside::Boites& boites)
{
    patients::Patient& patient = modele.Patient;
    patient.AgeSaisi =
        boites.Demande({.Invite = messages::InviteAge(), .Valeur = {}, .Titre = messages::TitreAge()})
            .value_or(QString());
    if (EstDate(patient.AgeSaisi)) {
        patient.DateNaissance = patient.AgeSaisi;
        patient.AgeSaisi = AgeDuPatient(modele);
    }
}

void RetientAgeDePassage(Modele& modele, outside::Boites& boites)
{
    if (modele.Patient.ModePatient != kDePassage) {
        return;
    }
    if (AgeDuPatient(modele).isEmpty()) {
        DemandeAge(modele, boites);
    } else {
        modele.Patient.AgeSaisi = AgeDuPatient(modele);
    }
    modele.Patient.ModePatient = kAgeDemande;
}

QString AgeDePassage(const Modele& modele)
{
    const patients::Patient& patient = modele.Patient;
    if (patient.AgeSaisi.isEmpty()) {
        return {};
    }
    if (EstDate(patient.DateNaissance)) {
        return AgeDuPatient(modele);
    }
    const settings::Options& options = modele.Reglages.Options;
    return options.AfficheAge == 1 || options.AfficheDDN == 1 ? patient.AgeSaisi : QString();
}

void PeintAge(Surface& cible, Modele& modele, outside::Boites& boites)
{
    RetientAgeDePassage(modele, boites);
    if (modele.Patient.ModePatient == kPatientDeLaListe) {
        cible.Print(AgeDuPatient(modele));
    } else if (modele.Patient.ModePatient == kAgeDemande) {
        cible.Print(AgeDePassage(modele));
    }
}

void PeintPoids(Surface& cible, const Modele& modele)
{
    cible.CurrentX(modele.Reglages.Marges.MargeGauchePatient);
    const QString& poids = modele.Patient.PoidsPatient;
    if (modele.Reglages.Options.AffichePoids == 1 && !poids.isEmpty() && poids != QLatin1String("0")) {
        cible.Print(poids + QStringLiteral(" kg"));
    }
}

void PeintDate(Surface& cible, const Modele& modele)
{
    const QString& date = modele.Patient.DateOrdo;
    if (date.isEmpty() || modele.Reglages.Options.ImprimeDate != 1) {
        cible.Print();
        return;
    }
    const auto jour = common::DateSaisie(date);
    cible.Print(jour ? common::TexteDateLongue(*jour) : date);
}

} // namespace

void PeintPatient(Surface& cible, Modele& modele, outside::Boites& boites)
{
    const settings::Marges& marges = modele.Reglages.Marges;
    cible.ScaleMode(Echelle::Millimetres);
    cible.ForeColor(kNoir);
    cible.ScaleTop(-marges.MargeHauteEntete);
    PeintNom(cible, modele);
    cible.Font(modele.Reglages.Look.Poso);
    Place(cible, marges, marges.MargeHauteDDN, marges.MargeGaucheDDN);
    PeintAge(cible, modele, boites);
    PeintPoids(cible, modele);
    cible.Print();
    cible.FontBold(false);
    Place(cible, marges, marges.MargeHauteDate, marges.MargeGaucheDate);
    PeintDate(cible, modele);
}

} // namespace page
