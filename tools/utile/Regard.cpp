#include "Arbres.h"
#include "Soin.h"
#include "messages.h"

#include "storage/EnteteJet.h"
#include "storage/EstUneBase.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

namespace utile {

namespace {

/// The engine takes less than a page for the beginning of a new database, and writes one.
constexpr qint64 kPage = 4096;

Bilan& Laisse(Bilan& bilan, Issue issue, const QString& etat, const QString& phrase)
{
    bilan.Issue = issue;
    bilan.Avant = etat;
    bilan.Apres = messages::Inchangee();
    bilan.Phrase = phrase;
    return bilan;
}

/// False when it is no file of the other engine.
bool LaisseJet(Bilan& bilan)
{
    switch (storage::LitFormatJet(bilan.Base.Chemin)) {
    case storage::FormatJet::Aucun:
        return false;
    case storage::FormatJet::Lisible:
        Laisse(bilan, Issue::Attente, messages::Jet(), messages::SeraConvertie());
        break;
    case storage::FormatJet::Protege:
        Laisse(bilan, Issue::Laissee, messages::Protegee(), messages::JetProtegee());
        break;
    default:
        Laisse(bilan, Issue::Laissee, messages::Jet(), messages::JetNonLue());
        break;
    }
    return true;
}

bool PeutEcrire(const QString& chemin)
{
    QFile fichier(chemin);
    QTemporaryFile essai(chemin + QStringLiteral(".XXXXXX.tmp"));
    return fichier.open(QIODevice::ReadWrite) && essai.open();
}

} // namespace

Bilan Regarde(const BaseTrouvee& base)
{
    Bilan bilan;
    bilan.Base = base;
    bilan.Avant = messages::AVerifier();
    const QFileInfo info(base.Chemin);
    bilan.TailleAvant = bilan.TailleApres = info.size();
    QFile fichier(base.Chemin);
    if (const QString travail = TravailInacheve(base.Arbre); !travail.isEmpty()) {
        return Laisse(bilan, Issue::Laissee, messages::EnAttente(), travail + messages::BaseResteTelle());
    }
    if (!info.isFile()) {
        return Laisse(bilan, Issue::Laissee, messages::Absente(), messages::BaseAbsente());
    }
    if (!fichier.open(QIODevice::ReadOnly)) {
        return Laisse(bilan, Issue::Laissee, messages::Illisible(), messages::LectureRefusee());
    }
    if (info.size() == 0) {
        return Laisse(bilan, Issue::Laissee, messages::Vide(), messages::BaseVide());
    }
    if (LaisseJet(bilan)) {
        return bilan;
    }
    if (info.size() < kPage) {
        return fichier.read(storage::kMarqueDuMoteur.size()) == storage::kMarqueDuMoteur
                   ? Laisse(bilan, Issue::Laissee, messages::Irreparable(), messages::RienALire())
                   : Laisse(bilan, Issue::Laissee, messages::PasUneBase(), messages::Etrangere());
    }
    if (!PeutEcrire(base.Chemin)) {
        return Laisse(bilan, Issue::Laissee, messages::LectureSeule(), messages::PasLeDroitDEcrire());
    }
    return bilan;
}

} // namespace utile
