#include "Soin.h"

#include "Chantier.h"
#include "messages.h"

#include "common/Erreur.h"

#include <QFileInfo>

namespace utile {

Bilan Soigne(const BaseTrouvee& base, const QDateTime& moment)
{
    Bilan bilan = Regarde(base);
    if (!bilan.Apres.isEmpty()) {
        return bilan;
    }
    try {
        Chantier(bilan, moment).Execute();
    } catch (const common::Erreur& erreur) {
        bilan.Issue = Issue::Laissee;
        bilan.Apres = messages::Inchangee();
        // The doctor knows nothing of the draft.
        bilan.Phrase = QString(erreur.Phrase()).remove(Chantier::SuffixeEbauche());
        bilan.Tables.clear();
    }
    bilan.TailleApres = QFileInfo(base.Chemin).size();
    return bilan;
}

void SoigneTout(const QList<BaseTrouvee>& bases, const QDateTime& moment,
                const std::function<bool(int rang)>& commence,
                const std::function<void(int rang, const Bilan&)>& finie)
{
    bool poursuit = true;
    for (int rang = 0; rang < bases.size(); ++rang) {
        poursuit = poursuit && commence(rang);
        if (poursuit) {
            finie(rang, Soigne(bases[rang], moment));
            continue;
        }
        Bilan bilan = Regarde(bases[rang]);
        bilan.Issue = Issue::Laissee;
        bilan.Apres = messages::Inchangee();
        bilan.Phrase = messages::ArretDemande();
        finie(rang, bilan);
    }
}

} // namespace utile
