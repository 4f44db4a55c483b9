#include "transfer/Transfert.h"

#include "application/Signaux.h"
#include "backup/Sauvegarde.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"
#include "outside/Boites.h"
#include "outside/Lanceur.h"
#include "startup/Chemins.h"
#include "storage/Bases.h"
#include "transfer/messages.h"

#include <QDir>
#include <optional>

namespace transfer {

using application::Contexte;

namespace {

constexpr QLatin1String kArbre("DataScriptelle");
#ifdef Q_OS_WIN
constexpr QLatin1String kUtile("Utile.exe");
#else
constexpr QLatin1String kUtile("Utile");
#endif

/// A directory of a data tree; nothing when the doctor gave up or chose another one, which he is told.
std::optional<QString> ChoisitArbre(outside::Boites& boites, const QString& titre)
{
    const QString reponse = boites.Dossier(titre).value_or(QString());
    if (reponse.isEmpty()) {
        boites.Stop(messages::Annulee());
        return std::nullopt;
    }
    if (!reponse.contains(kArbre)) {
        boites.Stop(messages::MauvaisRepertoire());
        return std::nullopt;
    }
    return QDir::fromNativeSeparators(reponse);
}

/// Says why both cannot be copied into each other; true when they can.
bool PeuventSeCopier(outside::Boites& boites, const QString& source, const QString& destination)
{
    switch (Compare(source, destination)) {
    case Voisinage::Memes:
        boites.Stop(messages::MemesRepertoires());
        return false;
    case Voisinage::Imbriques:
        boites.Stop(messages::RepertoiresImbriques());
        return false;
    case Voisinage::Separes:
        break;
    }
    return true;
}

bool Copie(Contexte& contexte, const QString& source, const QString& destination,
           const Avancement& avancement)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    backup::AttendLaSauvegarde();
    contexte.Bases.FermeMedoc();
    contexte.Bases.FermeOrdo();
    try {
        CopieArbre(source, destination, avancement);
    } catch (const common::Erreur& erreur) {
        boites.Stop(messages::Echoue(erreur.Phrase()));
        return false;
    }
    boites.Information(messages::Reussi());
    return true;
}

} // namespace

bool TransfereDonnees(Contexte& contexte, const Avancement& avancement)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    if (!boites.Question(messages::Ecrasement())) {
        return false;
    }
    boites.Information(messages::OuSontLesRepertoires());
    boites.Information(messages::IndiquezLaSource());
    const auto source = ChoisitArbre(boites, messages::TitreSource());
    if (!source) {
        return false;
    }
    boites.Information(messages::IndiquezLaDestination());
    const auto destination = ChoisitArbre(boites, messages::TitreDestination());
    return destination && PeuventSeCopier(boites, *source, *destination) &&
           boites.Question(messages::Lancer()) && Copie(contexte, *source, *destination, avancement);
}

bool DemandeReparation(Contexte& contexte)
{
    outside::Boites& boites = contexte.Dehors.Boites;
    boites.Information(messages::PensezAReparer());
    return boites.Question(messages::DemandeReparation());
}

void LanceReparation(Contexte& contexte)
{
    backup::AttendLaSauvegarde();
    contexte.Bases.FermeMedoc();
    contexte.Bases.FermeOrdo();
    const QString programme = common::Joint(contexte.Chemins.CheminProgramme, kUtile);
    if (!contexte.Dehors.Lanceur.Lance(programme)) {
        contexte.Dehors.Boites.Stop(messages::UtileAbsent(common::CheminAffiche(programme)));
    }
}

} // namespace transfer
