#include "bank/Sources.h"

#include "bank/messages.h"
#include "common/Erreur.h"
#include "common/Fichiers.h"

#include <QDir>

namespace banque {

/// What a prescription stands on: without one of these the bank would mislead.
const QStringList& SourcesExigees()
{
    using namespace sources;
    static const QStringList exigees{kSpecialites, kPresentations,  kCompositions, kGroupes,
                                     kConditions,  kDisponibilites, kMitm};
    return exigees;
}

const QStringList& SourcesFacultatives()
{
    using namespace sources;
    static const QStringList facultatives{kLiensAvis, kAvisSmr, kAvisAsmr};
    return facultatives;
}

Sources::Sources(const QString& dossier) : dossier_(dossier)
{
    const QString affiche = common::CheminAffiche(dossier);
    if (!common::DossierExiste(dossier)) {
        throw common::Erreur(messages::DossierAbsent(affiche), affiche);
    }
    presents_ = QDir(dossier).entryList(QDir::Files, QDir::Name);
    for (const QString& nom : SourcesExigees()) {
        if (Chemin(nom).isEmpty()) {
            throw common::Erreur(messages::FichierAbsent(nom, affiche), affiche);
        }
    }
}

QString Sources::Chemin(const QString& nom) const
{
    for (const QString& present : presents_) {
        if (present.compare(nom, Qt::CaseInsensitive) == 0) {
            return common::Joint(dossier_, present);
        }
    }
    return {};
}

QStringList Sources::Avertissements(const QString& thesaurus) const
{
    QStringList avertissements;
    for (const QString& nom : SourcesFacultatives()) {
        if (Chemin(nom).isEmpty()) {
            avertissements.append(messages::FichierFacultatifAbsent(nom));
        }
    }
    const QStringList connus = SourcesExigees() + SourcesFacultatives();
    for (const QString& present : presents_) {
        const bool lu = QFileInfo(common::Joint(dossier_, present)) == QFileInfo(thesaurus);
        if (!lu && !connus.contains(present, Qt::CaseInsensitive)) {
            avertissements.append(messages::FichierInconnu(present));
        }
    }
    return avertissements;
}

} // namespace banque
