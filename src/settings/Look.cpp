#include "settings/FichiersReglages.h"
#include "storage/Jeu.h"

namespace settings {

namespace {

/// The five columns of a font from a position on; a null column leaves its value.
void LitPolice(const storage::Jeu& jeu, int position, page::Police& police)
{
    const auto lit = [&](int rang, auto prend) {
        if (!jeu.EstNull(position + rang)) {
            prend(jeu.Champ(position + rang));
        }
    };
    lit(0, [&](const QVariant& valeur) { police.Nom = valeur.toString(); });
    lit(1, [&](const QVariant& valeur) { police.Taille = valeur.toFloat(); });
    lit(2, [&](const QVariant& valeur) { police.Gras = valeur.toInt() != 0; });
    lit(3, [&](const QVariant& valeur) { police.Italique = valeur.toInt() != 0; });
    lit(4, [&](const QVariant& valeur) { police.Souligne = valeur.toInt() != 0; });
}

void ChargeEntete(Look& look, storage::Base& ordo)
{
    for (auto jeu = ordo.Table(QStringLiteral("Entete")); !jeu.Fin(); jeu.MoveNext()) {
        if (jeu.Champ(0).toInt() == 23) {
            look.NomSignature = jeu.Texte(1).trimmed();
        }
    }
    for (auto jeu = ordo.Table(QStringLiteral("CouleurPET")); !jeu.Fin(); jeu.MoveNext()) {
        look.CouleurEntete = jeu.Champ(0).toUInt();
    }
}

void ChargeMisenpage(Look& look, storage::Base& ordo)
{
    for (auto jeu = ordo.Table(QStringLiteral("Misenpage")); !jeu.Fin(); jeu.MoveNext()) {
        const int rang = jeu.EstNull(0) ? -1 : jeu.Champ(0).toInt();
        if (rang == 0 || rang == 1) {
            LitPolice(jeu, 1, rang == 0 ? look.Titre : look.Poso);
        }
    }
}

} // namespace

void ChargeLook(Look& look, storage::Base& ordo, const page::Police& txtCert)
{
    Look lu;
    lu.Certif = txtCert;
    ChargeEntete(lu, ordo);
    ChargeMisenpage(lu, ordo);
    for (auto jeu = ordo.Table(QStringLiteral("Certificat")); !jeu.Fin(); jeu.MoveNext()) {
        LitPolice(jeu, 0, lu.Certif);
    }
    look = lu;
}

void EcritPoliceCertificat(const page::Police& police, storage::Base& ordo)
{
    storage::Transaction transaction(ordo);
    auto jeu = ordo.Table(QStringLiteral("Certificat"));
    for (; !jeu.Fin(); jeu.MoveNext()) {
        jeu.Delete();
    }
    jeu.AddNew();
    jeu.Ecris(0, police.Nom);
    jeu.Ecris(1, police.Taille);
    jeu.Ecris(2, police.Gras);
    jeu.Ecris(3, police.Italique);
    jeu.Ecris(4, police.Souligne);
    jeu.Update();
    transaction.Valide();
}

} // namespace settings
