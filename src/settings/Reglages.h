#pragma once

#include "page/Police.h"
#include "settings/RangsEntete.h"

#include <QHash>
#include <QString>
#include <QStringList>
#include <array>

namespace settings {

/// `Options.cfg`: fields in file order.
struct Options
{
    quint8 LanceDemarrage = 0;
    quint8 AffichePoids = 1;
    quint8 AfficheAge = 1;
    quint8 SouligneNom = 1;
    quint8 ReduitLancement = 0;
    quint8 MinimiseImpression = 0;
    quint8 IconeHorloge = 1;
    quint8 SautsPrescription = 2; ///< blank lines between two entries, 1 to 4
    quint8 PositionLogo = 1;      ///< 1 left, 2 right
    quint8 SautTitrePoso = 0;
    quint8 BarreMenu = 0;
    quint8 ModeEntete = 0; ///< 0 address before practitioner, 1 practitioner first
    quint8 AfficheRegle = 0;
    QString Imprimante;
    quint8 IncrementeMedicaments = 0;
    quint8 TotalMedicaments = 0;
    QString FichierLogo;
    quint8 LogoActif = 0;
    qint16 LogoHauteur = 0; ///< millimetres, as the three below
    qint16 LogoLargeur = 0;
    qint16 LogoX = 0;
    qint16 LogoY = 0;
    quint8 SautPersonnalise = 0;
    quint8 ReliefMedUtilises = 0;
    quint8 TenirJournal = 0;
    quint8 AfficheDDN = 1;
    quint8 ImprimeDate = 1;
    quint8 EtatChkMono = 1;
    quint8 FormatA4 = 1; ///< 1 A4, 0 A5
    bool operator==(const Options&) const = default;
};

/// `Marges.cfg`: fields in file order, in millimetres.
struct Marges
{
    float MargeGaucheEntete = 10;
    float MargeHauteEntete = 4;
    float MargeBasEntete = 10;
    float MargeGaucheOrdo = 20;
    float MargeHauteOrdo = 100;
    float LongueurLigne = 170;
    qint16 MargeHautePatient = 70;
    qint16 MargeGauchePatient = 100;
    float HauteurSaut = 0;
    qint16 MargeHauteDate = 0;
    qint16 MargeGaucheDate = 0;
    qint16 MargeHauteDDN = 0;
    qint16 MargeGaucheDDN = 0;
    bool operator==(const Marges&) const = default;
};

/// `Dupli.cfg`: fields in file order. The word that marks a copy.
struct Dupli
{
    QString DupliPolice = QStringLiteral("Arial");
    qint16 DupliTaille = 48;
    quint8 DupliItalique = 0;
    quint8 DupliGras = 0;
    qint32 DupliCouleur = 0;
    qint16 DupliX = 35;
    qint16 DupliY = 140;
    quint8 DupliActif = 1;
    QString DupliTexte = QStringLiteral("DUPLICATA");
    bool operator==(const Dupli&) const = default;
};

/// The lines that the word of the copies stands for: a star parts them.
inline QStringList LignesDupli(const QString& dupliTexte)
{
    return dupliTexte.split(QLatin1Char('*'));
}

/// The font of the word; never underlined.
inline page::Police PoliceDupli(const Dupli& dupli)
{
    return {.Nom = dupli.DupliPolice,
            .Taille = static_cast<float>(dupli.DupliTaille > 1 ? dupli.DupliTaille : 1),
            .Gras = dupli.DupliGras != 0,
            .Italique = dupli.DupliItalique != 0};
}

/// The colour of the word, in what a colour can be.
inline page::Couleur CouleurDupli(const Dupli& dupli)
{
    return static_cast<page::Couleur>(dupli.DupliCouleur) & page::kToutesCouleurs;
}

/// The look kept in the doctor's database.
struct Look
{
    page::Police Titre;  ///< `PoliceTitre`, `TailleTitre`, ...: row 0 of `Misenpage`
    page::Police Poso;   ///< `PolicePoso`, ...: row 1
    page::Police Certif; ///< `PoliceCertif`, ...: `Certificat`
    page::Couleur CouleurEntete = page::kNoir;
    QString NomSignature;
    bool operator==(const Look&) const = default;
};

/// Where the doctor stands in the header designer.
struct SaisieEntete
{
    std::array<qint16, storage::kLignesEntete> EspacesLigne = {}; ///< the indentation of each row
    qint16 LigneCourante = 0;                                     ///< the row that last had the focus
    QString TexteAvantCurseur;                                    ///< of that row, left of the caret, trimmed
};

/// What the options dialogue has in hand while it is open.
struct OptionsEnCours
{
    QString BaseInitiale;          ///< `TypeBase` at its loading
    double RatioLogo = 0;          ///< width of the logo's picture by its height; 0 without a picture
    quint8 SaisieLogo = 0;         ///< 1 while the doctor is in `TxtL`, 0 while in `TxtH`
    QStringList LogosEcartes = {}; ///< pictures written over, the former ones kept beside them
};

/// One variable per settings field. Whatever prints or draws reads these, never the files.
struct Reglages
{
    settings::Options Options;
    settings::Marges Marges;
    settings::Dupli Dupli;
    settings::Look Look;
    settings::SaisieEntete SaisieEntete;
    QHash<QString, Entete> EntetesEnSuspens; ///< typed and not stored, by the doctor's directory
    OptionsEnCours EnCours;
    QString TxtSLP;            ///< the personal height as `FrmConfOrdo` shows it; empty without one
    quint8 ConfOrdoActive = 0; ///< 1 while `FrmConfOrdo` is shown
    int TxtCourant = 0;        ///< the row, 0 or 1, whose font `FrmConfOrdo.CmdPolice` changes
};

} // namespace settings
