#pragma once

#include "drugbank/Banque.h"
#include "settings/Reglages.h"
#include "storage/Base.h"

namespace settings {

/// Reads `Options.cfg`, `Marges.cfg` and `Dupli.cfg` of a directory over the variables, and sets `TxtSLP`
/// after them. A file that is missing, short or damaged raises nothing: the fields not reached keep what they
/// had.
void ChargeReglages(Reglages& reglages, const QString& chemin);

/// `Options.cfg` of a directory over the variables, as above. False when there is no file.
bool LitOptions(Options& options, const QString& chemin);

/// Write the whole record into the directory `chemin`; a damaged former file is kept beside as
/// "NAME.abime". Throw `Erreur`.
void EcritOptions(const Options& options, const QString& chemin);
void EcritMarges(const Marges& marges, const QString& chemin);
void EcritDupli(const Dupli& dupli, const QString& chemin);

/// "Base.cfg": `TypeBase`, `NiveauInteraction`, `ProduitBanque`. Reading gives false when there is no file. A
/// level that is none, or missing, becomes 0, which hides nothing; the open bank and its product go together.
bool LitBaseCfg(drugbank::Banque& banque, const QString& chemin);
void EcritBaseCfg(const drugbank::Banque& banque, const QString& chemin);

/// Reads the doctor's look (`Entete` row 23, `CouleurPET`, `Misenpage`, `Certificat`) into the variables.
/// What a table without rows, or a null column, would give becomes the default, or for certificates the font
/// `txtCert`: nothing of the doctor before stays. The variables are left as they are when it throws `Erreur`.
void ChargeLook(Look& look, storage::Base& ordo, const page::Police& txtCert = {});

/// Makes the font of certificates the one row of `Certificat`. Throws `Erreur`; the table is as before then.
void EcritPoliceCertificat(const page::Police& police, storage::Base& ordo);

} // namespace settings
