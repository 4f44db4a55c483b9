#pragma once

#include "bank/Dci.h"
#include "bank/Ecriture.h"
#include "bank/IndexRecherche.h"
#include "bank/Parcours.h"
#include "bank/Sources.h"

#include <QDate>
#include <QSet>

namespace banque {

/// Fills the tables of a bank from the public files, one after the other: the compositions first, which name
/// the medications, then the medications, which all others belong to.
class Remplissage
{
public:
    Remplissage(Ecriture& ecriture, const Sources& sources, Bilan& bilan, const Avancement& avancement);

    void Tout();
    /// The newest date of the data that is not after the files themselves; none when they hold no date.
    QDate DateLaPlusRecente() const { return date_; }

private:
    struct Connue
    {
        QString Nom;
        bool Commercialisee = false;
    };

    void Compositions();
    void Substances();
    void Specialites();
    void Presentations();
    void Groupes();
    void Conditions();
    void Disponibilites();
    void Mitms();
    void LiensAvis();
    void Opinions(const QString& nom, const QString& genre, std::future<FichierLu<Avis>>& lecture);
    Parcours Fichier(const QString& nom);
    Sort SelonSpecialite(qint64 cis) const;
    void RetientDate(const std::optional<QDate>& date);
    QString NomDePresentation(const Presentation& fiche, const Connue& specialite);

    /// The files being read, in the order of their use.
    struct Lectures
    {
        explicit Lectures(const Sources& sources);

        std::future<FichierLu<Composant>> Compositions;
        std::future<FichierLu<Specialite>> Specialites;
        std::future<FichierLu<Presentation>> Presentations;
        std::future<FichierLu<Membre>> Groupes;
        std::future<FichierLu<Condition>> Conditions;
        std::future<FichierLu<Disponibilite>> Disponibilites;
        std::future<FichierLu<Mitm>> Mitms;
        std::future<FichierLu<LienAvis>> Liens;
        std::future<FichierLu<Avis>> Smr;
        std::future<FichierLu<Avis>> Asmr;
    };

    Ecriture& ecriture_;
    const Sources& sources_;
    Lectures lectures_;
    Bilan& bilan_;
    const Avancement& avancement_;
    QDate limite_;
    QDate date_;
    Dci dci_;
    QHash<qint64, QList<Composant>> compositions_;
    QHash<qint64, Connue> specialites_;
    QMap<qint64, NomATrouver> aTrouver_;
    QHash<QString, QString> liensAvis_;
};

} // namespace banque
