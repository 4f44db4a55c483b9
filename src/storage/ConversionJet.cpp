#include "storage/ConversionJet.h"

#include "common/Fichiers.h"
#include "outside/Processus.h"
#include "storage/EbaucheJet.h"
#include "storage/EchangeJet.h"
#include "storage/EnteteJet.h"
#include "storage/ProtocoleJet.h"
#include "storage/RefusJet.h"
#include "storage/SuiviConversion.h"
#include "storage/messages.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QTimer>

namespace storage {

namespace {

/// Longer than any conversion takes: the lock of a station that has gone is broken then.
constexpr int kVerrouPerime = 10 * 60 * 1000;
constexpr int kEntreEssais = 100; // milliseconds

/// Tells the beginning and, however it ends, the end.
class Annonce
{
public:
    Annonce(SuiviConversion* suivi, const QString& chemin) : suivi_(suivi)
    {
        if (suivi_) {
            suivi_->Commence(chemin);
        }
    }
    ~Annonce()
    {
        if (suivi_) {
            suivi_->Termine();
        }
    }
    Annonce(const Annonce&) = delete;
    Annonce& operator=(const Annonce&) = delete;

    bool Poursuit() const { return !suivi_ || !suivi_->Abandonne(); }
    void Attend() const
    {
        if (suivi_) {
            suivi_->Attend();
        }
    }
    void Avance(const EbaucheJet& ebauche) const
    {
        if (suivi_) {
            suivi_->Avance(ebauche.TableEnCours(), ebauche.Lues(), ebauche.Attendues());
        }
    }

private:
    SuiviConversion* suivi_;
};

/// What changes when another program writes to the file.
struct Etat
{
    qint64 Taille;
    QDateTime Heure;
    bool operator==(const Etat&) const = default;
};

Etat EtatDe(const QString& chemin)
{
    const QFileInfo info(chemin);
    return {info.size(), info.lastModified()};
}

void ExigeInchangee(const QString& chemin, const Etat& avant)
{
    if (EtatDe(chemin) != avant) {
        throw Panne(QFileInfo::exists(chemin) ? messages::BaseVerrouillee : messages::BaseAbsente, chemin);
    }
}

/// False when it is no Jet file; throws when it is one that cannot be read.
bool ExigeLisible(const QString& chemin)
{
    switch (LitFormatJet(chemin)) {
    case FormatJet::Aucun:
        return false;
    case FormatJet::Lisible:
        return true;
    case FormatJet::Protege:
        throw RefusJet(messages::JetProtegee, chemin);
    case FormatJet::TropRecent:
        throw RefusJet(messages::JetTropRecente, chemin);
    case FormatJet::Coupe:
        break;
    }
    throw RefusJet(messages::JetEndommagee, chemin);
}

void LaissePasser(int millisecondes)
{
    bool passees = false;
    QTimer minuterie;
    QObject::connect(&minuterie, &QTimer::timeout, &minuterie, [&] { passees = true; });
    minuterie.start(millisecondes);
    while (!passees) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

/// One station converts, the others wait for it.
void Verrouille(QLockFile& verrou, const QString& chemin, const Annonce& annonce, int attenteMax)
{
    verrou.setStaleLockTime(kVerrouPerime);
    QElapsedTimer depuis;
    depuis.start();
    while (!verrou.tryLock(0)) {
        if (verrou.error() == QLockFile::PermissionError) {
            throw Panne(messages::JetEnLectureSeule, chemin);
        }
        if (verrou.error() != QLockFile::LockFailedError) {
            return; // what ails the directory, the reader will tell
        }
        if (depuis.elapsed() >= attenteMax) {
            throw Panne(messages::ConversionAilleurs, chemin);
        }
        annonce.Attend();
        LaissePasser(kEntreEssais);
        if (!annonce.Poursuit()) {
            throw RefusJet(messages::ConversionAbandonnee, chemin);
        }
    }
}

/// Why a reader that did not end well did not.
[[noreturn]] void Refuse(const outside::IssueTache& issue, const QString& chemin, bool abandonnee)
{
    using outside::FinTache;
    if (issue.Fin == FinTache::NonLancee) {
        throw Panne(messages::LecteurAbsent, chemin);
    }
    if (issue.Fin == FinTache::Muette) {
        throw RefusJet(messages::JetSansFin, chemin);
    }
    switch (issue.Code) {
    case jet::kDisquePlein:
        throw Panne(messages::DisquePlein, chemin);
    case jet::kLectureSeule:
        throw Panne(messages::JetEnLectureSeule, chemin);
    case jet::kDisqueEnPanne:
        throw Panne(messages::DisqueEnPanne, chemin);
    case jet::kIllisible:
        throw Panne(messages::BaseIllisible, chemin);
    default:
        break;
    }
    throw RefusJet(abandonnee ? messages::ConversionAbandonnee : messages::JetEndommagee, chemin);
}

void Lit(const QString& chemin, GenreBase genre, EbaucheJet& ebauche, const Annonce& annonce,
         const ReglagesConversion& reglages)
{
    const QFileInfo fichier(chemin);
    const QStringList arguments{fichier.fileName(), QFileInfo(ebauche.Chemin()).fileName(),
                                QLatin1String(genre == GenreBase::Medoc ? jet::kMedoc : jet::kOrdo)};
    const outside::Tache tache{reglages.Lecteur, arguments, fichier.absolutePath(), reglages.SilenceMax};
    const auto recoit = [&](const QByteArray& morceau) {
        const bool bon = ebauche.Recoit(morceau);
        annonce.Avance(ebauche);
        return bon;
    };
    const auto issue = outside::SuitTache(tache, recoit, [&] { return annonce.Poursuit(); });
    if (issue.Fin != outside::FinTache::Bonne || !ebauche.Entiere()) {
        Refuse(issue, chemin, !annonce.Poursuit());
    }
    if (ebauche.SansTable()) {
        throw RefusJet(messages::JetSansTable, chemin);
    }
    if (!ebauche.EstSaine(genre)) {
        throw RefusJet(messages::JetEndommagee, chemin);
    }
}

/// The lock was made just now, by the clock of the disk on which both files stand.
void ExigeFermee(const QString& chemin, const QLockFile& verrou)
{
    const QString access = VerrouAccess(chemin, QFileInfo(verrou.fileName()).lastModified());
    if (!access.isEmpty()) {
        throw common::Erreur(messages::JetOuverte(QFileInfo(chemin).fileName(), access),
                             common::CheminAffiche(chemin));
    }
}

void Convertit(const QString& chemin, GenreBase genre, const ReglagesConversion& reglages)
{
    const Annonce annonce(reglages.Suivi, chemin);
    QLockFile verrou(chemin + QStringLiteral(".lock"));
    Verrouille(verrou, chemin, annonce, reglages.AttenteMax);
    if (!ExigeLisible(chemin)) {
        return; // another station has converted it meanwhile
    }
    ExigeFermee(chemin, verrou);
    if (verrou.isLocked()) {
        OteRestesJet(chemin);
    }
    const Etat avant = EtatDe(chemin);
    EbaucheJet ebauche(chemin);
    try {
        Lit(chemin, genre, ebauche, annonce, reglages);
    } catch (const RefusJet&) {
        // What the reader found says nothing of a file that was written or went away meanwhile.
        ExigeInchangee(chemin, avant);
        throw;
    }
    ExigeInchangee(chemin, avant);
    EchangeJet(chemin, ebauche.Chemin());
}

} // namespace

QString CheminLecteurJet()
{
#ifdef Q_OS_WIN
    const QString nom = QStringLiteral("scriptelle-jet.exe");
#else
    const QString nom = QStringLiteral("scriptelle-jet");
#endif
    return common::Joint(QCoreApplication::applicationDirPath(), nom);
}

void ConvertitSiJet(const QString& chemin, GenreBase genre, const ReglagesConversion& reglages)
{
    if (ExigeLisible(chemin)) {
        Convertit(chemin, genre, reglages);
    }
}

} // namespace storage
