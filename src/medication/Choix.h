#pragma once

#include "medication/Noeud.h"

#include <QStringList>

namespace medication {

/// No tree node is selected. A selected node number 100 reads the same.
constexpr int kAucunNoeud = 100;

/// The blanks that F4 puts behind the name of a medication.
constexpr int kBlancsF4 = 30;

/// What the picker has in hand.
struct Choix
{
    int NoeudChoisi = kAucunNoeud; ///< 1-based index of the selected node
    quint8 ArbreChoisi = 0;
    quint8 OrigineEdition = 0; ///< 0 tree, 1 line taken back, 2 line only shown
    quint8 ListeSource = 0;    ///< 1 or 2, the list last pressed
    int IndexEdition1 = 0;     ///< array index of the line taken back
    int IndexEdition2 = 0;
    QString IdentifiantRepris; ///< identifier of the line taken back
    bool AncienRepris = false; ///< that identifier is a code of an old version
    QStringList InfoPack;      ///< CIP, pack id, product id, price of the pack last clicked
    QStringList LstGen; ///< the generics of that pack: rows of `FrmGEN`, an empty one before each group
    Noeud NoeudLu;      ///< what the last click read; an empty tag for none
    quint8 ChkDCI = 0;  ///< 1: a pack is prescribed by its common name
    /// The address that the view of documents shows, "about:blank" for nothing.
    QString AdresseWB = QStringLiteral("about:blank");
    QString TypeBaseArbre;  ///< `TypeBase` when the tree was last filled
    quint8 BaseChangee = 0; ///< 0 or 1: the tree is to be filled again; 2: it is filled
    qint16 DernierCboP = 0; ///< the box of `FrmPoso` that last changed
    QString TexteQuantite;  ///< the quantity last typed for a moment without a time of day
};

} // namespace medication
