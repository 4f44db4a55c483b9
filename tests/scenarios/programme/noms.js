// Every control by its name.
const noms = {
    FrmChoixBase: "CboBase CboMed Label2 lblversion CmdSuite CmdAnn",
    FrmDepart: "Label1 CboListeMed CmdNO CmdMedecins CmdNO0 CmdOptions CmdOutils CmdAide CmdAP CmdQuitter PctLogo " +
        "lblversion mnuOutils mnuRepare mnuLogo mnuBase mnuTransfertDonn mnuMAJClef mnuJournal mnuRestaure MnuAideInv " +
        "mnuAideOld mnuAideNew mnuInvisible mnuOrdonnance mnuMinimiser mnuAccueil mnuOptions mnuHauteurN mnuHauteurP " +
        "mnuAide mnuAideOldIT mnuAideNewIT mnuAPropos mnuQuitter",
    FrmMedecins: "LstMed LblMed CmdNouveau CmdSupprime CmdDefaut CmdQuitter CmdAide",
    FrmAPROPOS: "Lblversion Label1 Label2 Bouton_VL_XP1",
    FrmOrdo: "PctOrdo PctPere Vsb PctRegle CboMed ChkCiv ImgMemo PctMemo PctMenu1 PctMenu2 CmdNouvelle CmdPatient " +
        "CmdPharma CmdDate CmdCertif CmdEnr CmdSupp CmdImprime CmdAccueil CmdFermer CmdAide MnuAideInv mnuInvisible " +
        "mnuHauteurN mnuHauteurP mnuOptions mnuAideNew mnuAideOld mnuAP mnuMinimiser mnuQuitter",
    FrmPatient: "LstPatient TxtCherche LblTitre LblPatient CmdOK CmdAnnule CmdNouveauPatient CmdPassage CmdModifier " +
        "CmdSupprime CmdAide",
    FrmNouveauP: "Opt(0) Opt(1) Opt(2) Opt(3) Opt(4) Opt(5) Txt(0) Txt(1) Txt(2) Txt(3) Txt(4) MEB LstCi CmdCI TxtAdr " +
        "TxtAtcd TxtAdrV Lbl CmdOK CmdAnnuler",
    FrmMedoc: "TxtCherche PctCherch TV TxtMedoc TxtPoso CmdVD ChkDCI lblDCI ChkMono Lblmono ChkALD Label7 ChkDup " +
        "Label6 ChkTri Label9 CmdModifier CmdNouveau CmdRetire CmdPerso Lbl1 Lbl2 Lbl5 LblPoso LblOrdoMem HlbG HlbI " +
        "AniGIFG AniGIFI " +
        "CmdAide CmdCopyright LblDatExp LstChoix1 LstChoix2 CmdAjouter1 CmdAjouter2 ImgUp ImgDown Txt CmdSaut CmdClear " +
        "CmdAnnule CmdOrdo mnuVidal mnu64 mnu128 mnu255 mnuDemarquer mnuDemark",
    FrmNouveauM: "LblPharma LblTitre LblPoso lblAS TxtNom TxtPoso LstP CmdOK CmdAnnuler CmdSupp",
    FrmPoso: "CboP(0) CboP(1) CboP(2) CboP(3) CboP(4) CboP(5) CboP(6) CboP(7) TxtPoso LblNomMed CmdAjouter " +
        "CmdEnregistrer CmdQuitter CmdAnnule CmdAide",
    FrmOptions: "TS CboPrint Chkimp CmdOK CmdOK(2) CmdAnnule(2)",
};
function manque(controle) {
    try { visible(controle); } catch (e) { return true; }
    return false;
}
function passe(fenetre) {
    egal(noms[fenetre].split(" ").filter(nom => manque(fenetre + "." + nom)), [], fenetre);
}
lancer();
boites([[/NOM D' UTILISATEUR/, "OK"], [/à votre NOM/, utilisateur], [/MEDECIN UTILISATEUR/, "OK"], [/Inscrire/, "Dr Neibre"],
    [/première fois/, "OK"]]);
passe("FrmChoixBase");
choisir("FrmChoixBase.CboBase", 0);
clic("FrmChoixBase.CmdSuite");
passe("FrmDepart");
clic("FrmDepart.CmdMedecins");
passe("FrmMedecins");
clic("FrmMedecins.CmdQuitter");
clic("FrmDepart.CmdAP");
passe("FrmAPROPOS");
clic("FrmAPROPOS.Bouton_VL_XP1");
clic("FrmDepart.CmdNO");
passe("FrmOrdo");
clic("FrmOrdo.CmdPatient");
passe("FrmPatient");
clic("FrmPatient.CmdNouveauPatient");
passe("FrmNouveauP");
clic("FrmNouveauP.CmdAnnuler");
clic("FrmPatient.CmdAnnule");
clic("FrmOrdo.CmdPharma");
passe("FrmMedoc");
clic("FrmMedoc.CmdNouveau");
passe("FrmNouveauM");
clic("FrmNouveauM.CmdAnnuler");
passe("FrmPoso");
clic("FrmMedoc.CmdAnnule");
clic("FrmOrdo.CmdImprime");
passe("FrmOptions");
