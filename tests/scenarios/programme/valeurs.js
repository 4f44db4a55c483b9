// The variables of the state by their names, and their kinds.
installer();
const groupes = {
    string: "Version DateExpirationBase NomSignature CheminData CheminBase CheminTravail CheminMedecin " +
        "NomMedecinSignature PatientCourant NomSeul DateNaissance AgePatient PoidsPatient PrecautionsPatient " +
        "AdressePatient BandeauALD1 BandeauALD2 DateOrdo MessagePrecautions AgeSaisi TitreMemo LigneJournal Imprimante FichierLogo " +
        "DupliPolice DupliTexte PoliceTitre PolicePoso PoliceCertif TypeBase CheminBanque VersionBanque MessageBanque AdresseWB",
    number: "TypeStockage IndexStockage NbMedecins NumMedecin NumMedecinDefaut IndexMedecin ModePatient NbZone1 " +
        "NbZone2 NbMedZone1 NbMedZone2 ChkALD ChkDup ChkTri ChkCiv OrdoMemorisee ModeApercu EtatImprimante NbCopies " +
        "LanceDemarrage AffichePoids AfficheAge SouligneNom ReduitLancement MinimiseImpression IconeHorloge " +
        "SautsPrescription PositionLogo SautTitrePoso BarreMenu ModeEntete AfficheRegle IncrementeMedicaments " +
        "TotalMedicaments LogoActif LogoHauteur LogoLargeur LogoX LogoY SautPersonnalise ReliefMedUtilises " +
        "TenirJournal AfficheDDN ImprimeDate EtatChkMono FormatA4 MargeGaucheEntete MargeHauteEntete " +
        "MargeBasEntete MargeGaucheOrdo MargeHauteOrdo LongueurLigne MargeHautePatient MargeGauchePatient " +
        "HauteurSaut MargeHauteDate MargeGaucheDate MargeHauteDDN MargeGaucheDDN DupliTaille DupliItalique " +
        "DupliGras DupliCouleur DupliX DupliY DupliActif TailleTitre GrasTitre ItaliqueTitre SouligneTitre " +
        "TaillePoso GrasPoso ItaliquePoso SoulignePoso TailleCertif GrasCertif ItaliqueCertif SouligneCertif " +
        "CouleurEntete DecalageCertif CertifALD ChargeCertif IndexCertif IdentiteCertif NiveauInteraction ProduitBanque FiltreBanque SessionBanque " +
        "RetourInitBanque ChargementBanque BanqueInitialisee DispositionFaite " +
        "NoeudChoisi ArbreChoisi OrigineEdition ListeSource IndexEdition1 IndexEdition2",
    object: "OrdoZone1 OrdoZone2 InfoPack",
};
for (const genre in groupes) {
    egal(groupes[genre].split(" ").filter(nom => typeof valeur(nom) !== genre), [], genre);
}
egal(valeur("Version"), "2.3.25", "la version");
clic("FrmDepart.mnuHauteurP");
boites([[/Hauteur en mm/, "2.3"]]);
egal(valeur("HauteurSaut"), 2.3, "un nombre simple se lit dans sa forme la plus courte");

ajouter("Medoc", "BddMed", [1, null, null, null, "1 comprimé matin* et soir", "DOLIPRANE 1000 MG"]);
egal(valeur("FenetreActive"), 0, "l'éditeur n'est pas devant");
clic("FrmDepart.CmdNO");
egal(valeur("FenetreActive"), 1, "il l'est");
clic("FrmOrdo.CmdPharma");
cocher("FrmMedoc.ChkALD", true);
taper("FrmMedoc.TxtCherche", "dolip");
clic("FrmMedoc.TV", "DOLIPRANE 1000 MG");
clic("FrmMedoc.CmdAjouter1");
clic("FrmMedoc.TV", 0);
saisir("FrmMedoc.TxtMedoc", "#A renouveler#");
clic("FrmMedoc.CmdAjouter1");
egal(valeur("OrdoZone1")[0], {Titre: "DOLIPRANE 1000 MG", Posologie: "1 comprimé matin* et soir"}, "une entrée");
egal([valeur("NbZone1"), valeur("OrdoZone1")[1].Titre], [2, "#A renouveler#"], "la suivante");
glisser("FrmMedoc.LstChoix1", "DOLIPRANE 1000 MG", "FrmMedoc.LstChoix2");
egal(lignes("FrmMedoc.LstChoix2"), ["  DOLIPRANE 1000 MG" + " ".repeat(100) + "1"], "glissée par ce qui se voit d'elle");
egal([valeur("NbZone2"), donnees("FrmMedoc.LstChoix1")], [1, [1]], "sa place et celle qui reste");
