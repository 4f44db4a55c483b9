#include "upgrade/JournalMaj.h"

#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "common/Tolere.h"
#include "upgrade/MajAbandonnee.h"
#include "upgrade/messages.h"

#include <QFileInfo>
#include <algorithm>
#include <array>

namespace upgrade {

using common::FichierExiste;
using common::Joint;

namespace {

constexpr std::array kEtapes = {QLatin1String("Preparation"), QLatin1String("Echange"),
                                QLatin1String("Retour"), QLatin1String("Nettoyage")};

constexpr QLatin1String kJournal("MiseAJour.cfg");

/// A program on another machine that holds the journal for longer is taken for dead; here its process is
/// asked.
constexpr int kVerrouPerime = 60 * 60 * 1000;

/// A path with that text before its last name.
QString AvecPrefixe(const QString& chemin, const QString& prefixe)
{
    const QFileInfo info(chemin);
    return Joint(info.path(), prefixe + info.fileName());
}

/// Whether the line of a journal names a database of the tree.
bool EstBase(const QString& ligne)
{
    const QString nom = ligne.section(u'/', -1);
    const bool connue = nom == QLatin1String("Medoc.mdb") || nom == QLatin1String("Ordo.mdb");
    return connue && !ligne.startsWith(u'/') && !ligne.contains(u':') &&
           !ligne.split(u'/').contains(QLatin1String(".."));
}

} // namespace

JournalMaj::JournalMaj(QString arbre, QString cheminData, Suivi& suivi)
    : arbre_(std::move(arbre)), cheminData_(std::move(cheminData)), suivi_(suivi),
      verrou_(Joint(arbre_, QStringLiteral("MiseAJour.verrou")))
{
    verrou_.setStaleLockTime(kVerrouPerime);
}

QString JournalMaj::Journal() const
{
    return Joint(arbre_, kJournal);
}

QString JournalMaj::Fichier(const QString& base) const
{
    return Joint(arbre_, base);
}

QString JournalMaj::Copie(const QString& base) const
{
    return AvecPrefixe(Fichier(base), QStringLiteral("Copie de "));
}

QString JournalMaj::Ancien(const QString& base) const
{
    return AvecPrefixe(Fichier(base), QStringLiteral("Ancien_"));
}

/// The backup of the upgrade before, until this one is done.
QString JournalMaj::AncienAvant(const QString& base) const
{
    return Ancien(base) + QStringLiteral(".avant");
}

void JournalMaj::Verrouille()
{
    if (!verrou_.isLocked() && !verrou_.tryLock(0)) {
        const bool ailleurs = verrou_.error() == QLockFile::LockFailedError;
        throw common::Erreur(ailleurs ? messages::EnCoursAilleurs() : messages::ArbreEnLectureSeule(),
                             common::CheminAffiche(arbre_));
    }
}

bool JournalMaj::Lit()
{
    if (!FichierExiste(Journal())) {
        return false;
    }
    QStringList lignes = QString::fromUtf8(common::LitFichier(Journal())).split(u'\n', Qt::SkipEmptyParts);
    const QString premiere = lignes.value(0);
    const auto etape =
        std::ranges::find_if(kEtapes, [&](QLatin1String connue) { return premiere == connue; });
    if (!lignes.isEmpty()) {
        lignes.removeFirst();
    }
    if (etape == kEtapes.end() || !std::ranges::all_of(lignes, EstBase)) {
        // Never ours: it is written at one stroke.
        common::MetEnPlace(Journal(), Journal() + QStringLiteral(".abime"));
        return false;
    }
    etape_ = static_cast<Etape>(etape - kEtapes.begin());
    bases_ = lignes;
    return true;
}

void JournalMaj::Ecrit(Etape etape)
{
    suivi_.Coupe();
    QByteArray contenu = kEtapes[static_cast<size_t>(etape)].data() + QByteArray("\n");
    for (const QString& base : std::as_const(bases_)) {
        contenu += base.toUtf8() + '\n';
    }
    common::EcritFichier(Journal(), contenu);
    etape_ = etape;
}

void JournalMaj::Renomme(const QString& de, const QString& vers) const
{
    suivi_.Coupe();
    common::MetEnPlace(de, vers);
}

void JournalMaj::Supprime(const QString& chemin) const
{
    if (FichierExiste(chemin)) {
        suivi_.Coupe();
        common::SupprimeFichier(chemin);
    }
}

bool JournalMaj::EnAttente(const QString& arbre)
{
    return FichierExiste(Joint(arbre, kJournal));
}

JournalMaj::Reprise JournalMaj::Reprend()
{
    if (!FichierExiste(Journal()) && !FichierExiste(verrou_.fileName())) {
        return Reprise::Rien;
    }
    Verrouille();
    if (!Lit()) {
        verrou_.unlock();
        return Reprise::Rien;
    }
    if (etape_ == Etape::Retour) {
        Abandonne();
        return Reprise::Annulee;
    }
    // Every database has its place before and behind the exchange: what cannot be taken away then keeps
    // nobody from working, and the next start tries again.
    if (etape_ == Etape::Preparation) {
        common::Tolere([&] { Abandonne(); });
        return Reprise::Annulee;
    }
    if (etape_ == Etape::Echange) {
        Echange();
    }
    common::Tolere([&] { Termine(); });
    return Reprise::Achevee;
}

void JournalMaj::Commence(const QStringList& bases)
{
    Verrouille();
    bases_ = bases;
    Ecrit(Etape::Preparation);
}

void JournalMaj::PoseModele(const QString& base, const QString& modele)
{
    if (!FichierExiste(modele)) {
        throw common::Erreur(messages::ModeleAbsent(QFileInfo(modele).fileName()),
                             common::CheminAffiche(modele));
    }
    suivi_.Coupe();
    Supprime(Copie(base) + QStringLiteral("-journal"));
    common::CopieFichier(modele, Copie(base));
}

/// The template is there as long as its database has not changed places; each step can be made again.
void JournalMaj::Avance(const QString& base) const
{
    if (!FichierExiste(Copie(base))) {
        return;
    }
    if (FichierExiste(Fichier(base))) {
        if (FichierExiste(Ancien(base))) {
            Renomme(Ancien(base), AncienAvant(base));
        }
        Renomme(Fichier(base), Ancien(base));
    }
    Renomme(Copie(base), Fichier(base));
}

void JournalMaj::Recule(const QString& base) const
{
    if (!FichierExiste(Copie(base))) {
        Renomme(Fichier(base), Copie(base));
    }
    if (!FichierExiste(Fichier(base))) {
        Renomme(Ancien(base), Fichier(base));
    }
    if (FichierExiste(AncienAvant(base))) {
        Renomme(AncienAvant(base), Ancien(base));
    }
}

void JournalMaj::AvanceToutes()
{
    for (const QString& base : std::as_const(bases_)) {
        Avance(base);
    }
}

void JournalMaj::ReculeToutes()
{
    for (const QString& base : std::as_const(bases_)) {
        Recule(base);
    }
}

void JournalMaj::Echange()
{
    Ecrit(Etape::Echange);
    try {
        AvanceToutes();
    } catch (const common::Erreur& erreur) {
        Revient(erreur);
    }
    try {
        // Also when the tree is another one than that of the own disk.
        Supprime(Declencheur());
        Ecrit(Etape::Nettoyage);
    } catch (const common::Erreur& erreur) {
        throw common::Erreur(messages::Inachevee(erreur.Phrase()), erreur.Lieu());
    }
}

void JournalMaj::Revient(const common::Erreur& cause)
{
    try {
        Ecrit(Etape::Retour);
        Abandonne();
    } catch (const common::Erreur&) {
        throw common::Erreur(messages::Inachevee(cause.Phrase()), cause.Lieu());
    }
    throw MajAbandonnee(messages::Abandonnee(cause.Phrase()), cause.Lieu());
}

void JournalMaj::Abandonne()
{
    if (!verrou_.isLocked()) {
        return; // the journal is another program's
    }
    if (etape_ == Etape::Retour) {
        ReculeToutes();
        // From here on a missing template says nothing any more.
        Ecrit(Etape::Preparation);
    }
    for (const QString& base : std::as_const(bases_)) {
        if (!EstDeclencheur(Copie(base))) {
            Supprime(Copie(base));
        }
    }
    Supprime(Journal());
    verrou_.unlock();
}

QString JournalMaj::Declencheur() const
{
    return Joint(cheminData_, QStringLiteral("Copie de Medoc.mdb"));
}

bool JournalMaj::EstDeclencheur(const QString& copie) const
{
    const QString reel = QFileInfo(copie).canonicalFilePath();
    return !reel.isEmpty() && reel == QFileInfo(Declencheur()).canonicalFilePath();
}

void JournalMaj::Termine()
{
    for (const QString& base : std::as_const(bases_)) {
        Supprime(AncienAvant(base));
    }
    for (const char* nom : {"Copie de Ordo.mdb", "Ordo.mdb", "Ancien_Ordo.mdb"}) {
        Supprime(Joint(arbre_, QLatin1String(nom)));
    }
    Supprime(Journal());
    verrou_.unlock();
}

} // namespace upgrade
