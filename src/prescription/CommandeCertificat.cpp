#include "prescription/CommandeCertificat.h"

#include "application/Signaux.h"
#include "outside/Boites.h"
#include "patients/Patient.h"
#include "prescription/Apercu.h"
#include "prescription/Editeur.h"
#include "prescription/messages.h"
#include "startup/Chemins.h"

namespace prescription {

namespace {

bool PourLePatientEnCours(application::Contexte& contexte)
{
    const QString& patient = contexte.Patient.PatientCourant;
    return !patient.isEmpty() && contexte.Dehors.Boites.Question(messages::PourLePatientEnCours(patient));
}

void ChangeMode(application::Contexte& contexte, quint8 mode)
{
    contexte.Apercu.ModeApercu = mode;
    Q_EMIT contexte.Signaux.OrdonnanceChange();
}

EtapeCertificat Ouvre(application::Contexte& contexte, EtapeCertificat etape)
{
    EffaceApercu(contexte);
    return etape;
}

} // namespace

EtapeCertificat CommenceCertificat(application::Contexte& contexte)
{
    if (contexte.Chemins.CheminMedecin.isEmpty()) {
        return EtapeCertificat::Arret;
    }
    const bool enMain = contexte.Apercu.ModeApercu == 1;
    ChangeMode(contexte, 1);
    if (PourLePatientEnCours(contexte)) {
        return Ouvre(contexte, enMain ? EtapeCertificat::Reprise : EtapeCertificat::Nouveau);
    }
    if (enMain) {
        ChangeMode(contexte, 0);
    }
    return EtapeCertificat::Patient;
}

EtapeCertificat PoursuitCertificat(application::Contexte& contexte)
{
    if (contexte.Patient.PatientCourant.isEmpty()) {
        ChangeMode(contexte, 0);
        Repeint(contexte);
        return EtapeCertificat::Arret;
    }
    return Ouvre(contexte, EtapeCertificat::Nouveau);
}

} // namespace prescription
