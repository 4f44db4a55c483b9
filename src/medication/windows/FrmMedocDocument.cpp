#include "drugbank/Banque.h"
#include "drugbank/messagesDocument.h"
#include "drugbank/windows/PanneauDocument.h"
#include "drugbank/windows/VueDocument.h"
#include "medication/Document.h"
#include "medication/messages.h"
#include "medication/windows/FrmInd.h"
#include "medication/windows/FrmMedoc.h"
#include "outside/Lanceur.h"
#include "outside/Tente.h"

#include <QCheckBox>

// The document of the medication in hand, beside the lists of the bank mode.
namespace medication {

void FrmMedoc::RelieDocument()
{
    connect(c_.ChkMono, &QCheckBox::clicked, this, &FrmMedoc::CocheMono);
    connect(c_.Document, &drugbank::PanneauDocument::DocumentsDemandes, this, &FrmMedoc::MontreDocuments);
    connect(c_.Document, &drugbank::PanneauDocument::AOuvrir, this, &FrmMedoc::OuvreDansNavigateur);
    connect(c_.Document->Vue(), &drugbank::VueDocument::Change, this, [this] {
        contexte_.Choix.AdresseWB = c_.Document->Vue()->Adresse().toString(QUrl::FullyEncoded);
    });
    VideDocument();
}

void FrmMedoc::PlaceDocument()
{
    c_.Document->setVisible(ModeBanque() && c_.ChkMono->isChecked());
}

void FrmMedoc::VideDocument()
{
    c_.Document->Vue()->Montre(QStringLiteral("about:blank"));
}

void FrmMedoc::SuitDocument(int rang)
{
    const Noeud* noeud = arbre_.Lis(rang);
    if (ModeBanque() && noeud && c_.ChkMono->isChecked()) {
        AfficheDocument(*noeud);
    } else {
        VideDocument();
    }
}

void FrmMedoc::AfficheDocument(const Noeud& noeud)
{
    const auto adresse = AdresseDuDocument(contexte_.Banque, contexte_.Chemins, noeud);
    if (adresse) {
        c_.Document->Vue()->Montre(*adresse);
    } else {
        c_.Document->Vue()->MontrePhrase(messages::BanqueFermee());
    }
}

void FrmMedoc::CocheMono(bool cochee)
{
    outside::Tente(contexte_.Dehors.Boites, [&] { medication::CocheMono(contexte_, cochee); });
    PlaceDocument();
    SuitDocument(NoeudSelectionne());
}

void FrmMedoc::MontreDocuments()
{
    if (const Noeud* noeud = arbre_.Lis(NoeudSelectionne())) {
        fenetres_.Donne<FrmInd>().Montre(noeud->Texte.trimmed(), ListeDesDocuments(contexte_.Banque, *noeud));
    }
}

void FrmMedoc::OuvreDansNavigateur(const QString& document)
{
    const bool ouvert = contexte_.Dehors.Lanceur.Ouvre(document);
    c_.Document->Remarque(ouvert ? QString() : drugbank::messages::NavigateurAbsent());
}

} // namespace medication
