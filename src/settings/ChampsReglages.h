#pragma once

#include <tuple>

namespace settings {

/// The fields of `Options.cfg` in file order.
auto ChampsOptions(auto& o)
{
    return std::tie(o.LanceDemarrage, o.AffichePoids, o.AfficheAge, o.SouligneNom, o.ReduitLancement,
                    o.MinimiseImpression, o.IconeHorloge, o.SautsPrescription, o.PositionLogo,
                    o.SautTitrePoso, o.BarreMenu, o.ModeEntete, o.AfficheRegle, o.Imprimante,
                    o.IncrementeMedicaments, o.TotalMedicaments, o.FichierLogo, o.LogoActif, o.LogoHauteur,
                    o.LogoLargeur, o.LogoX, o.LogoY, o.SautPersonnalise, o.ReliefMedUtilises, o.TenirJournal,
                    o.AfficheDDN, o.ImprimeDate, o.EtatChkMono, o.FormatA4);
}

/// The fields of `Marges.cfg` in file order.
auto ChampsMarges(auto& m)
{
    return std::tie(m.MargeGaucheEntete, m.MargeHauteEntete, m.MargeBasEntete, m.MargeGaucheOrdo,
                    m.MargeHauteOrdo, m.LongueurLigne, m.MargeHautePatient, m.MargeGauchePatient,
                    m.HauteurSaut, m.MargeHauteDate, m.MargeGaucheDate, m.MargeHauteDDN, m.MargeGaucheDDN);
}

/// The fields of `Dupli.cfg` in file order.
auto ChampsDupli(auto& d)
{
    return std::tie(d.DupliPolice, d.DupliTaille, d.DupliItalique, d.DupliGras, d.DupliCouleur, d.DupliX,
                    d.DupliY, d.DupliActif, d.DupliTexte);
}

/// The fields of `Base.cfg` in file order.
auto ChampsBase(auto& b)
{
    return std::tie(b.TypeBase, b.NiveauInteraction, b.ProduitBanque);
}

} // namespace settings
