#pragma once

#include "application/windows/Fenetres.h"
#include "medication/ArbreMedicaments.h"
#include "medication/Commandes.h"
#include "medication/Interactions.h"
#include "medication/Pharmacies.h"
#include "medication/windows/ControlesMedoc.h"

#include <QDialog>

namespace medication {

/// The picker: finds a medication and builds the lines of the prescription. Shown by `exec`, hidden and
/// reused; its close box is refused.
class FrmMedoc : public QDialog
{
    Q_OBJECT

public:
    FrmMedoc(application::Contexte& contexte, application::Fenetres& fenetres);

    /// Escape: `CmdAnnule`, after a question when lines would be lost.
    void reject() override;

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* objet, QEvent* event) override;

private:
    void RelieRecherche();
    void RelieLignes();
    void RelieListe(Zone zone);
    void RelieSignaux();
    void ReliePerso();
    void RelieDocument();

    /// What every showing of the window does.
    void Active();
    void ConfigureModeBase();
    void MontreValidite();
    void ChargeMedicaments();
    void VideArbre();

    void RechercheChange();
    void PresseArbre();
    void ClicNoeud(int rang);
    /// From the search box to the node found, else to the first one.
    void DescendDansArbre();
    /// Shows what a node holds in both boxes. False when there is nothing to show.
    bool LitNoeud(int rang);
    void ModifieMedicament();
    void RetireMedicament();
    void MontreNotes();
    void RelieOffres();
    void ComposePosologie();

    bool ModeBanque() const;
    /// Enter in the search box. The bank is asked from three characters on.
    void EntreeRecherche();
    /// A change of the search text in the bank mode: only a blank one shows something at once.
    void CherchePlusTard();
    /// Says under the tree that a search found no bank to ask.
    void MontreSansBanque();
    /// Searches again once a bank answers that did not.
    void RattrapeRecherche();
    void ChoisitFiltre(int filtre);
    /// `FrmNouveauM`, then the window is active again.
    void OuvreNouveau();
    /// The menu of a pack prescribed before; `point` in the tree.
    void ProposeDemarque(const QPoint& point);
    void DemarqueNoeud();
    void SupprimePersonnelle();

    /// Shows or hides the view of documents: the bank mode has it, while it is asked for.
    void PlaceDocument();
    void VideDocument();
    /// What follows the choice of a node: its document, or none.
    void SuitDocument(int rang);
    void AfficheDocument(const Noeud& noeud);
    void CocheMono(bool cochee);
    /// `FrmInd` with what the bank has on the pack in hand.
    void MontreDocuments();
    void OuvreDansNavigateur(const QString& document);

    void RelieGeneriques();
    /// Fills the list of the generics for the pack last clicked; the animation plays while it has rows.
    void RechercheGeneriques();
    void VideGeneriques();
    void OuvreGeneriques();

    void RelieInteractions();
    /// In the bank mode, after each change of the lines.
    void CalculeInteractions();
    /// The same once a bank answers that did not.
    void RattrapeInteractions();
    void MontreInteractions(medication::Clic clic);
    void MontreNonVerifiees();
    void ArreteAnimations();

    void Ajoute(Zone zone);
    void TermineAjout();
    void PresseLigne(Zone zone, int rang);
    void ReprendLigne(Zone zone);
    void DeplaceLigne(Zone zone, int sens);
    void PasseLigne(Zone zone);
    void GlisseLigne(Zone zone, const QPoint& depart, const QPoint& point);
    void LacheLigne(Zone zone, const QPoint& point);
    void ToutEfface();
    void CreeOrdonnance();
    /// `LblOrdoMem`, and again as long as a converted prescription is to be chosen anew.
    void OuvreMemorisees();
    /// True to choose again; `ouverte` when the window of the lists was shown.
    bool ChoisitMemorisee(bool& ouverte);

    void SuitOrdonnance();
    void MontreZones();
    void MontreHorsPage();
    void CocheCases();

    ListeLignes* Liste(Zone zone) const { return zone == Zone::Un ? c_.LstChoix1 : c_.LstChoix2; }
    Zone ZoneSource() const { return contexte_.Choix.ListeSource == 2 ? Zone::Deux : Zone::Un; }
    int NoeudSelectionne() const;
    /// The node whose medication the boxes hold; null when they hold another one.
    const Noeud* NoeudEnMain() const;
    void SelectionneNoeud(int rang);
    Saisie Boites() const;
    void RemplitBoites(const Saisie& saisie);
    void MontreFleches(const Fleches& fleches);
    void FocusRecherche();

    application::Contexte& contexte_;
    application::Fenetres& fenetres_;
    Pharmacies pharmacies_;
    ArbreMedicaments arbre_;
    OffresPosologie offres_;
    ControlesMedoc c_;
};

} // namespace medication
