#pragma once

#include "application/Contexte.h"
#include "settings/Reglages.h"

#include <array>
#include <variant>

namespace settings {

/// What the controls of `FrmConfOrdo` hold, each under its name, with the texts that stand there without a
/// doctor.
struct SaisieMiseEnPage
{
    QString CboInt; ///< lines between two prescriptions
    QString CboM;   ///< top margin of the prescriptions
    QString TxtM = QStringLiteral("20");
    QString TxtL = QStringLiteral("170");
    QString TxtE = QStringLiteral("70");
    QString TxtG = QStringLiteral("100");
    bool ChkS = false;
    bool ChKSLP = false;
    QString TxtSLP;
    QString TxtHD;
    QString TxtGD;
    QString TxtHddn;
    QString TxtGddn;
    std::array<page::Police, 2> Txt; ///< the fonts of the medication and of the posology line
    bool operator==(const SaisieMiseEnPage&) const = default;
};

/// A text box of a margin: its control, its caption with the Alt letter, its text and its variable.
struct CaseMarge
{
    const char* Nom;
    const char16_t* Legende;
    QString SaisieMiseEnPage::*Texte;
    std::variant<float Marges::*, qint16 Marges::*> Variable;

    QString Libelle() const; ///< without the Alt letter
};

using ListeCasesMarge = std::array<CaseMarge, 8>;
const ListeCasesMarge& CasesMarges();

/// The controls as the window loads them from the variables; the default texts without a doctor.
SaisieMiseEnPage ChargeMiseEnPage(const application::Contexte& contexte);

/// The number that a margin's text stands for: its numeric prefix. A text that shows the variable keeps it
/// with its decimals, which a comma would cut.
double LitMarge(const QString& texte, double variable);

/// The settings with what the controls hold, each margin held within the range of its variable.
Reglages ReglagesSaisis(const Reglages& reglages, const SaisieMiseEnPage& saisie);

/// The doctor's settings as his files and his database hold them; what they lack is as in the variables.
Reglages ReglagesStockes(application::Contexte& contexte);

/// Whether the controls differ from what is stored.
bool MiseEnPageModifiee(const Reglages& stockes, const SaisieMiseEnPage& saisie);

/// What came of `CmdEnregistrer`.
struct BilanMiseEnPage
{
    bool Enregistree = false;             ///< all of it stands in the files
    const CaseMarge* TropGrand = nullptr; ///< the text that stopped it
};

/// `CmdEnregistrer`: the table `Misenpage`, the variables, "Marges.cfg" and "Options.cfg", with the doctor
/// test and the message. A value out of range stops it before anything is written; a failure is told with
/// what is stored and what is not.
BilanMiseEnPage EnregistreMiseEnPage(application::Contexte& contexte, const SaisieMiseEnPage& saisie);

/// `ChKSLP` was clicked: asks for the height when it was set, unless the window is only being loaded. The
/// box shows `SautPersonnalise` afterwards, and the height box `TxtSLP`.
void ChangeSautPersonnalise(application::Contexte& contexte, bool coche);

/// `TxtSLP` was left with that text. False when the focus goes back to it, after the message.
bool QuitteTxtSLP(application::Contexte& contexte, const QString& texte);

/// `CboM` was clicked: the top margin changes at once.
void ChoisitMargeHaute(application::Contexte& contexte, const QString& texte);

/// The font in a few letters, "Arial(GI)".
QString DecritPolice(const page::Police& police);
/// The same after a choice, with the size: "Arial  (11  G    )".
QString DecritPoliceChoisie(const page::Police& police);

} // namespace settings
