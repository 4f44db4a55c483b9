#include "prescription/Feuillets.h"

#include "prescription/PageCertificat.h"

namespace prescription {

namespace {

void MarqueCopie(page::Surface& cible, const settings::Dupli& dupli)
{
    cible.ScaleMode(page::Echelle::Millimetres);
    cible.ForeColor(settings::CouleurDupli(dupli));
    cible.Font(settings::PoliceDupli(dupli));
    cible.CurrentY(dupli.DupliY);
    for (const QString& ligne : settings::LignesDupli(dupli.DupliTexte)) {
        cible.CurrentX(dupli.DupliX);
        cible.Print(ligne);
    }
}

} // namespace

quint8 NombreDeCopies(const Ordonnance& ordonnance, quint8 modeApercu)
{
    if (modeApercu == 1) {
        return 1;
    }
    if (ordonnance.ChkDup == 1) {
        return 2;
    }
    return ordonnance.ChkTri == 1 ? 3 : 1;
}

page::Dessin PeintFeuilletCertificat(page::Modele& modele, const QImage& logo,
                                     application::Contexte& contexte, const QString& texte)
{
    page::Surface cible(page::Cible::Imprimante);
    cible.ForeColor(modele.Reglages.Look.CouleurEntete);
    page::PeintEntete(cible, modele, logo);
    PeintPageCertificat(cible, modele, contexte, texte);
    return cible.Resultat();
}

QList<page::Dessin> PeintFeuillets(page::Modele& modele, const QImage& logo, int nombre,
                                   outside::Boites& boites)
{
    QList<page::Dessin> feuillets;
    for (int feuillet = 1; feuillet <= nombre; ++feuillet) {
        page::Surface cible(page::Cible::Imprimante);
        cible.ForeColor(modele.Reglages.Look.CouleurEntete);
        if (feuillet > 1 && modele.Reglages.Dupli.DupliActif == 1) {
            MarqueCopie(cible, modele.Reglages.Dupli);
        }
        page::PeintEntete(cible, modele, logo);
        page::PeintPatient(cible, modele, boites);
        page::PeintOrdo(cible, modele);
        feuillets.append(cible.Resultat());
    }
    return feuillets;
}

} // namespace prescription
