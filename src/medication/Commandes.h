#pragma once

#include "application/Contexte.h"
#include "medication/ArbreMedicaments.h"
#include "medication/Lignes.h"
#include "medication/OffresPosologie.h"
#include "medication/Pharmacie.h"

class QDate;

namespace drugbank {
struct Banque;
}

namespace medication {

/// Empties the tree and fills it again for a search text. No node is selected then.
void ChargeMedicaments(Choix& choix, Pharmacie& pharmacie, ArbreMedicaments& arbre, const QString& recherche);

/// What an adding button leaves to do in the window.
enum class Suite {
    Recherche, ///< the focus goes to the search box, nothing else
    SansNoeud, ///< no node is selected: the box of the name is emptied
    Termine    ///< the boxes are emptied and the focus goes to the search box
};

/// `CmdAjouter1` and `CmdAjouter2`. `noeud`: the selected node, null for none.
Suite Ajoute(application::Contexte& contexte, Pharmacie& pharmacie, Zone zone, const Saisie& saisie,
             const Noeud* noeud);

/// `CmdSaut`: asks for the zone when there are two. False when nothing was added.
bool SauteLigne(application::Contexte& contexte);

/// The zone for a line composed in `FrmPoso`: the first one, or asked for when there are two; nothing on
/// Cancel.
std::optional<Zone> ZoneDePosologie(application::Contexte& contexte);

/// `CmdClear`: the lines, the counts, the report of interactions, the preview and the selected node are
/// reset.
void EffaceTout(application::Contexte& contexte);

/// `CmdOrdo` before the window hides: the message on empty lists, the counts.
void PrepareOrdonnance(application::Contexte& contexte);
/// `CmdOrdo` after it: the document becomes a prescription and is painted on the preview.
void MontreOrdonnance(application::Contexte& contexte);

/// A click on the node of a row: what the boxes show. A row outside the tree changes nothing.
std::optional<Saisie> ChoisitNoeud(Choix& choix, Pharmacie& pharmacie, const Noeud* noeud, int rang);

/// The posologies to offer for the name in hand; `noeud`: the selected node, null for none. Whatever cannot
/// be read leaves none.
void RemplitOffres(application::Contexte& contexte, OffresPosologie& offres, const QString& nom,
                   const Noeud* noeud);
/// `CmdModifier`: stores both boxes for the medication last clicked, whose node follows.
void EnregistreSaisie(application::Contexte& contexte, Pharmacie& pharmacie, ArbreMedicaments& arbre,
                      const Saisie& saisie);
/// `mnuDemark`: the pack last clicked is no longer one prescribed before; the node of the row goes back
/// to normal.
void Demarque(application::Contexte& contexte, ArbreMedicaments& arbre, int rang);
/// `ChkMono`: the state is kept in the doctor's "Options.cfg".
void CocheMono(application::Contexte& contexte, quint8 etat);
/// `LblDatExp`: how long the bank may be used; empty in the local mode.
QString Validite(const drugbank::Banque& banque, const QDate& aujourdhui);

/// A press in the search box. True when its whole text is to be selected.
bool PresseRecherche(Choix& choix);

/// F4 in the name: 30 blanks behind a trimmed text that has none, otherwise the trimmed text.
QString BasculeBlancs(const QString& texte);

/// True when leaving loses nothing: no line in either zone, nothing in the boxes.
bool RienEnMain(const prescription::Ordonnance& ordonnance, const Saisie& saisie);

} // namespace medication
