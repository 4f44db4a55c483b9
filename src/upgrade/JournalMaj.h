#pragma once

#include "common/Erreur.h"
#include "upgrade/Suivi.h"

#include <QLockFile>
#include <QStringList>

namespace upgrade {

/// The steps of an upgrade, written down in "MiseAJour.cfg" of the tree before they are made, so that they
/// are undone or finished at the next start whatever stops them. One program at a time holds a tree's
/// journal.
class JournalMaj
{
public:
    /// What a start found and did.
    enum class Reprise { Rien, Annulee, Achevee };

    /// `cheminData` is the tree of the own disk, whose "Copie de Medoc.mdb" makes the upgrade due.
    JournalMaj(QString arbre, QString cheminData, Suivi& suivi);
    JournalMaj(const JournalMaj&) = delete;
    JournalMaj& operator=(const JournalMaj&) = delete;

    /// True while an upgrade of that tree runs, or a cut one has left its journal.
    static bool EnAttente(const QString& arbre);
    /// Undoes or finishes what an earlier upgrade of this tree left. Throws `Erreur`; the next start tries
    /// again.
    Reprise Reprend();

    /// Begins an upgrade of these databases, as paths below the tree: "Medoc.mdb", "DR NEIBRE/Ordo.mdb".
    void Commence(const QStringList& bases);
    /// Lays the template of a database beside it, from that file.
    void PoseModele(const QString& base, const QString& modele);
    /// Puts the filled templates in the place of the databases, which become the backups; the upgrade is not
    /// due any more. Either all of them have changed, or it throws `Erreur` and the tree is as it was.
    void Echange();
    /// Takes the templates away and ends: the tree is as it was.
    void Abandonne();
    /// Deletes what the root does not keep, and ends.
    void Termine();

    QString Fichier(const QString& base) const;
    /// The template beside a database: "Copie de Medoc.mdb".
    QString Copie(const QString& base) const;

private:
    enum class Etape { Preparation, Echange, Retour, Nettoyage };

    QString Ancien(const QString& base) const;
    QString AncienAvant(const QString& base) const;
    QString Journal() const;
    void Verrouille();
    bool Lit();
    void Ecrit(Etape etape);
    void Renomme(const QString& de, const QString& vers) const;
    void Supprime(const QString& chemin) const;
    void Avance(const QString& base) const;
    void Recule(const QString& base) const;
    void AvanceToutes();
    void ReculeToutes();
    /// Undoes the exchange and throws that failure with what has become of the tree.
    [[noreturn]] void Revient(const common::Erreur& cause);
    QString Declencheur() const;
    bool EstDeclencheur(const QString& copie) const;

    QString arbre_;
    QString cheminData_;
    Suivi& suivi_;
    QLockFile verrou_;
    Etape etape_ = Etape::Preparation;
    QStringList bases_;
};

} // namespace upgrade
