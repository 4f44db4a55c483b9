#include "bank/bibliotheque/Bibliotheque.h"

#include "bank/bibliotheque/Emplacement.h"
#include "bank/bibliotheque/Statut.h"
#include "common/Fichiers.h"

#include <QCoreApplication>

namespace banque::bibliotheque {

namespace {

/// A program that ends without a release has its session ended while the toolkit still stands.
void FermeALaFin()
{
    Demande<void>([](Bibliotheque& bibliotheque) { bibliotheque.FermeTout(); });
}

} // namespace

/// Neither is ever destroyed: the library stays in memory until the process ends, and calls may come from
/// the destructors of others.
Bibliotheque& LaBibliotheque()
{
    static auto* const bibliotheque = [] {
        RetiensLaBibliotheque();
        qAddPostRoutine(FermeALaFin);
        return new Bibliotheque;
    }();
    return *bibliotheque;
}

std::mutex& Verrou()
{
    static auto* const verrou = new std::mutex;
    return *verrou;
}

Entier Bibliotheque::Demarre(Poignee* session)
{
    if (!session) {
        return kDemandeVide;
    }
    *session = 0;
    const QString fichier = Fichier();
    Entier statut = session_ && session_->Fichier() == fichier ? session_->Statut() : kEchec;
    if (statut != kPrete && statut != kDemarrage) {
        session_.reset();
        session_ = std::make_unique<Session>(fichier);
        numero_ = Remis.Reserve();
        statut = kDemarrage; // however quick it is: who starts one asks for its result
    }
    *session = numero_;
    return statut;
}

Session* Bibliotheque::Prete(Poignee session) const
{
    Session* const donnee = Donne(session);
    return donnee && donnee->Statut() == kPrete ? donnee : nullptr;
}

void Bibliotheque::Libere(Poignee session)
{
    if (Donne(session)) {
        FermeTout();
    }
}

QString Bibliotheque::Fichier() const
{
    return fichier_.isEmpty() ? common::Joint(DossierDeLaBibliotheque(), QStringLiteral("banque.sqlite"))
                              : fichier_;
}

} // namespace banque::bibliotheque
