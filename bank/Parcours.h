#pragma once

#include "bank/Bilan.h"
#include "bank/Importateur.h"
#include "bank/Lecture.h"
#include "bank/messages.h"

#include <QFileInfo>

namespace banque {

/// What becomes of a record that could be read.
struct Sort
{
    QString Ecartee = {};    ///< why it says nothing of the bank's medications; empty when it is kept
    QString Refus = {};      ///< why it is refused after all
    QString Correction = {}; ///< what is said of a record that is kept
};

/// Walks one public file as it was read, hands its records over and fills its share of the summary.
class Parcours
{
public:
    Parcours(QString chemin, Bilan& bilan, const Avancement& avancement)
        : chemin_(std::move(chemin)), nom_(QFileInfo(chemin_).fileName()), bilan_(bilan),
          avancement_(avancement)
    {}

    /// `garde` answers a `Sort` for each record. Throws `Erreur` when the file is not what its name says.
    template <typename Fiche, typename Garde>
    void Chaque(std::future<FichierLu<Fiche>>& lecture, Garde&& garde)
    {
        Annonce(0, 0);
        const FichierLu<Fiche> lu = lecture.get();
        const auto total = static_cast<qint64>(lu.Lignes.size());
        BilanFichier fichier{.Nom = nom_, .Vides = lu.Vides};
        for (const LigneLue<Fiche>& ligne : lu.Lignes) {
            if (fichier.Lues++ % kPas == 0) {
                Annonce(fichier.Lues - 1, total);
            }
            const bool refusee = !ligne.Dites.Refus.isEmpty();
            Compte(ligne.Numero, ligne.Dites, refusee ? Sort() : garde(ligne.Valeur), fichier);
        }
        Annonce(total, total);
        VerifieForme(fichier);
        if (lu.FinOuverte && !lu.Lignes.back().Dites.Refus.isEmpty()) {
            Coupe(lu.Lignes.back().Numero);
        }
        bilan_.Fichiers.append(fichier);
    }

private:
    static constexpr int kPas = 512;

    void Annonce(qint64 faites, qint64 total) const;
    static void Compte(int numero, const Motifs& motifs, const Sort& sort, BilanFichier& fichier);
    void VerifieForme(const BilanFichier& fichier) const;
    [[noreturn]] void Coupe(int ligne) const;

    QString chemin_;
    QString nom_;
    Bilan& bilan_;
    const Avancement& avancement_;
};

} // namespace banque
