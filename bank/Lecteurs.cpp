#include "bank/Lecteurs.h"

#include "bank/Champs.h"
#include "bank/messages.h"

namespace banque {

namespace {

constexpr int kChiffresCis = 8;
constexpr int kChiffresCip7 = 7;
constexpr int kChiffresCip13 = 13;
constexpr int kChiffresSubstance = 5;

/// Reads the fields of one line by position; the first reason to refuse it stays.
class Champs
{
public:
    Champs(const Ligne& ligne, int attendus, Motifs& motifs) : ligne_(ligne), motifs_(motifs)
    {
        const qsizetype nombre = ligne.Champs.size();
        bool convient = nombre >= attendus;
        for (qsizetype i = attendus; i < nombre; ++i) {
            convient = convient && ligne.Champs[i].trimmed().isEmpty();
        }
        if (!convient) {
            Refuse(messages::Colonnes(nombre, attendus));
        }
    }

    bool Lisible() const { return motifs_.Refus.isEmpty(); }

    QString Texte(int place) const { return Lisible() ? Nettoie(ligne_.Champs[place]) : QString(); }

    QString TexteExige(int place, const QString& quoi)
    {
        QString texte = Texte(place);
        if (texte.isEmpty()) {
            Refuse(messages::ValeurAbsente(quoi));
        }
        return texte;
    }

    qint64 CodeExige(int place, int chiffres, const QString& quoi)
    {
        return Exige(place, quoi, [chiffres](QStringView champ) { return Code(champ, chiffres); });
    }

    qint64 Cis(int place) { return CodeExige(place, kChiffresCis, QStringLiteral("code CIS")); }

    int NombreExige(int place, const QString& quoi)
    {
        return static_cast<int>(Exige(place, quoi, [](QStringView champ) { return Nombre(champ); }));
    }

    /// A value that may be absent; one that cannot be read is left empty, and said.
    template <typename Lecteur> auto Facultatif(int place, const QString& quoi, Lecteur&& lecteur)
    {
        using Resultat = decltype(lecteur(QStringView()));
        if (!Lisible() || Texte(place).isEmpty()) {
            return Resultat();
        }
        const Resultat valeur = lecteur(ligne_.Champs[place]);
        if (!valeur) {
            motifs_.Corrections.append(messages::ValeurLaissee(quoi, Texte(place)));
        }
        return valeur;
    }

    std::optional<QDate> Date(int place, const QString& quoi = QStringLiteral("date"))
    {
        return Facultatif(place, quoi, DateBarre);
    }

    void Refuse(const QString& motif)
    {
        if (motifs_.Refus.isEmpty()) {
            motifs_.Refus = motif;
        }
    }

private:
    template <typename Lecteur> qint64 Exige(int place, const QString& quoi, Lecteur&& lecteur)
    {
        const auto valeur = Lisible() ? lecteur(ligne_.Champs[place]) : decltype(lecteur(QStringView()))();
        if (!valeur) {
            Refuse(messages::ValeurIllisible(quoi, Texte(place)));
        }
        return valeur.value_or(0);
    }

    const Ligne& ligne_;
    Motifs& motifs_;
};

bool EstOui(const QString& texte)
{
    return texte.compare(QLatin1String("oui"), Qt::CaseInsensitive) == 0;
}

/// Three lines of 2026 have the pharmacist's fee in the place of the total.
void RemetHonoraires(Presentation& fiche, Motifs& motifs)
{
    if (fiche.Prix && fiche.PrixTotal && !fiche.Honoraires && *fiche.PrixTotal < *fiche.Prix) {
        fiche.Honoraires = fiche.PrixTotal;
        fiche.PrixTotal = *fiche.Prix + *fiche.Honoraires;
        motifs.Corrections.append(messages::HonorairesDeplaces());
    }
}

} // namespace

bool Lit(const Ligne& ligne, Specialite& fiche, Motifs& motifs)
{
    Champs champs(ligne, 12, motifs);
    fiche.Cis = champs.Cis(0);
    fiche.Nom = champs.TexteExige(1, QStringLiteral("nom"));
    fiche.Forme = champs.Texte(2);
    fiche.Voies = champs.Texte(3);
    fiche.Statut = champs.Texte(4);
    fiche.Procedure = champs.Texte(5);
    fiche.Commercialisee = champs.Texte(6) == QStringView(u"Commercialisée");
    fiche.DateAmm = champs.Date(7, QStringLiteral("date d'autorisation"));
    fiche.Alerte = champs.Texte(8);
    fiche.NumeroUe = champs.Texte(9);
    fiche.Titulaires = champs.Texte(10);
    fiche.Surveillance = EstOui(champs.Texte(11));
    fiche.Homeopathie = fiche.Procedure.startsWith(QStringView(u"Enreg homéo"));
    return champs.Lisible();
}

bool Lit(const Ligne& ligne, Presentation& fiche, Motifs& motifs)
{
    Champs champs(ligne, 13, motifs);
    fiche.Cis = champs.Cis(0);
    fiche.Cip7 = champs.CodeExige(1, kChiffresCip7, QStringLiteral("code CIP7"));
    fiche.Libelle = champs.Texte(2);
    fiche.Statut = champs.Texte(3);
    fiche.Etat = champs.Texte(4);
    fiche.Declaree = fiche.Statut == QStringView(u"Présentation active") &&
                     fiche.Etat == QStringView(u"Déclaration de commercialisation");
    fiche.Date = champs.Date(5, QStringLiteral("date de déclaration"));
    champs.CodeExige(6, kChiffresCip13, QStringLiteral("code CIP13"));
    fiche.Cip13 = champs.Texte(6);
    fiche.Agrement = EstOui(champs.Texte(7));
    fiche.Taux = champs.Facultatif(8, QStringLiteral("taux"), Taux);
    fiche.Prix = champs.Facultatif(9, QStringLiteral("prix"), Centimes);
    fiche.PrixTotal = champs.Facultatif(10, QStringLiteral("prix total"), Centimes);
    fiche.Honoraires = champs.Facultatif(11, QStringLiteral("honoraires"), Centimes);
    fiche.Indications = champs.Texte(12);
    RemetHonoraires(fiche, motifs);
    return champs.Lisible();
}

bool Lit(const Ligne& ligne, Composant& fiche, Motifs& motifs)
{
    Champs champs(ligne, 8, motifs);
    fiche.Cis = champs.Cis(0);
    fiche.Element = champs.Texte(1);
    fiche.Code =
        static_cast<int>(champs.CodeExige(2, kChiffresSubstance, QStringLiteral("code de substance")));
    fiche.Nom = champs.TexteExige(3, QStringLiteral("nom de substance"));
    fiche.Dosage = champs.Texte(4);
    fiche.Reference = champs.Texte(5);
    const QString nature = champs.Texte(6);
    fiche.Fraction = nature == QLatin1String("FT");
    if (!fiche.Fraction && nature != QLatin1String("SA")) {
        champs.Refuse(messages::ValeurIllisible(QStringLiteral("nature"), nature));
    }
    fiche.Lien = champs.NombreExige(7, QStringLiteral("numéro de lien"));
    return champs.Lisible();
}

bool Lit(const Ligne& ligne, Membre& fiche, Motifs& motifs)
{
    Champs champs(ligne, 5, motifs);
    fiche.Groupe = champs.NombreExige(0, QStringLiteral("numéro de groupe"));
    fiche.Libelle = champs.Texte(1);
    fiche.Cis = champs.Cis(2);
    fiche.Type = champs.NombreExige(3, QStringLiteral("type"));
    fiche.Rang = champs.NombreExige(4, QStringLiteral("numéro d'ordre"));
    if (champs.Lisible() && fiche.Type != 0 && fiche.Type != 1 && fiche.Type != 2 && fiche.Type != 4) {
        champs.Refuse(messages::ValeurIllisible(QStringLiteral("type"), champs.Texte(3)));
    }
    return champs.Lisible();
}

bool Lit(const Ligne& ligne, Condition& fiche, Motifs& motifs)
{
    Champs champs(ligne, 2, motifs);
    fiche.Cis = champs.Cis(0);
    fiche.Texte = champs.TexteExige(1, QStringLiteral("condition"));
    return champs.Lisible();
}

bool Lit(const Ligne& ligne, Disponibilite& fiche, Motifs& motifs)
{
    Champs champs(ligne, 8, motifs);
    fiche.Cis = champs.Cis(0);
    fiche.Cip13 = champs.Texte(1);
    if (!fiche.Cip13.isEmpty()) {
        champs.CodeExige(1, kChiffresCip13, QStringLiteral("code CIP13"));
    }
    fiche.Code = champs.NombreExige(2, QStringLiteral("code de statut"));
    if (champs.Lisible() && (fiche.Code < 1 || fiche.Code > 4)) {
        champs.Refuse(messages::ValeurIllisible(QStringLiteral("code de statut"), champs.Texte(2)));
    }
    fiche.Statut = champs.Texte(3);
    fiche.Debut = champs.Date(4, QStringLiteral("date de début"));
    fiche.MiseAJour = champs.Date(5, QStringLiteral("date de mise à jour"));
    fiche.Retour = champs.Date(6, QStringLiteral("date de remise à disposition"));
    fiche.Lien = champs.Texte(7);
    return champs.Lisible();
}

bool Lit(const Ligne& ligne, Mitm& fiche, Motifs& motifs)
{
    Champs champs(ligne, 4, motifs);
    fiche.Cis = champs.Cis(0);
    fiche.Atc = champs.Texte(1);
    fiche.Nom = champs.Texte(2);
    fiche.Lien = champs.Texte(3);
    return champs.Lisible();
}

bool Lit(const Ligne& ligne, LienAvis& fiche, Motifs& motifs)
{
    Champs champs(ligne, 2, motifs);
    fiche.Dossier = champs.TexteExige(0, QStringLiteral("numéro de dossier"));
    fiche.Lien = champs.TexteExige(1, QStringLiteral("adresse"));
    return champs.Lisible();
}

bool Lit(const Ligne& ligne, Avis& fiche, Motifs& motifs)
{
    Champs champs(ligne, 6, motifs);
    fiche.Cis = champs.Cis(0);
    fiche.Dossier = champs.TexteExige(1, QStringLiteral("numéro de dossier"));
    fiche.Motif = champs.Texte(2);
    fiche.Date = champs.Facultatif(3, QStringLiteral("date d'avis"), DateSerree);
    fiche.Valeur = champs.Texte(4);
    fiche.Texte = champs.Texte(5);
    return champs.Lisible();
}

} // namespace banque
